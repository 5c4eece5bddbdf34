// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The words of joystick and macro files: one table, one row a word. Painter, menus, palette,
// aligner, checks and every list of words take theirs from here. Tools write words as the table
// spells them; files may hold them in any case.

#include "platform/core/base.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeph::language {

using Words = std::span<const QStringView>;

/// What a word names. A word may have several roles: THR is an axis and starts a statement.
enum Role : quint16 {
    NoRole = 0,
    SlashRole = 1 << 0,
    /// A button, trigger stage or hat position: what follows BTN.
    ControlRole = 1 << 1,
    /// A single axis.
    AxisRole = 1 << 2,
    /// A pair of axes under one name.
    AxisGroupRole = 1 << 3,
    /// An axis or pair that DISABLE may name: the stick and the microstick stay on.
    DisableableRole = 1 << 4,
    HatRole = 1 << 5,
    /// What a hat can be made.
    HatUseRole = 1 << 6,
    PovRole = 1 << 7,
    MouseAxisRole = 1 << 8,
    MouseButtonRole = 1 << 9,
    /// A key that has a name or stands for itself.
    KeyRole = 1 << 10,
    /// SHF, CTL, ALT and the words for one side of them: they belong to the key that follows.
    ModifierKeyRole = 1 << 11,
    /// Starts a statement when it is the first word of a line.
    StatementRole = 1 << 12,
    BracketRole = 1 << 13,
};

/// The colour that the painter gives a word; each but the last is a colour of the settings.
enum class ColourClass : quint8 { Plain, Btn, Slash, Raw, Miscellaneous, Rem, PureRed };

/// The levels of slash modifiers, outermost first. A toggle may hold a press and a release.
enum class SlashLevel : quint8 { None, Dogfight, S3, Toggle, Action, Repeat };
/// The number of levels, None apart.
constexpr size_t slashLevels = size_t(SlashLevel::Repeat);

/// The arguments in the brackets after a word, separated by commas.
enum class CallShape : quint8 {
    /// The word takes none.
    None,
    /// Nothing is known of them.
    Any,
    /// Keys or key codes: brackets among them are keys.
    Keys,
    Axis,
    AxisAndCurve,
    AxisAndTrim,
    AxisAndLock,
    TwoAxes,
    TwoPercents,
    Control,
    /// A place on the screen, which needs the screen's resolution.
    Screen,
};

struct Word {
    QStringView text = {};
    /// Role values, or-ed.
    quint16 roles = NoRole;
    ColourClass colour = ColourClass::Plain;
    CallShape arguments = CallShape::None;
    SlashLevel level = SlashLevel::None;
    /// Its entry in the Insert menu, mnemonic and the menu's own blanks included; empty without
    /// one.
    const char16_t *caption = u"";
    /// What the slash palette says of it.
    const char16_t *tip = u"";

    constexpr bool is(Role role) const { return (roles & role) != 0; }
    /// Whether the word has a meaning wherever it is met. RADIOSWITCH has one in USE alone.
    constexpr bool isKnown() const { return roles != NoRole || colour != ColourClass::Plain; }
};

