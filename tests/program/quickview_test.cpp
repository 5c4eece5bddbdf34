// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Quick View in the installed program, with a virtual controller in the pilot's hands.

#include "platform/input/system_joystick.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QRegularExpression>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

const QString liveFile = u"Files/live.tmj"_s;
const QString modeFile = u"HOTAS.ini"_s;
const QString openQuickView = u"trigger mnuAppsQuickView"_s;
const QString manualMode = u"QuickView/mnuOptionsDisableJoystick"_s;
/// The last label of each hat: a hat at rest presses its middle.
const QStringList atRest = { u"Label1_28"_s, u"Label1_37"_s, u"Label1_46"_s, u"Label1_55"_s };

/// S1 does something else in each of the six combinations, S4 in each of the three modes; T1 does
/// the same in all.
const QByteArray liveStatements = "USE MDEF live\r\n"
                                  "BTN S1 /U /I upIn\r\n"
                                  "          /O upOut\r\n"
                                  "       /M /I middleIn\r\n"
                                  "          /O middleOut\r\n"
                                  "       /D /I downIn\r\n"
                                  "          /O downOut\r\n"
                                  "BTN S4 /U first\r\n"
                                  "       /M second\r\n"
                                  "       /D third\r\n"
                                  "BTN T1 always\r\n";

QString liveLabel(int number)
{
    return u"Label1_%1"_s.arg(number);
}

/// The step that waits until exactly these labels are bold, given by their numbers in order.
QString boldStep(const QList<int> &numbers)
{
    QString step = u"bold"_s;
    for (const int number : numbers) {
        step += u' ' + liveLabel(number);
    }
    return step;
}

const QString boldAtRest = u"bold "_s + atRest.join(u' ');

/// The steps that press something, wait for exactly its label beside those of the hats at rest, and
/// let go.
QStringList pressAndLetGo(const QString &press, const QString &release, int number, int restOf = 0)
{
    QList<int> numbers{ 28, 37, 46, 55 };
    numbers.removeOne(restOf);
    numbers.append(number);
    std::sort(numbers.begin(), numbers.end());
    return { press, boldStep(numbers), release, boldAtRest };
}

/// The looks at the controller that each change of the bold labels took.
QList<int> looksOf(const QStringList &notes)
{
    static const QRegularExpression pattern(u"^bold after (\\d+) ticks"_s);
    QList<int> counts;
    for (const QString &line : notes) {
        if (const auto match = pattern.match(line); match.hasMatch()) {
            counts.append(match.captured(1).toInt());
        }
    }
    return counts;
}

/// The program with a file of its own, on a Cougar that has its buttons in Windows mode.
struct ProgramQuickView : testing::Test {
    Program program;
    int id = 0;

    ProgramQuickView()
    {
        // Controllers that are really there come first.
        SystemJoystick real;
        while (real.read(id).result == Joystick::answered) {
            ++id;
        }
        settle();
        program.write(liveFile, liveStatements);
        reportButtons(0);
    }
    void settle(const QByteArray &more = {})
    {
        program.settle("[Joystick Analyser]\r\nJoyIDnumber=" + QByteArray::number(id) + "\r\n"
                       + more);
    }
    void reportButtons(int mode) const
    {
        program.write(modeFile,
                      "[TMMODE]\r\nStatus=OKAY\r\nAxes=1\r\nButtons=" + QByteArray::number(mode)
                          + "\r\n");
    }
    QString buttonsMode() const { return program.setting(u"TMMODE"_s, u"Buttons"_s, modeFile); }
    /// Runs a script in the program with that file open, from the moment it can be used.
    QStringList run(const QStringList &script)
    {
        return program.run(QStringList{ u"text JoystickText always"_s } + script
                               + QStringList{ u"kill"_s },
                           { program.file(liveFile) });
    }
    /// The same with a controller plugged in and Quick View open on it.
    QStringList runLive(const QStringList &script)
    {
        return run(QStringList{ u"stick in"_s, openQuickView, u"window Quick View"_s, boldAtRest }
                   + script);
    }
    /// Types a statement for a control that has none; gives the milliseconds until it is shown.
    qint64 shownAfterTyping()
    {
        const QStringList notes =
            run({ u"stick in"_s, u"stick down 24"_s, openQuickView, u"window Quick View"_s,
                  u"text Label1_14 upOut"_s, u"usable Label1_15 0"_s,
                  u"type JoystickText BTN S2 typed\\n"_s, u"time typed"_s,
                  u"text Label1_15 typed"_s, u"time shown"_s, u"usable Label1_15 1"_s });
        const auto timeOf = [&notes](const QString &name) {
            return notes.filter(name + u" at "_s).value(0).section(u' ', 2).toLongLong();
        };
        return timeOf(u"shown"_s) - timeOf(u"typed"_s);
    }
};

