// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/generators.h"

#include "platform/core/units.h"

#include <algorithm>
#include <limits>

namespace zeph {

Refusal missingText()
{
    return {
        u"Missing some text buddy"_s,
        u"You have left out one of the required parameters I need to create the statement."_s
    };
}

Generated plainStatement(const QString &text, bool startsLine)
{
    return Statement{ { { text } }, startsLine };
}

bool lacksText(std::initializer_list<QStringView> texts)
{
    return std::ranges::any_of(texts, [](QStringView text) { return text.isEmpty(); });
}

int wholeOf(QStringView text)
{
    return rounded(leadingNumber(text));
}

int rounded(double value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return int(std::clamp(roundHalfEven(value), least, most));
}

} // namespace zeph
