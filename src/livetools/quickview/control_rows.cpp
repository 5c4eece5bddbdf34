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

QString columnInWords(int column)
{
    constexpr std::array<QStringView, 3> modes = { u"up", u"in the middle", u"down" };
    const QString s3 = column % 2 == heldIn ? u"S3 held"_s : u"S3 let go"_s;
    return u"Dogfight switch %1, %2"_s.arg(modes[size_t(column - 1) / 2], s3);
}

} // namespace zeph