struct LiveButton {
    int button;
    int label;
};

// TG1, S2, S3, S4, S1, TG2, T1, T3, T2, T4 to T10.
constexpr LiveButton liveButtons[] = {
    { 0, 18 }, { 1, 15 }, { 2, 16 }, { 3, 17 }, { 4, 14 }, { 5, 19 }, { 18, 0 }, { 19, 2 },
    { 20, 1 }, { 21, 3 }, { 22, 4 }, { 23, 5 }, { 24, 6 }, { 25, 7 }, { 26, 8 }, { 27, 9 },
};

/// Clockwise from up, as the labels of each hat are numbered.
const QStringList hatDirections = { u"U"_s, u"UR"_s, u"R"_s, u"DR"_s,
                                    u"D"_s, u"DL"_s, u"L"_s, u"UL"_s };

} // namespace

TEST_F(ProgramQuickView, EachButtonMakesItsLabelBoldAndNoOtherWithinTwoTicks)
{
    QStringList script;
    for (const auto &[button, number] : liveButtons) {
        script +=
            pressAndLetGo(u"stick down %1"_s.arg(button), u"stick up %1"_s.arg(button), number);
    }
    const QList<int> counts = looksOf(runLive(script));
    EXPECT_EQ(counts.size(), 1 + 2 * std::ssize(liveButtons));
    for (const int count : counts.mid(1)) {
        EXPECT_LE(count, 2);
    }
}

TEST_F(ProgramQuickView, EachDirectionOfTheFourHatsMakesItsLabelBoldWithinTwoTicks)
{
    constexpr int firstBit = 6;
    constexpr int hatRows = 9;
    QStringList script;
    for (int direction = 0; direction < hatDirections.size(); ++direction) {
        script += pressAndLetGo(u"stick hat "_s + hatDirections[direction], u"stick hat M"_s,
                                20 + direction, 28);
        for (const int hat : { 2, 3, 4 }) {
            // Up, right, down and left are a button each, a diagonal is two. Hat 3's up and left
            // is not among them: it asks for hat 2, see below.
            if (hat == 3 && hatDirections[direction] == u"UL") {
                continue;
            }
            const int bit = firstBit + (hat - 2) * 4;
            QString bits = QString::number(bit + direction / 2);
            if (direction % 2 == 1) {
                bits += u' ' + QString::number(bit + (direction + 1) / 2 % 4);
            }
            const int middle = 28 + (hat - 1) * hatRows;
            script += pressAndLetGo(u"stick down "_s + bits, u"stick up "_s + bits,
                                    middle - 8 + direction, middle);
        }
    }
    const QList<int> counts = looksOf(runLive(script));
    EXPECT_EQ(counts.size(), 1 + 2 * (8 * 4 - 1));
    for (const int count : counts.mid(1)) {
        EXPECT_LE(count, 2);
    }
}

TEST_F(ProgramQuickView, Hat3LeftAsksWhetherHat2IsUp)
{
    runLive({ u"stick down 6 13"_s, boldStep({ 28, 29, 45, 55 }), u"stick up 6"_s,
              boldStep({ 28, 37, 44, 55 }), u"stick down 10"_s, u"ticks 2"_s,
              boldStep({ 28, 37, 44, 55 }) });
}

TEST_F(ProgramQuickView, TheDogfightSwitchAndS3ChangeTheColumn)
{
    const QStringList notes =
        runLive({ u"text Label1_14 middleOut"_s, u"text Label1_17 second"_s,
                  u"text Label1_0 always"_s, u"stick down 2"_s, u"text Label1_14 middleIn"_s,
                  u"stick down 24"_s, u"text Label1_14 upIn"_s, u"text Label1_17 first"_s,
                  u"stick up 2"_s, u"text Label1_14 upOut"_s, u"stick up 24"_s, u"stick down 25"_s,
                  u"text Label1_14 downOut"_s, u"text Label1_17 third"_s, u"stick down 2"_s,
                  u"text Label1_14 downIn"_s, u"text Label1_0 always"_s });
    // The texts as a whole: the step asks for a part.
    QStringList shown;
    for (const QString &line : notes) {
        if (line.startsWith(u"Label1_14=")) {
            shown.append(line.section(u'=', 1));
        }
    }
    EXPECT_EQ(shown,
              (QStringList{ u"middleOut"_s, u"middleIn"_s, u"upIn"_s, u"upOut"_s, u"downOut"_s,
                            u"downIn"_s }));
}

