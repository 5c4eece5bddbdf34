// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/checker.h"

#include "language/reporter.h"
#include "language/scan.h"
#include "language/use_forms.h"
#include "language/words.h"

namespace zeph::language {

namespace {

// Mistakes that the bodies of either file can have.
void checkBodies(Reporter &reporter)
{
    const Source &source = reporter.source();
    for (const StrayBracket &bracket : source.strayBrackets) {
        const QString message = bracket.opening ? u"The bracket %1 is not closed"_s
                                                : u"The bracket %1 was never opened"_s;
        reporter.report(StrayBracketCode, bracket.place, message.arg(source.at(bracket.place)));
    }
    for (const Place &place : source.lateS3)
        reporter.report(InAfterOut, place, u"/I must come before /O"_s);
    for (const Item &item : source.items) {
        if (item.kind == ItemKind::Flag && !isFlag(source.at(item)))
            reporter.report(UnknownFlag, item.place,
                            u"There is no logical flag %1"_s.arg(source.at(item)));
    }
    checkCalls(reporter);
    checkDisables(reporter);
}

// What may follow BTN besides the controls: names of sticks older than the Cougar.
bool isOlderName(QStringView name)
{
    return name.startsWith(u"PORTB"_w, Qt::CaseInsensitive) || sameWord(name, u"JSX"_w)
        || sameWord(name, u"JSY"_w) || sameWord(name, u"SWAPTG"_w);
}

void checkButton(Reporter &reporter, const JoystickStatement &statement)
{
    const QStringView name = reporter.source().at(statement.subject);
    if (name.isEmpty())
        reporter.report(UnknownControl, statement.keyword, u"BTN needs a control"_s);
    else if (!rowOf(name).is(ControlRole) && !isOlderName(name))
        reporter.report(UnknownControl, statement.subject, u"There is no control %1"_s.arg(name));
}

void checkFlagSubject(Reporter &reporter, const JoystickStatement &statement)
{
    const QStringView name = reporter.source().at(statement.subject);
    if (name.isEmpty())
        reporter.report(UnknownFlag, statement.keyword, u"DEF needs a logical flag"_s);
    else if (!isFlag(name))
        reporter.report(UnknownFlag, statement.subject, u"There is no logical flag %1"_s.arg(name));
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// Whether the word is the control's name with another number: T11 for T1, H5U for H1U.
bool differsInNumber(QStringView word, QStringView control)
{
    // Most words end here, and a file may hold many.
    if (word[0].toUpper() != control[0])
        return false;
    const auto from = std::ranges::find_if(control, isDigit);
    const auto to = std::find_if_not(from, control.end(), isDigit);
    const QStringView before = control.first(from - control.begin());
    const QStringView after = control.sliced(to - control.begin());
    const qsizetype digits = word.size() - before.size() - after.size();
    return digits > 0 && (digits == 1 || after.isEmpty())
        && word.startsWith(before, Qt::CaseInsensitive) && word.endsWith(after, Qt::CaseInsensitive)
        && wholeNumber(word.sliced(before.size(), digits));
}

bool looksLikeControl(QStringView word)
{
    return std::ranges::any_of(wordsOf<ControlRole>(), [word](QStringView control) {
        return differsInNumber(word, control);
    });
}

void checkDefinition(Reporter &reporter, const JoystickStatement &statement)
{
    checkFlagSubject(reporter, statement);
    const Source &source = reporter.source();
    for (int index = statement.body.items.first; index < statement.body.items.end; ++index) {
        const Item &item = source.items[index];
        if (item.kind == ItemKind::Unknown && looksLikeControl(source.at(item)))
            reporter.report(UnknownControl, item.place,
                            u"There is no control %1"_s.arg(source.at(item)));
    }
}

// In "CURVE /I (THR, 4)" the arguments follow the modifiers, so they are groups and no call.
void checkCurveStatement(Reporter &reporter, const JoystickStatement &statement)
{
    const Source &source = reporter.source();
    for (int index = statement.body.items.first; index < statement.body.items.end; ++index) {
        const Item &item = source.items[index];
        if (item.kind == ItemKind::Group && item.closed && source.at(item).startsWith(u'('))
            checkCurve(reporter, argumentsOf(source, item));
    }
}

// Only a statement of its own is certain to name an axis: in a button's body it may be a macro.
void checkDisable(Reporter &reporter, const JoystickStatement &statement)
{
    const Source &source = reporter.source();
    const int index = statement.body.items.first + 1;
    if (index >= statement.body.items.end)
        return;
    const Item &item = source.items[index];
    if (item.kind == ItemKind::Unknown)
        reporter.report(UnknownAxis, item.place,
                        u"DISABLE needs an axis, and %1 is none"_s.arg(source.at(item)));
}

using StatementCheck = void (*)(Reporter &, const JoystickStatement &);

struct StatementRule {
    StatementKind kind;
    StatementCheck check;
};

constexpr StatementRule rules[] = {
    { StatementKind::Button, checkButton },
    { StatementKind::FlagButton, checkFlagSubject },
    { StatementKind::FlagDefinition, checkDefinition },
    { StatementKind::Axis, checkDigitalAxis },
    { StatementKind::Curve, checkCurveStatement },
    { StatementKind::Disable, checkDisable },
    { StatementKind::Use, checkUse },
};

bool tellsScreen(const JoystickFile &joystick)
{
    return std::ranges::any_of(joystick.statements, [](const JoystickStatement &statement) {
        return statement.useForm >= 0
            && useForms()[size_t(statement.useForm)].head == u"SCREEN_RESOLUTION"_w;
    });
}

struct ScreenArguments {
    QStringView word;
    /// The arguments from first up to, not including, end are pixels or percentages of the screen.
    int first;
    int end;
};

constexpr ScreenArguments screenArguments[] = {
    { u"MOUSEXY"_w, 1, 3 },
    { u"MOUSEMOVE"_w, 0, 2 },
    { u"MOUSEROTATE"_w, 1, 4 },
};
static_assert(std::ranges::count(words, CallShape::Screen, &Word::arguments)
              == std::ssize(screenArguments));

// Nought is the same place in pixels and in percent.
bool isPixels(QStringView text)
{
    const bool isWord = wordEnd(text, 0) == text.size();
    return isWord && !text.endsWith(u'%') && decimalNumber(text).value_or(0) != 0;
}

bool hasPixels(const Source &source, const Item &call)
{
    if (!call.closed)
        return false;
    const QStringView word = words[size_t(call.reference)].text;
    const ScreenArguments row = *std::ranges::find(screenArguments, word, &ScreenArguments::word);
    const Arguments arguments = argumentsOf(source, call);
    const auto end = std::min(row.end, int(arguments.size()));
    return row.first < end
        && std::any_of(arguments.begin() + row.first, arguments.begin() + end,
                       [](const Argument &argument) { return isPixels(argument.text); });
}

// Positions in pixels need USE SCREEN_RESOLUTION; percentages do not.
void checkScreen(Reporter &reporter)
{
    const Source &source = reporter.source();
    const QStringView text(source.text);
    qsizetype percent = -1;
    for (const Item &item : source.items) {
        const bool isScreen = item.kind == ItemKind::Call
            && words[size_t(item.reference)].arguments == CallShape::Screen;
        if (!isScreen)
            continue;
        // Calls may hold each other: going on from the last sign found reads the text once.
        if (percent < item.place.position) {
            const qsizetype found = text.indexOf(u'%', item.place.position);
            percent = found < 0 ? text.size() : found;
        }
        if (percent >= item.place.end() || hasPixels(source, item)) {
            reporter.report(NoScreenResolution, item.place,
                            u"There is no USE SCREEN_RESOLUTION statement"_s);
            return;
        }
    }
}

} // namespace

QList<Finding> check(const FilePair &pair)
{
    QList<Finding> findings;
    Reporter joystick(pair.joystick, File::Joystick, findings);
    checkBodies(joystick);
    for (const JoystickStatement &statement : pair.joystick.statements) {
        for (const StatementRule &rule : rules) {
            if (rule.kind == statement.kind)
                rule.check(joystick, statement);
        }
    }
    Reporter macro(pair.macro, File::Macro, findings);
    checkBodies(macro);
    if (!tellsScreen(pair.joystick)) {
        checkScreen(joystick);
        checkScreen(macro);
    }
    checkMacroCycles(macro, pair.macro);
    std::stable_sort(findings.begin(), findings.end(), [](const Finding &a, const Finding &b) {
        return std::pair(a.file, a.place.position) < std::pair(b.file, b.place.position);
    });
    return findings;
}

Finding missingMacroFile(const MacroReference &reference)
{
    return { NoMacroFile, u"The macro file %1 was not found"_s.arg(reference.name), File::Joystick,
             reference.place };
}

Finding unreadableMacroFile(const QString &path, const QString &reason, const Place &place)
{
    return { UnreadableMacroFile, u"The macro file %1 cannot be read: %2"_s.arg(path, reason),
             File::Joystick, place };
}

} // namespace zeph::language