namespace table {

using enum ColourClass;

constexpr Word slash(QStringView text, SlashLevel level, const char16_t *caption,
                     const char16_t *tip)
{
    return { text, SlashRole, Slash, CallShape::None, level, caption, tip };
}
constexpr Word control(QStringView text)
{
    return { text, ControlRole };
}
constexpr Word key(QStringView text)
{
    return { text, KeyRole };
}
constexpr Word modifierKey(QStringView text)
{
    return { text, ModifierKeyRole };
}
/// An option or a part of a USE statement, which stands alone.
constexpr Word option(QStringView text, ColourClass colour = Miscellaneous)
{
    return { text, NoRole, colour };
}
constexpr Word call(QStringView text, ColourClass colour, CallShape arguments = CallShape::Any)
{
    return { text, NoRole, colour, arguments };
}
constexpr Word axis(QStringView text, int further = NoRole)
{
    return { text, quint16(AxisRole | StatementRole | further), Miscellaneous };
}
constexpr Word misc(QStringView text, int roles, CallShape arguments = CallShape::None)
{
    return { text, quint16(roles), Miscellaneous, arguments };
}

// clang-format off
inline constexpr Word rows[] = {
    // What the Insert menu and the slash palette offer, in their order. The modifiers come first.
    slash(u"/U", SlashLevel::Dogfight, u"/&U dogfight switch is up", u"Dogfight switch up"),
    slash(u"/M", SlashLevel::Dogfight, u"/&M dogfight switch middle position", u"Dogfight switch in the middle"),
    slash(u"/D", SlashLevel::Dogfight, u"/&D dogfight switch is down", u"Dogfight switch down"),
    slash(u"/I", SlashLevel::S3, u"/&I  S3 is held in", u"S3 held in"),
    slash(u"/O", SlashLevel::S3, u"/&O S3 is out", u"S3 out"),
    slash(u"/P", SlashLevel::Action, u"/&P  press event", u"When the control is pressed"),
    slash(u"/R", SlashLevel::Action, u"/R  r&elease event", u"When the control is released"),
    slash(u"/T", SlashLevel::Toggle, u"/T  to&ggle modifier", u"One statement a press, in turn"),
    slash(u"/A", SlashLevel::Repeat, u"/&A  autorepeat the statement", u"Repeats while the control is held"),
    slash(u"/H", SlashLevel::Repeat, u"/H  hold dow&n", u"Holds the key as long as the control"),
    { u"DLY", NoRole, Raw, CallShape::Any, SlashLevel::None, u"D&LY delay statement", u"Waits so many milliseconds" },
    { u"RPT", NoRole, Raw, CallShape::Any, SlashLevel::None, u"RPT repeat &statement", u"Repeats what follows" },

    // Controls.
    control(u"S1"), control(u"S2"), control(u"S3"), control(u"S4"),
    control(u"TG1"), control(u"TG2"),
    control(u"T1"), control(u"T2"), control(u"T3"), control(u"T4"), control(u"T5"), control(u"T6"), control(u"T7"),
    control(u"T8"), control(u"T9"), control(u"T10"),
    control(u"H1U"), control(u"H1D"), control(u"H1L"), control(u"H1R"), control(u"H1M"), control(u"H1UL"),
    control(u"H1UR"), control(u"H1DL"), control(u"H1DR"),
    control(u"H2U"), control(u"H2D"), control(u"H2L"), control(u"H2R"), control(u"H2M"), control(u"H2UL"),
    control(u"H2UR"), control(u"H2DL"), control(u"H2DR"),
    control(u"H3U"), control(u"H3D"), control(u"H3L"), control(u"H3R"), control(u"H3M"), control(u"H3UL"),
    control(u"H3UR"), control(u"H3DL"), control(u"H3DR"),
    control(u"H4U"), control(u"H4D"), control(u"H4L"), control(u"H4R"), control(u"H4M"), control(u"H4UL"),
    control(u"H4UR"), control(u"H4DL"), control(u"H4DR"),
    { u"HAT1", HatRole }, { u"HAT2", HatRole }, { u"HAT3", HatRole }, { u"HAT4", HatRole },
    { u"RADIOSWITCH" },

    // Axes, the pairs of them, and what the mouse and the POV hat have.
    axis(u"JOYX"), axis(u"JOYY"), axis(u"THR", DisableableRole), axis(u"RDDR", DisableableRole),
    axis(u"LBRK", DisableableRole), axis(u"RBRK", DisableableRole), axis(u"MIX"), axis(u"MIY"),
    axis(u"ANT", DisableableRole), axis(u"RNG", DisableableRole),
    misc(u"JOYSTICK", AxisGroupRole), misc(u"ROTARIES", AxisGroupRole | DisableableRole),
    misc(u"TOEBRAKES", AxisGroupRole | DisableableRole), misc(u"MICROSTICK", AxisGroupRole),
    misc(u"MOUSE", HatUseRole, CallShape::Any),
    misc(u"MOUSEX", MouseAxisRole, CallShape::Any), misc(u"MOUSEY", MouseAxisRole, CallShape::Any),
    misc(u"MOUSEZ", MouseAxisRole, CallShape::Any),
    misc(u"MOUSE_LB", MouseButtonRole), misc(u"MOUSE_RB", MouseButtonRole), misc(u"MOUSE_MB", MouseButtonRole),
    misc(u"POV", HatUseRole), misc(u"ARROWKEYS", HatUseRole), misc(u"KEYPAD", HatUseRole),
    misc(u"POVU", PovRole), misc(u"POVD", PovRole), misc(u"POVL", PovRole), misc(u"POVR", PovRole),
    misc(u"POVUL", PovRole), misc(u"POVDL", PovRole), misc(u"POVUR", PovRole), misc(u"POVDR", PovRole),

    // What starts a statement, besides the axes. The last five are older than the Cougar.
    { u"BTN", StatementRole, Btn }, { u"DEF", StatementRole, Btn },
    misc(u"USE", StatementRole), misc(u"DISABLE", StatementRole),
    { u"CURVE", StatementRole, Raw, CallShape::AxisAndCurve }, misc(u"RATE", StatementRole, CallShape::Any),
    misc(u"SHIFTBTN", StatementRole, CallShape::Control), misc(u"THR_RANGE", StatementRole, CallShape::TwoPercents),
    misc(u"MDEF", StatementRole), { u"JSX", StatementRole }, { u"JSY", StatementRole }, { u"PORTB", StatementRole },
    { u"SWAPTG", StatementRole },
    option(u"Rem", Rem),

    // Words with brackets.
    call(u"DELAY", Raw), call(u"PULSE", Raw),
    call(u"USB", Raw, CallShape::Keys), call(u"KD", Raw, CallShape::Keys), call(u"KU", Raw, CallShape::Keys),
    call(u"MSX", Raw), call(u"MSY", Raw), call(u"MSZ", Raw),
    call(u"TRIM", Raw, CallShape::AxisAndTrim), call(u"HOLDTRIM", Raw, CallShape::Axis),
    call(u"LOCK", Raw, CallShape::AxisAndLock), call(u"UNLOCK", Raw, CallShape::Axis),
    call(u"SWAP", Raw, CallShape::TwoAxes), call(u"REVERSE", Raw, CallShape::Axis), call(u"FORWARD", Raw, CallShape::Axis),
    call(u"MOUSEXY", Raw, CallShape::Screen), call(u"MOUSEMOVE", Raw, CallShape::Screen),
    call(u"MOUSEROTATE", Raw, CallShape::Screen),
    call(u"HAT1_SENSITIVITY", Miscellaneous), call(u"HAT2_SENSITIVITY", Miscellaneous),
    call(u"HAT3_SENSITIVITY", Miscellaneous), call(u"HAT4_SENSITIVITY", Miscellaneous),
    call(u"T1_SENSITIVITY", Miscellaneous), call(u"SCREEN_RESOLUTION", Miscellaneous), call(u"HWSTARTUP", Miscellaneous),

    // Options and the rest.
    option(u"NULLCHR"), option(u"OR"), option(u"NOT"), option(u"AND"), option(u"MTYPE"), option(u"KEYBOARD"),
    option(u"AS"), option(u"ZEPH"), option(u"GRAPHIC"), option(u"README"), option(u"PROFILE"), option(u"REVERSE_LR"),
    option(u"REVERSE_UD"), option(u"REVERSE_DIR"), option(u"FORCED_CORNERS"), option(u"NOHOLD"),
    option(u"FORCE_MACROS"), option(u"NO_BUTTON"), option(u"ZERO_MOUSE"), option(u"CHORDED_FDFU"),
    option(u"WINDOW_STYLE"), option(u"ALL_DIRECTX_BUTTONS"), option(u"S3_LOCK"), option(u"S3_UNLOCK"),
    option(u"LASTVALUE"), option(u"AXES_CONFIG"), option(u"REVERSE_TOGGLES"), option(u"RESET_TOGGLES"),
    option(u"TO_CURRENT"), option(u"(AUTO)"), option(u"(CUSTOM)"),
    option(u"EMULATION_ON", Raw), option(u"EMULATION_OFF", Raw), option(u"AXIS_MODE_USER", Raw),
    option(u"AXIS_MODE_WINDOWS", Raw), option(u"CALIBRATION_AUTO", Raw), option(u"CALIBRATION_MANUAL", Raw),
    option(u"RUN_APP", PureRed), option(u"STICK_OFF", PureRed), option(u"EMPTY_BUFFERS", PureRed),
    { u"(", BracketRole, Raw }, { u")", BracketRole, Raw }, { u"<", BracketRole, Slash }, { u">", BracketRole, Slash },
    { u"{", BracketRole, Miscellaneous }, { u"}", BracketRole, Miscellaneous },

    // Keys.
    key(u"0"), key(u"1"), key(u"2"), key(u"3"), key(u"4"), key(u"5"), key(u"6"), key(u"7"), key(u"8"), key(u"9"),
    key(u"KP0"), key(u"KP1"), key(u"KP2"), key(u"KP3"), key(u"KP4"), key(u"KP5"), key(u"KP6"), key(u"KP7"),
    key(u"KP8"), key(u"KP9"),
    key(u"A"), key(u"B"), key(u"C"), key(u"D"), key(u"E"), key(u"F"), key(u"G"), key(u"H"), key(u"I"), key(u"J"),
    key(u"K"), key(u"L"), key(u"M"),
    key(u"N"), key(u"O"), key(u"P"), key(u"Q"), key(u"R"), key(u"S"), key(u"T"), key(u"U"), key(u"V"), key(u"W"),
    key(u"X"), key(u"Y"), key(u"Z"),
    key(u"`"), key(u"-"), key(u"="), key(u"\\"), key(u"["), key(u"]"), key(u";"), key(u"'"), key(u","), key(u"."),
    key(u"/"),
    key(u"ENT"), key(u"KPENT"), key(u"KP."), key(u"KP+"), key(u"KP-"), key(u"KP*"), key(u"KP/"),
    key(u"F1"), key(u"F2"), key(u"F3"), key(u"F4"), key(u"F5"), key(u"F6"), key(u"F7"), key(u"F8"), key(u"F9"),
    key(u"F10"), key(u"F11"), key(u"F12"),
    key(u"ESC"), key(u"INS"), key(u"HOME"), key(u"PGUP"), key(u"DEL"), key(u"END"), key(u"PGDN"),
    key(u"TAB"), key(u"CAPS"), key(u"SPC"), key(u"NUML"),
    key(u"UARROW"), key(u"DARROW"), key(u"LARROW"), key(u"RARROW"),
    key(u"SCRLCK"), key(u"BRK"), key(u"PRNTSCRN"), key(u"BSP"),
    key(u"~"), key(u"!"), key(u"@"), key(u"#"), key(u"$"), key(u"%"), key(u"&"), key(u"*"), key(u"_"), key(u"+"),
    key(u"|"), key(u":"), key(u"\""), key(u"?"),
    modifierKey(u"SHF"), modifierKey(u"CTL"), modifierKey(u"ALT"), modifierKey(u"LSHF"), modifierKey(u"RSHF"),
    modifierKey(u"LCTL"), modifierKey(u"RCTL"), modifierKey(u"LALT"), modifierKey(u"RALT"),
};
// clang-format on

} // namespace table