TEST_F(ProgramQuickView, APulledOutControllerLeavesTheChoiceToThePilot)
{
    const QString lost = u" ID %1. Switching to manual mode"_s.arg(id + 1);
    runLive({ u"stick down 2 4 24"_s, u"text Label1_14 upIn"_s, u"stick out"_s,
              u"text Panel_1 No joystick detected on"_s + lost, u"bold none"_s,
              u"text Label1_14 upOut"_s, u"ticked "_s + manualMode + u" 1"_s,
              // Put back, it is not looked at before the pilot says so.
              u"stick in"_s, u"stick down 4 25"_s, u"pause 400"_s, u"bold none"_s,
              u"text Label1_14 upOut"_s, u"trigger "_s + manualMode,
              boldStep({ 7, 14, 28, 37, 46, 55 }), u"text Label1_14 downOut"_s,
              u"ticked "_s + manualMode + u" 0"_s });
}

TEST_F(ProgramQuickView, AControllerThatNeverWasThereIsTold)
{
    run({ openQuickView, u"window Quick View"_s,
          u"text Panel_1 I'm not detecting the Joystick on ID %1. Switching to manual mode"_s.arg(
              id + 1),
          u"text Label1_14 upOut"_s, u"bold none"_s, u"ticked "_s + manualMode + u" 1"_s });
}

TEST_F(ProgramQuickView, AClickChoosesTheColumnInManualMode)
{
    settle("[QuickView]\r\nDisableJoystick=1\r\n");
    run({ openQuickView, u"window Quick View"_s, u"text Label1_14 upOut"_s, u"click Label3_3"_s,
          u"text Label1_14 upIn"_s, u"click Label3_1"_s, u"text Label1_14 middleIn"_s,
          u"click Label3_4"_s, u"text Label1_14 middleOut"_s, u"click Label3_2"_s,
          u"text Label1_14 downOut"_s, u"text Label1_17 third"_s, u"click Label3_0"_s,
          u"text Label1_14 upOut"_s });
}

TEST_F(ProgramQuickView, InWindowsModeAlreadyNothingIsAsked)
{
    // A tool that was asked would report a failure.
    program.setEnvironment(u"ZEPH_STANDIN_BUTTONS"_s, u"-1"_s);
    runLive({ u"stick down 18"_s, boldStep({ 0, 28, 37, 46, 55 }) });
    EXPECT_EQ(buttonsMode(), u"0");
}

TEST_F(ProgramQuickView, FromProgrammedModeTheCougarIsPutIntoWindowsMode)
{
    reportButtons(1);
    runLive({ u"stick down 18"_s, boldStep({ 0, 28, 37, 46, 55 }),
              u"ticked "_s + manualMode + u" 0"_s });
    EXPECT_EQ(buttonsMode(), u"0");
    EXPECT_EQ(program.setting(u"TMMODE"_s, u"Axes"_s, modeFile), u"1") << "the axes stay";
}

TEST_F(ProgramQuickView, ARequestThatFailsIsToldAndLeavesTheChoiceToThePilot)
{
    reportButtons(1);
    program.setEnvironment(u"ZEPH_STANDIN_BUTTONS"_s, u"-1"_s);
    const QStringList notes =
        run({ u"stick in"_s, u"stick down 18 24"_s, openQuickView,
              u"box Your Cougar needs a slap"_s, u"press OK"_s, u"window Quick View"_s,
              u"text Label1_14 upOut"_s, u"pause 400"_s, u"bold none"_s,
              u"ticked "_s + manualMode + u" 1"_s, u"click Label3_3"_s, u"text Label1_14 upIn"_s });
    const std::vector<std::string> told = lines(notes);
    EXPECT_THAT(told,
                Contains(HasSubstr(
                    "|There was a problem trying to put the controllers into Windows mode. The "
                    "controllers signalled back to Zeph that the request to change modes generated "
                    "an error. You may want to close down the Quick View, and try to put the "
                    "Cougar into Windows mode manually. You can do this either from the Status "
                    "bar, or from the Editor's Cougar menu, or from the CCP.")));
    EXPECT_THAT(told,
                Contains(HasSubstr(
                    "\\nYou can still use Quick View though, it's just that you can't select the "
                    "different /U, /M, /D, /I, /O modes by changing the position of the Dogfight "
                    "switch on your throttle and button S3 on your joystick. So you'll need to "
                    "manually select the different /U, /M, /D, /I, /O modes by just clicking on "
                    "the relevant coloured U, M, D, I, O boxes. And don't even think about blaming "
                    "me for this. I'm just the messenger!|OK|OK")));
}

