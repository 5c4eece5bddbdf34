// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/analysis/box_texts.h"

#include "tests/layouts/analysis/analysis_twin.h"
#include "tests/layouts/analysis/joystick_file_maker.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

const FileCaption caption{ u"C:\\Files\\Falcon 4.tmj"_s,
                           QDateTime(QDate(2024, 3, 7), QTime(15, 4, 59)) };

QStringList sheetOf(SheetKind kind, QStringView text)
{
    return AnalyseJoystickFile(kind, *AnalyseAndExtract(text), caption);
}

QString joystickBox(int box, QStringView text)
{
    return sheetOf(SheetKind::Joystick, text)[box];
}

QString throttleBox(int box, QStringView text)
{
    return sheetOf(SheetKind::Throttle, text)[box];
}

QStringList twinsTexts(const std::vector<std::string> &boxes)
{
    QStringList texts;
    for (const std::string &box : boxes) {
        texts.append(
            QString::fromLatin1(QByteArray::fromStdString(box)).replace(u"\r\n"_s, u"\n"_s));
    }
    return texts;
}

} // namespace

TEST(JoystickSheet, AFileWithoutStatementsLeavesTheHeadings)
{
    EXPECT_EQ(
        sheetOf(SheetKind::Joystick, u"Rem nothing"),
        (QStringList{ u"Hat 1"_s, u"Hat 2"_s, u"Hat 3"_s, u"Hat 4"_s, u"BTN S1"_s, u"BTN S2"_s,
                      u"BTN S3"_s, u"BTN S4"_s, u"Triggers"_s, u"JOYX"_s, u"JOYY"_s, u"Sim: "_s,
                      u"File: C:\\Files\\Falcon 4.tmj"_s, u"Date: 07 March 2024, 3:04 pm"_s,
                      u"Custom 1:"_s, u"Custom 2:"_s, u"Custom 3:"_s }));
}

TEST(JoystickSheet, TheTimeIsTheClocksOfTwelveHours)
{
    const auto dateBox = [](QTime time) {
        return *AnalyseTextbox(SheetKind::Joystick, 13, *AnalyseAndExtract(u"x"),
                               { {}, QDateTime(QDate(2024, 12, 31), time) });
    };
    EXPECT_EQ(dateBox(QTime(0, 5)), u"Date: 31 December 2024, 12:05 am");
    EXPECT_EQ(dateBox(QTime(12, 0)), u"Date: 31 December 2024, 12:00 pm");
}

TEST(JoystickSheet, AHatWithAUseShowsItAndNoDirections)
{
    EXPECT_EQ(joystickBox(1, u"BTN H2U a\nUSE HAT2 AS KEYPAD\nBTN H2D b"), u"Hat 2\n KEYPAD");
}

TEST(JoystickSheet, TheDirectionsHaveAnOrderOfTheirOwn)
{
    EXPECT_EQ(joystickBox(2,
                          u"BTN H3M 5\nBTN H3D 4\nBTN H3R 3\nBTN H3L 2\nBTN H3U 1\n"
                          "BTN H3DR 9\nBTN H3UR 8\nBTN H3DL 7\nBTN H3UL 6"),
              u"Hat 3\nU:    1\nL:    2\nR:    3\nD:    4\nM:    5\nUL:   6\nDL:   7\nUR:   8\n"
              "DR:   9");
}

TEST(JoystickSheet, ALaterLineOfAStatementKeepsItsIndent)
{
    EXPECT_EQ(joystickBox(0, u"BTN H1U /U Left\n/M Right"),
              u"Hat 1\nU:    /U Left\n        /M Right");
}

TEST(JoystickSheet, ADiagonalBeforeItsDirectionIsShownTwice)
{
    EXPECT_EQ(joystickBox(0, u"BTN H1UL a\nBTN H1U b"), u"Hat 1\nU:   L a\nUL:   a");
}