/// All rows; no word has two. What counts from the table (Item::reference) counts in this.
inline constexpr std::span<const Word> words = table::rows;

/// The words that the Insert menu and the slash palette offer; the slash modifiers come first, with
/// the same indices in all three spans.
inline constexpr std::span<const Word> insertWords = words.first(
    size_t(std::ranges::count_if(words, [](const Word &word) { return *word.caption; })));
inline constexpr std::span<const Word> slashModifiers = words.first(
    size_t(std::ranges::count_if(words, [](const Word &word) { return word.is(SlashRole); })));

template <Role role>
inline constexpr auto wordsWith = [] {
    constexpr auto has = [](const Word &word) {
        return word.is(role);
    };
    std::array<QStringView, size_t(std::ranges::count_if(words, has))> found;
    size_t at = 0;
    for (const Word &word : words) {
        if (has(word))
            found[at++] = word.text;
    }
    return found;
}();

/// The words of a role, in the table's order. A list in an order of its own is written out with the
/// literal below.
template <Role role> constexpr Words wordsOf()
{
    return wordsWith<role>;
}

/// Whether the table has the word, in this case.
constexpr bool isWordOfTable(const char16_t *text, size_t length)
{
    return std::ranges::any_of(words, [&](const Word &word) {
        return size_t(word.text.size()) == length
            && std::equal(text, text + length, word.text.utf16());
    });
}

