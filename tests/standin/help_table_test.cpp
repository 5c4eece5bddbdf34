// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The help has a table of what the compiler checks and what it lets pass. Each of its rows has
// examples of both here, which are compiled.

#include "compiler.h"

#include "platform/core/file_io.h"
#include "platform/core/profile_file.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

using namespace zeph;
using namespace zeph::standin;

namespace {

struct Example {
    QByteArray joystick;
    /// 0 for a file that passes.
    int code = 0;
    /// Taken as the file of the same name; none without text.
    QByteArray macros = {};
};

struct Row {
    QString part;
    QList<Example> checked;
    QList<Example> passed;
};

QList<Row> rowsOfNamesAndBodies()
{
    return {
        { u"controls, axes, flags"_s,
          { { "BTN S9 a", 1002 },
            { "BTN S1 a BTN T11 b", 1002 },
            { "DEF T1 S1", 1004 },
            { "USE S9 AS DX1", 1002 },
            { "DISABLE THRT", 1003 },
            { "SHIFTBTN (S9)", 1002 },
            { "BTN S1 LOCK (THRT, 50%)", 1003 },
            { "BTN X49 a", 1004 } },
          { { "BTN S1 a\nBTN S1 b" }, { "BTN S1 a" } } },
        { u"keys and macros"_s,
          { { "BTN S1 Fire", 1013, "Fire = Fire" } },
          { { "BTN S1 Fier", 0, "Fire = a" }, { "BTN S1 KD(a)" }, { "BTN S1 USB(DZZ)" } } },
        { u"brackets"_s,
          { { "BTN S1 (a", 1005 },
            { "BTN S1 <a", 1005 },
            { "BTN S1 a}", 1005 },
            { "BTN S1 KD(a /R b", 1005 },
            { "BTN S1 KU(a DLY(60)", 1005 },
            { "BTN S1 USB(D04", 1005 } },
          { { "BTN S1 a )" }, { "BTN S1 {, anything , else}" } } },
        { u"slash modifiers"_s,
          { { "BTN S1 /O a /I b", 1011 } },
          { { "BTN S1 /D a /M b /U c" }, { "BTN S1 /P /R a" } } },
        { u"memory"_s, {}, { { QByteArray("BTN S1 a\n").repeated(100'000) } } },
    };
}

QList<Row> rowsOfSettings()
{
    return {
        { u"digital axes"_s,
          { { "THR 7 a b c", 1006 },
            { "THR 5 3 (0 50 100) a b c", 1007 },
            { "THR 5 51 (0 100) a", 1007 },
            { "THR 5 3 (0 67 33 100) a b c", 1008 },
            { "ANT 1 5 a b c", 1009 } },
          { { "THR 3 a" }, { "RNG 4 99999 a b c" }, { "BTN S1 a THR 7 a b" } } },
        { u"values"_s,
          { { "USE CURVE (THR, 33)", 1010 },
            { "BTN S1 TRIM (THR, 128)", 1010 },
            { "THR_RANGE (90%, 10%)", 1014 },
            { "USE HAT1 AS MOUSE (128)", 1010 },
            { "USE MICROSTICK AS MOUSE (12, 11)", 1010 },
            { "USE S1 AS DX29", 1015 },
            { "USE AXES_CONFIG (1, JOYX), (2, JOYY), (11, THR)", 1016 },
            { "USE MTYPE A6", 1022 } },
          { { "BTN S1 DLY(99999) RATE (-1) RPT(0) MSX(999)" },
            { "USE HAT1_SENSITIVITY (999)" },
            { "USE SCREEN_RESOLUTION (10,10)\nBTN S1 MOUSEXY (UL, 999, 999)" } } },
        { u"USE forms"_s,
          { { "USE HAT1 AS KEYS", 1020 },
            { "USE JOYX AS MOUSE", 1019 },
            { "USE AXES_CONFIG (1, JOYX)", 1016 },
            { "BTN S1 MOUSEXY (UL, 10, 20%)", 1021 } },
          { { "USE SOMETHING NEW" },
            { "USE HAT1 AS POV - ANYTHING" },
            { "USE RATE (5)\nUSE RATE (6)" },
            { "BTN S1 MOUSEXY (UL, 10%, 20%)" } } },
        { u"files"_s,
          { { "USE MDEF gone", 1012 },
            { "BTN S1 a", 1024,
              QByteArray("\xFF\xFE"
                         "a\0",
                         4) } },
          { { "USE PROFILE gone.tmc (AUTO)" }, { "USE ZEPH README gone.txt" } } },
    };
}

// The first cells of the help's table, without marks.
QStringList partsInHelp()
{
    const auto page =
        readWholeFile(QStringLiteral(ZEPH_SOURCE_DIR "/data/Help/thrustmaster-tools.html"));
    if (!page)
        return {};
    QString text = QString::fromUtf8(*page);
    text = text.mid(text.indexOf(u"<a name=\"checks\">"));
    text.truncate(text.indexOf(u"</table>"));
    static const QRegularExpression firstCell(u"<tr><td>(.*?)</td>"_s);
    static const QRegularExpression mark(u"<[^>]*>"_s);
    QStringList parts;
    for (const QRegularExpressionMatch &match : firstCell.globalMatch(text))
        parts.append(match.captured(1).remove(mark));
    return parts;
}

void expectVerdict(const QString &part, const Example &example)
{
    const test::TempFolder folder;
    if (!example.macros.isEmpty())
        folder.write(u"a.tmm"_s, example.macros);
    const QString hotas = folder.path() + u'/';
    folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nMDEFrequired=1\r\n");
    runCompiler({ u"/ZEPH"_s, u"/CO"_s, folder.write(u"a.tmj"_s, example.joystick) }, hotas, {});
    const QString told =
        ProfileFile(hotas + u"HOTAS.ini"_s).text(u"Compiler"_s, u"ErrorCode"_s, u"(absent)"_s);
    const QString expected = example.code ? u"ERROR %1"_s.arg(example.code) : QString();
    EXPECT_EQ(told.section(u':', 0, 0), expected)
        << part.toStdString() << ": " << example.joystick.left(80).toStdString();
}

} // namespace

TEST(HelpTable, SaysWhatIsCheckedAndWhatPasses)
{
    QStringList parts = partsInHelp();
    EXPECT_GE(parts.size(), 5);
    for (const Row &row : rowsOfNamesAndBodies() + rowsOfSettings()) {
        EXPECT_TRUE(parts.removeOne(row.part)) << row.part.toStdString();
        for (const Example &example : row.checked + row.passed)
            expectVerdict(row.part, example);
    }
    EXPECT_EQ(parts, QStringList()) << "rows without examples";
}