TEST_F(ProgramQuickView, AToolThatDoesNotAnswerIsToldLikeOneThatFails)
{
    reportButtons(1);
    program.silenceTools();
    run({ u"stick in"_s, u"stick down 18 24"_s, openQuickView, u"box Your Cougar needs a slap"_s,
          u"press OK"_s, u"text Label1_14 upOut"_s, u"bold none"_s,
          u"ticked "_s + manualMode + u" 1"_s });
}

TEST_F(ProgramQuickView, WithoutTheToolTheModeIsNotChanged)
{
    reportButtons(1);
    ASSERT_TRUE(QFile::remove(program.file(u"HOTASConfig.exe"_s)));
    run({ u"stick in"_s, openQuickView, u"box Your Cougar needs a slap"_s, u"press OK"_s,
          u"ticked "_s + manualMode + u" 1"_s });
    EXPECT_EQ(buttonsMode(), u"1");
}

TEST_F(ProgramQuickView, ADisabledJoystickIsNeitherAskedNorLookedAt)
{
    settle("[QuickView]\r\nDisableJoystick=1\r\n");
    reportButtons(1);
    run({ u"stick in"_s, u"stick down 18 25"_s, openQuickView, u"window Quick View"_s,
          u"text Label1_14 upOut"_s, u"pause 400"_s, u"bold none"_s,
          u"ticked "_s + manualMode + u" 1"_s });
    EXPECT_EQ(buttonsMode(), u"1");
}

TEST_F(ProgramQuickView, EnablingTheJoystickAsksForWindowsMode)
{
    settle("[QuickView]\r\nDisableJoystick=1\r\n");
    reportButtons(1);
    run({ u"stick in"_s, u"stick down 18 25"_s, openQuickView, u"window Quick View"_s,
          u"text Label1_14 upOut"_s, u"trigger "_s + manualMode, boldStep({ 0, 7, 28, 37, 46, 55 }),
          u"text Label1_14 downOut"_s });
    EXPECT_EQ(buttonsMode(), u"0");
}

TEST_F(ProgramQuickView, ThePictureFollowsTypingAfterHalfASecond)
{
    const qint64 ms = shownAfterTyping();
    EXPECT_GE(ms, 450);
    EXPECT_LE(ms, 1500) << "with what else the machine does";
}

TEST_F(ProgramQuickView, ThePictureFollowsTypingInManualModeToo)
{
    settle("[QuickView]\r\nDisableJoystick=1\r\n");
    const qint64 ms = shownAfterTyping();
    EXPECT_GE(ms, 450);
    EXPECT_LE(ms, 1500) << "with what else the machine does";
}

TEST_F(ProgramQuickView, ThePictureFollowsLoadingAndTheTabs)
{
    program.write(u"Files/other.tmj"_s, "BTN S1 another\r\nBTN T1 always\r\n");
    runLive({ u"text Label1_14 middleOut"_s, u"trigger mnuFileJoystickLoad"_s,
              u"file Files/other.tmj"_s, u"text Label1_14 another"_s, u"usable Label1_17 0"_s,
              u"tab TabStrip1 1"_s, u"pause 300"_s, u"text Label1_14 another"_s,
              u"tab TabStrip1 0"_s, u"pause 300"_s, u"text Label1_14 another"_s });
}

TEST_F(ProgramQuickView, SavingShowsWhatWasTypedAtOnce)
{
    const QStringList notes = runLive({ u"type JoystickText BTN S2 typed\\n"_s, u"note Label1_15"_s,
                                        u"trigger mnuFileSave"_s, u"done"_s, u"note Label1_15"_s });
    EXPECT_TRUE(program.read(liveFile).startsWith("BTN S2 typed\r\n"));
    EXPECT_EQ(notes.filter(u"Label1_15="_s),
              (QStringList{ u"Label1_15="_s, u"Label1_15=typed"_s }));
}