/// A word of the table, or several with blanks among them: u"USE MDEF"_w. Anything else does not
/// compile, so that no list and no rule holds a word that the table lacks.
consteval QStringView operator""_w(const char16_t *text, size_t size)
{
    for (size_t at = 0; at < size;) {
        const size_t end = size_t(std::find(text + at, text + size, u' ') - text);
        if (end > at && !isWordOfTable(text + at, end - at))
            throw "not a word of the language";
        at = end + 1;
    }
    return QStringView(text, qsizetype(size));
}

/// The row of a word in any case; an empty row, which is not known, for any other word.
const Word &rowOf(QStringView word);
/// The same with the word's foldedHash() already at hand.
const Word &rowOf(QStringView word, size_t hash);
/// The row's index in words.
int indexOf(const Word &row);

/// The slash modifier at a 0-based position of a line: its index in slashModifiers, or -1.
int slashAt(QStringView line, qsizetype at);

/// The number of a logical flag: "X" and digits only, whatever the number. No value otherwise.
std::optional<int> flagNumber(QStringView word);

/// "DX" and a number, whatever the number.
bool isDirectXButton(QStringView word);

/// Each of these becomes "_" in a macro's name.
constexpr QStringView forbiddenMacroNameCharacters = u" <>{}()^,=";

// What numbers may be. Generators, their fields and the checks keep to the same limits; each range
// begins at 1 unless it says otherwise.
constexpr int lastFlag = 48;
constexpr int lastBandCount = 50;
constexpr int lastAxisType = 6;
constexpr int lastMouseType = 5;
constexpr int lastMouseRate = 127;
constexpr int lastDirectXAxis = 10;
constexpr int lastDirectXButton = 28;
/// From -32 on.
constexpr int lastCurve = 32;
/// From -127 on.
constexpr int lastTrim = 127;
/// From 0 on.
constexpr int lastPercent = 100;

} // namespace zeph::language