TEST(JoystickSheet, ALowerCaseStatementIsAlignedButNotFound)
{
    EXPECT_EQ(joystickBox(0, u"btn h1u /U a\n/M b"), u"Hat 1");
    EXPECT_EQ(AnalyseAndExtract(u"btn h1u /U a\n/M b")->aligned, u"btn h1u /U a\n        /M b\n");
    EXPECT_EQ(joystickBox(4, u"BTN S1 /U a\nbtn h1u  /M b"), u"BTN S1\n        /U a\nbtn h1u /M b");
}

TEST(JoystickSheet, ACommentLineIsDroppedAndACommentAfterAStatementStays)
{
    EXPECT_EQ(joystickBox(4, u"BTN S1 a Rem fire\nRem b\nc"), u"BTN S1\n        a Rem fire\nc");
}

TEST(JoystickSheet, LinesSwitchedOffAndDefLinesEndUpInTheStatementBefore)
{
    EXPECT_EQ(joystickBox(5, u"BTN S2 a\n~BTN S3 b\nDEFAULT c\nDEF X1 d"),
              u"BTN S2\n        a\n~BTN S3 b\nDEFAULT c");
}

TEST(JoystickSheet, ButtonsTriggersAndAxesHaveTheirBlanks)
{
    const QStringList texts = sheetOf(
        SheetKind::Joystick, u"BTN S3 a\nBTN S4 b\nBTN TG2 d\nBTN TG1 c\nJOYX 1\nJOYY 2 (3)\n");
    EXPECT_EQ(texts[6], u"BTN S3\n        a");
    EXPECT_EQ(texts[7], u"BTN S4\n        b");
    EXPECT_EQ(texts[8], u"Triggers\nTG1      c\nTG2      d");
    EXPECT_EQ(texts[9], u"JOYX\n       1");
    EXPECT_EQ(texts[10], u"JOYY\n      2 (3)");
}

TEST(JoystickSheet, OneBoxIsWhatTheWholeSheetHas)
{
    const auto file = AnalyseAndExtract(u"BTN S1 a\nUSE HAT2 AS POV\nBTN TG1 b\nJOYX 1");
    const QStringList texts = AnalyseJoystickFile(SheetKind::Joystick, *file, caption);
    for (int box = 0; box < 14; ++box) {
        EXPECT_EQ(AnalyseTextbox(SheetKind::Joystick, box, *file, caption), texts[box]) << box;
    }
}

TEST(JoystickSheet, ThePilotsBoxesAreNeverAnalysed)
{
    const auto file = AnalyseAndExtract(u"BTN S1 a");
    for (const int box : { -1, 14, 15, 16, 17 }) {
        EXPECT_EQ(AnalyseTextbox(SheetKind::Joystick, box, *file, caption), std::nullopt) << box;
    }
    EXPECT_EQ(analysedBoxCount(SheetKind::Joystick), 14);
}

TEST(JoystickSheet, ClearedBoxesKeepTheirCaptions)
{
    EXPECT_EQ(ClearAllTextboxes(SheetKind::Joystick),
              (QStringList{ {},
                            {},
                            {},
                            {},
                            {},
                            {},
                            {},
                            {},
                            {},
                            u"JoyX"_s,
                            u"JoyY"_s,
                            u"Sim:"_s,
                            u"File:"_s,
                            u"Date:"_s,
                            u"Custom 1:"_s,
                            u"Custom 2:"_s,
                            u"Custom 3:"_s }));
}

TEST(JoystickSheet, TheStatusBarFollowsTheAnalysis)
{
    EXPECT_EQ(extractionStatuses(),
              (QStringList{ u" Analysing joystick file ... please wait ...."_s,
                            u" Hang on - this could take time ..."_s }));
    EXPECT_EQ(
        analysisStatuses(SheetKind::Joystick),
        (QStringList{ u" Extracting hats ..."_s, u" Extracting hats ......"_s,
                      u" Extracting hats ........."_s, u" Extracting hats ............"_s,
                      u" Extracting buttons: ..."_s, u" Extracting buttons: ......"_s,
                      u" Extracting buttons: ..........."_s, u" All definitions extracted"_s }));
}