TEST_F(ProgramQuickView, TwoClicksOnALabelGoToItsStatementAndTheCaretMarksIt)
{
    const QStringList notes = runLive(
        { u"line JoystickText 1"_s, u"face Label1_17"_s, u"doubleclick Label1_17"_s,
          u"caret JoystickText BTN S4 /U first"_s, u"focus JoystickText"_s, u"face Label1_17"_s,
          u"doubleclick Label1_0"_s, u"caret JoystickText BTN T1 always"_s, u"focus JoystickText"_s,
          u"face Label1_17"_s,
          // The last line of S4's statement.
          u"line JoystickText 10"_s, u"face Label1_17"_s });
    EXPECT_THAT(lines(notes), Contains("JoystickText line 8: BTN S4 /U first"));
    const QStringList faces = notes.filter(u"face Label1_17"_s);
    ASSERT_EQ(faces.size(), 4);
    EXPECT_NE(faces[1], faces[0]) << "the caret is in the statement";
    EXPECT_EQ(faces[2], faces[0]) << "the caret has left";
    EXPECT_EQ(faces[3], faces[1]) << "and is back";
}

TEST_F(ProgramQuickView, EverythingGoesByKeysAlone)
{
    const QStringList notes =
        run({ u"stick in"_s, u"stroke Shift+F4"_s, u"window Quick View"_s, boldAtRest,
              // Manual mode, and the six positions.
              u"stroke Ctrl+J"_s, u"ticked "_s + manualMode + u" 1"_s, u"bold none"_s,
              u"stroke Ctrl+1"_s, u"text Label1_14 upOut"_s, u"stroke Ctrl+4"_s,
              u"text Label1_14 upIn"_s, u"stroke Ctrl+2"_s, u"text Label1_14 middleIn"_s,
              u"stroke Ctrl+3"_s, u"text Label1_14 downIn"_s, u"stroke Ctrl+5"_s,
              u"text Label1_14 downOut"_s,
              // Past the other boxes to the labels that have a text, to a statement and back.
              u"focus Label3_0"_s, u"stroke Tab"_s, u"focus Label3_1"_s, u"stroke Tab"_s,
              u"focus Label3_2"_s, u"stroke Tab"_s, u"focus Label3_3"_s, u"stroke Tab"_s,
              u"focus Label3_4"_s, u"stroke Tab"_s, u"focus Label1_0"_s, u"stroke Down"_s,
              u"focus Label1_14"_s, u"stroke Down"_s, u"focus Label1_17"_s, u"stroke Return"_s,
              u"focus JoystickText"_s, u"caret JoystickText BTN S4 /U first"_s,
              u"stroke Shift+F4"_s, u"focus Label1_17"_s, u"stroke Up"_s, u"focus Label1_14"_s,
              u"stroke Ctrl+G"_s, u"focus JoystickText"_s,
              u"caret JoystickText BTN S1 /U /I upIn"_s, u"stroke Shift+F4"_s, u"focus Label1_14"_s,
              // Live again, and away.
              u"stroke Ctrl+J"_s, boldAtRest, u"stroke Ctrl+W"_s, u"gone Quick View"_s });
}

TEST_F(ProgramQuickView, TheProgramEndsInOrderWithItOpen)
{
    const auto process =
        program.start({ u"text JoystickText always"_s, u"stick in"_s, openQuickView,
                        u"window Quick View"_s, boldAtRest, u"close"_s },
                      u"end.log"_s, { program.file(liveFile) });
    ASSERT_TRUE(process->waitForFinished(30000));
    EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process->exitCode(), 0);
}

TEST_F(ProgramQuickView, AnOpenQuickViewCostsNearlyNothing)
{
    constexpr int allowedMs = 100; // 1 % of ten seconds
    const QStringList notes = runLive({ u"pause 1000"_s, u"idle 10000"_s });
    const QString idle = notes.filter(u"idle 10000: "_s).value(0);
    ASSERT_FALSE(idle.isEmpty());
    const double used = idle.section(u' ', 2, 2).toDouble();
    RecordProperty("idle_ms", int(used));
    EXPECT_LT(used, allowedMs) << "milliseconds of processor time in ten seconds";
}
