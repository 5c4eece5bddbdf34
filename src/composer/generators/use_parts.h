// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the pages of hats and mouse share: the roles of USE statements and the options after them.

#include "composer/generators/parted_statement.h"
#include "text/text_lines.h"

#include <QFlags>

namespace zeph {

/// The options of "USE NAME AS ROLE - OPTION, OPTION", in the order in which every page writes
/// them.
enum class UseOption : quint8 {
    ReverseUd = 1 << 0,
    ReverseLr = 1 << 1,
    ReverseDir = 1 << 2,
    ForcedCorners = 1 << 3,
    NoHold = 1 << 4,
    Kp5 = 1 << 5,
    NoButton = 1 << 6,
};
Q_DECLARE_FLAGS(UseOptions, UseOption)
Q_DECLARE_OPERATORS_FOR_FLAGS(UseOptions)

/// The word of an option, which is the caption of its box too.
QStringView wordOf(UseOption option);

enum class OptionPage : quint8 { Hat, MouseType, AxisAsMouse };

struct OptionBox {
    UseOption option;
    OptionPage page;
};

/// The boxes of the control array CheckHatUse, by index.
inline constexpr OptionBox checkHatUse[] = {
    { UseOption::ReverseUd, OptionPage::Hat },
    { UseOption::ForcedCorners, OptionPage::Hat },
    { UseOption::Kp5, OptionPage::Hat },
    { UseOption::ReverseLr, OptionPage::Hat },
    { UseOption::ReverseLr, OptionPage::MouseType },
    { UseOption::ReverseUd, OptionPage::MouseType },
    { UseOption::ReverseUd, OptionPage::AxisAsMouse },
    { UseOption::ReverseLr, OptionPage::AxisAsMouse },
    { UseOption::ReverseDir, OptionPage::AxisAsMouse },
    { UseOption::NoHold, OptionPage::Hat },
    { UseOption::NoButton, OptionPage::AxisAsMouse },
};

/// " - " and the words with commas between them; empty without options.
QString optionTail(UseOptions options);

/// The options from the part with this index on; no value if there is anything else.
std::optional<UseOptions> readOptionTail(const PartedStatement &parts, int from);

/// "USE NAME AS ROLE", perhaps with brackets after the role and with options.
struct RoleStatement {
    QString name;
    QString role;
    std::optional<QString> inside;
    UseOptions options;
};
/// No value for any other statement.
std::optional<RoleStatement> readRole(QStringView statement);

} // namespace zeph