TEST(ThrottleSheet, AFileWithoutStatementsLeavesTheHeadings)
{
    EXPECT_EQ(sheetOf(SheetKind::Throttle, u"Rem nothing"),
              (QStringList{ u"BTN T1 "_s,
                            u"BTN T2 "_s,
                            u"BTN T3 "_s,
                            u"BTN T4 "_s,
                            u"BTN T5 "_s,
                            u"BTN T6 "_s,
                            u"BTN T7 "_s,
                            u"BTN T8 "_s,
                            u"BTN T9 "_s,
                            u"BTN T10"_s,
                            u"THR"_s,
                            u"RDDR"_s,
                            u"ANT"_s,
                            u"RNG"_s,
                            u"MIX"_s,
                            u"MIY"_s,
                            u"LBRK"_s,
                            u"RBRK"_s,
                            u"Sim: "_s,
                            u"File: C:\\Files\\Falcon 4.tmj"_s,
                            u"Date: 07 March 2024, 3:04 pm"_s,
                            u"Custom 1:"_s,
                            u"Custom 2:"_s,
                            u"Custom 3:"_s }));
}

TEST(ThrottleSheet, AMouseTypeShowsTheMouseButtonOnT1)
{
    const auto box = [](QStringView type) {
        return throttleBox(0, u"BTN T1 /U a\nUSE MTYPE A"_s.append(type));
    };
    const QString statement = u"BTN T1 \n        /U a"_s;
    EXPECT_EQ(box(u""), statement);
    EXPECT_EQ(box(u"0"), statement);
    EXPECT_EQ(box(u"1"), u"BTN T1 \n Left mouse button");
    EXPECT_EQ(box(u"2"), u"BTN T1 \n Right mouse button");
    EXPECT_EQ(box(u"3"), u"BTN T1 \n Left mouse button");
    EXPECT_EQ(box(u"4"), u"BTN T1 \n Right mouse button");
    EXPECT_EQ(box(u"5"), statement);
    EXPECT_EQ(box(u"6"), u"BTN T1 ");
    EXPECT_EQ(throttleBox(0, u"BTN T1 /U a"), statement);
}

TEST(ThrottleSheet, OnlyTheFirstTwoMouseTypesTakeT6)
{
    const auto box = [](QStringView type) {
        return throttleBox(5, u"BTN T6 a\nUSE MTYPE A"_s.append(type));
    };
    EXPECT_EQ(box(u"1"), u"BTN T6 \n Right mouse button");
    EXPECT_EQ(box(u"2"), u"BTN T6 \n Left mouse button");
    for (const QStringView type : { u"0", u"3", u"4", u"5", u"6" }) {
        EXPECT_EQ(box(type), u"BTN T6 \n        a") << type.toUtf8().data();
    }
}

TEST(ThrottleSheet, ARadioTextTakesFourButtons)
{
    const QStringList texts =
        sheetOf(SheetKind::Throttle, u"BTN T2 a\nBTN T6 b\nUSE RADIOSWITCH AS POV Rem x");
    EXPECT_EQ(texts[0], u"BTN T1 ");
    EXPECT_EQ(texts[1], u"BTN T2 \n POV Rem x");
    EXPECT_EQ(texts[4], u"BTN T5 \n POV Rem x");
    EXPECT_EQ(texts[5], u"BTN T6 \n        b");
    EXPECT_EQ(throttleBox(1, u"BTN T2 a"), u"BTN T2 \n        a");
}

TEST(ThrottleSheet, T1IsNotTakenForT10)
{
    EXPECT_EQ(throttleBox(0, u"BTN T10 a\nBTN T1 b"), u"BTN T1 \n        b");
    EXPECT_EQ(throttleBox(9, u"BTN T1 b\nBTN T10 a"), u"BTN T10\n         a");
}

