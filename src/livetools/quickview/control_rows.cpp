// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/control_rows.h"

namespace zeph {

int rowOfControl(QStringView name)
{
    const auto found = std::ranges::find_if(controlNames, [name](QStringView control) {
        return !control.isEmpty() && control.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == controlNames.end() ? 0 : int(found - controlNames.begin()) + 1;
}

QString columnName(int column)
{
    constexpr std::array<QStringView, columnCount> names = { u"/U /I"_w, u"/U /O"_w, u"/M /I"_w,
                                                             u"/M /O"_w, u"/D /I"_w, u"/D /O"_w };
    return names[size_t(column - 1)].toString();
}

} // namespace zeph
