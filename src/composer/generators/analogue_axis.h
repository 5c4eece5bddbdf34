// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The statements that change how an axis reports, but for USE AXES_CONFIG. A value box that is
// empty counts as "0". Axes are written as they are given; without one, a statement is refused as
// lacking text. Readers give no value for a text that their page cannot write.

#include "composer/generators/generators.h"
#include "language/words.h"

namespace zeph {

/// The lists of the pages.
inline constexpr std::array analogueAxes = [] {
    using language::operator""_w;
    return std::array{ u"JOYX"_w,      u"JOYY"_w,     u"JOYSTICK"_w, u"THR"_w,       u"ANT"_w,
                       u"RNG"_w,       u"ROTARIES"_w, u"RDDR"_w,     u"LBRK"_w,      u"RBRK"_w,
                       u"TOEBRAKES"_w, u"MIX"_w,      u"MIY"_w,      u"MICROSTICK"_w };
}();
inline constexpr std::array disableableAxes = [] {
    using language::operator""_w;
    return std::array{ u"THR"_w,  u"ANT"_w,  u"RNG"_w,  u"ROTARIES"_w,
                       u"RDDR"_w, u"LBRK"_w, u"RBRK"_w, u"TOEBRAKES"_w };
}();
inline constexpr std::array curveSlashes = [] {
    using language::operator""_w;
    return std::array{ u"/U"_w, u"/M"_w, u"/D"_w, u"/I"_w, u"/O"_w };
}();
/// The last one is no modifier.
inline constexpr std::array curveEvents = [] {
    using language::operator""_w;
    return std::array{ u"/P"_w, u"/R"_w, u"/T"_w, QStringView(u"None") };
}();
/// What an axis or a pair of axes can be swapped with: a pair only with a pair.
language::Words swapPartners(QStringView axis);

/// What the box of a value shows after a statement was asked for: "0" instead of nothing.
QString filledValue(const QString &value);

struct CurveFields {
    /// The option buttons in their order.
    enum class Form : quint8 { Configuration, Curve, Button };

    Form form = Form::Configuration;
    QString axis = {};
    QString value = {};
    /// Index in curveSlashes, for Form::Curve.
    int slash = 0;
    /// Form::Curve begins with the word CURVE; the second half does not.
    bool beginsWithCurve = true;
    /// Index in curveEvents, for Form::Button.
    int event = 0;

    bool operator==(const CurveFields &) const = default;
};
Generated generateCurve(const CurveFields &fields);
std::optional<CurveFields> readCurve(QStringView statement);
/// The example that the page shows, of one or two lines.
QString curveExample(CurveFields::Form form);

struct TrimFields {
    /// The option buttons in their order.
    enum class Type : quint8 { Add, Fixed, ToCurrent, Remove, Hold };

    Type type = Type::Add;
    QString axis = {};
    /// Without sign.
    QString value = {};
    bool isNegative = false;

    bool operator==(const TrimFields &) const = default;
};
Generated generateTrim(const TrimFields &fields);
std::optional<TrimFields> readTrim(QStringView statement);

struct TrimOption {
    const char16_t *caption;
    const char16_t *example;
};
/// In the order of TrimFields::Type.
inline constexpr std::array trimOptions{
    TrimOption{ u"Add to or subtract from any trim already present",
                u"              BTN S1 /I TRIM (JOYY, 2-)\n"
                u"                            /O TRIM (JOYY, 2+)" },
    TrimOption{ u"Set a fixed trim value",
                u"              BTN S2 /I TRIM (RDDR, -2)\n"
                u"                            /O TRIM (RDDR, 2)" },
    TrimOption{ u"Trim to current axis value", u"   BTN T6 TRIM (JOYSTICK, TO_CURRENT)" },
    TrimOption{ u"Remove trim", u"                   BTN T4 TRIM (JOYY, 0)" },
    TrimOption{ u"Hold trim until axis and button are released",
                u"                 BTN S4 HOLDTRIM (JOYSTICK)" },
};

/// The value box of the trim page and the sign beside it.
struct TrimValueBox {
    enum class Sign : quint8 { None, Before, After };

    QString text = {};
    bool isEnabled = true;
    Sign sign = Sign::None;

    bool operator==(const TrimValueBox &) const = default;
};
/// What becomes of the box when an option is chosen.
TrimValueBox trimValueBox(TrimFields::Type type, const QString &text);

Generated generateDisable(const QString &axis);
/// The axis of a DISABLE statement.
std::optional<QString> readDisable(QStringView statement);

struct LockFields {
    bool unlocks = false;
    QString axis = {};
    bool toLastValue = false;
    /// In percent, without the sign for it.
    QString value = {};

    bool operator==(const LockFields &) const = default;
};
Generated generateLock(const LockFields &fields);
std::optional<LockFields> readLock(QStringView statement);

/// The fields that only some choices of the LOCK page leave usable.
struct LockBoxes {
    bool lastValueEnabled = true;
    bool valueEnabled = true;
    /// What the value box shows.
    QString value = {};

    bool operator==(const LockBoxes &) const = default;
};
LockBoxes lockBoxes(const LockFields &fields);

struct SwapFields {
    bool isConfiguration = false;
    QString first = {};
    QString second = {};

    bool operator==(const SwapFields &) const = default;
};
Generated generateSwap(const SwapFields &fields);
std::optional<SwapFields> readSwap(QStringView statement);

struct ReverseFields {
    enum class Form : quint8 { Configuration, Reverse, Forward };

    Form form = Form::Configuration;
    QString axis = {};

    bool operator==(const ReverseFields &) const = default;
};
Generated generateReverse(const ReverseFields &fields);
std::optional<ReverseFields> readReverse(QStringView statement);

struct ThrottleRangeFields {
    bool isConfiguration = false;
    /// In percent, without the sign for it.
    QString from = {};
    QString to = {};

    bool operator==(const ThrottleRangeFields &) const = default;
};
Generated generateThrottleRange(const ThrottleRangeFields &fields);
std::optional<ThrottleRangeFields> readThrottleRange(QStringView statement);
/// The statement whatever the values are: the sample that the page shows.
QString throttleRangeText(const ThrottleRangeFields &fields);

/// The program that measures the throttle is not in the tools' folder.
Refusal noThrottleRangeWizard();
/// The values that it writes are not there.
Refusal noThrottleRangeValues();

} // namespace zeph