TEST(ThrottleSheet, AStatementThatEndsAfterItsNameIsMissed)
{
    EXPECT_EQ(throttleBox(0, u"BTN T1\n/U a"), u"BTN T1 ");
    EXPECT_EQ(throttleBox(9, u"BTN T10\n/U a"), u"BTN T10\n        \n/U a");
}

TEST(ThrottleSheet, AxesAreFoundByTheStartOfTheirLine)
{
    EXPECT_EQ(throttleBox(10, u"THR_RANGE (1 2)\nTHR 5"), u"THR\n    _RANGE (1 2)");
    EXPECT_EQ(throttleBox(11, u"RDDR 5"), u"RDDR\n      5");
    EXPECT_EQ(throttleBox(17, u"LBRK 1\nRBRK 5\na"), u"RBRK\n      5\na");
}

TEST(ThrottleSheet, HatUsesAreNotLookedAt)
{
    EXPECT_EQ(sheetOf(SheetKind::Throttle, u"USE HAT1 AS POV\nBTN T7 a"),
              sheetOf(SheetKind::Throttle, u"BTN T7 a"));
}

TEST(ThrottleSheet, ClearedBoxesKeepTheirCaptions)
{
    const QStringList texts = ClearAllTextboxes(SheetKind::Throttle);
    ASSERT_EQ(texts.size(), 24);
    EXPECT_EQ(texts.first(18).join(QString()), u"");
    EXPECT_EQ(texts.sliced(18),
              (QStringList{ u"Sim:"_s, u"File:"_s, u"Date:"_s, u"Custom 1:"_s, u"Custom 2:"_s,
                            u"Custom 3:"_s }));
    EXPECT_EQ(analysedBoxCount(SheetKind::Throttle), 21);
}

TEST(ThrottleSheet, TheStatusBarFollowsTheAnalysis)
{
    EXPECT_EQ(analysisStatuses(SheetKind::Throttle),
              (QStringList{ u" Extracting statements ..."_s, u" All definitions extracted"_s }));
}

TEST(CustomSheet, IsNotAnalysed)
{
    EXPECT_TRUE(sheetOf(SheetKind::Custom, u"BTN S1 a").isEmpty());
    EXPECT_EQ(analysedBoxCount(SheetKind::Custom), 0);
    EXPECT_TRUE(ClearAllTextboxes(SheetKind::Custom).isEmpty());
    EXPECT_TRUE(analysisStatuses(SheetKind::Custom).isEmpty());
}

TEST(Sheets, AgreeWithTheSlowAnalysisOnFiveThousandFiles)
{
    test::JoystickFileMaker maker(14);
    const std::string path = caption.path.toStdString();
    qsizetype lines = 0;
    for (int i = 0; i < 5000; ++i) {
        const std::string bytes = maker.next();
        const QString text = QString::fromLatin1(QByteArray::fromStdString(bytes));
        if (text.isEmpty()) {
            continue;
        }
        test::AnalysisTwin twin(bytes, path, "07 March 2024, 3:04 pm");
        const auto file = AnalyseAndExtract(text);
        ASSERT_EQ(file->lines, twinsTexts({ twin.kept() }).first()) << bytes;
        const QStringList joystick = AnalyseJoystickFile(SheetKind::Joystick, *file, caption);
        ASSERT_EQ(joystick, twinsTexts(twin.joystickSheet())) << bytes;
        const QStringList throttle = AnalyseJoystickFile(SheetKind::Throttle, *file, caption);
        ASSERT_EQ(throttle, twinsTexts(twin.throttleSheet())) << bytes;
        lines += (joystick + throttle).join(QString()).count(u'\n');
    }
    // The files do give the boxes something to say.
    EXPECT_GT(lines, 20000);
}
