// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/checker.h"

#include <gmock/gmock.h>

#include <QStringList>

#include <random>

using namespace zeph;
using namespace zeph::language;

namespace {

void expectSound(const Source &source)
{
    for (const Item &item : source.items) {
        ASSERT_GE(item.place.position, 0);
        ASSERT_GE(item.place.length, 1);
        ASSERT_LE(item.place.end(), source.text.size());
        ASSERT_LE(item.endItem, source.items.size());
        ASSERT_LT(item.parent, int(&item - source.items.constData()));
    }
    for (const Branch &branch : source.branches) {
        ASSERT_LE(branch.items.first, branch.items.end);
        ASSERT_LE(branch.items.end, source.items.size());
        ASSERT_LE(branch.place.end(), source.text.size());
    }
}

void expectSound(const FilePair &pair)
{
    expectSound(pair.joystick);
    expectSound(pair.macro);
    for (const JoystickStatement &statement : pair.joystick.statements) {
        const QStringView before = QStringView(pair.joystick.text).first(statement.place.position);
        ASSERT_EQ(statement.place.line, before.count(u'\n') + 1);
        ASSERT_GT(statement.place.length, 0);
    }
    for (const Finding &finding : check(pair)) {
        const QString &text = finding.file == File::Macro ? pair.macro.text : pair.joystick.text;
        ASSERT_LE(finding.place.end(), text.size());
        ASSERT_EQ(finding.place.line,
                  QStringView(text).first(finding.place.position).count(u'\n') + 1);
    }
}

} // namespace

TEST(Tolerance, NothingAtAllIsAFile)
{
    const FilePair pair = parsePair({}, {});
    EXPECT_TRUE(pair.joystick.statements.isEmpty());
    EXPECT_TRUE(check(pair).isEmpty());
}

TEST(Tolerance, EveryCharacterOnItsOwn)
{
    for (char16_t c = 0; c < 0x300; ++c) {
        const QString text(QChar{ c });
        expectSound(parsePair(text, text));
        expectSound(parsePair(u"BTN "_s + text, u"a="_s + text));
        expectSound(parsePair(u"USE "_s + text, u"rem "_s + text));
    }
}

TEST(Tolerance, AnySequenceOfTheLanguagesPieces)
{
    const QStringList pieces = {
        u"BTN "_s,      u"S1 "_s,     u"USE "_s,     u"MDEF "_s,   u"("_s,   u")"_s,
        u"<"_s,         u">"_s,       u"{"_s,        u"}"_s,       u"/I "_s, u"/O "_s,
        u"/U"_s,        u"\n"_s,      u"Rem "_s,     u"~"_s,       u"= "_s,  u"KD("_s,
        u"X49 "_s,      u"DEF "_s,    u"THR "_s,     u"5 3 (0 "_s, u", "_s,  u"CURVE ("_s,
        u"CURVE /I "_s, u"MOUSE ("_s, u"HAT1 AS "_s, u"["_s,       u"] "_s,  u"AXES_CONFIG (1, "_s,
        u"-40) "_s,     u"a = a\n"_s, u"rem --\n"_s
    };
    std::mt19937 random(20240314);
    std::uniform_int_distribution<int> pick(0, int(pieces.size()) - 1);
    for (int round = 0; round < 3000; ++round) {
        QString joystick;
        QString macro;
        for (int piece = 0; piece < 25; ++piece) {
            joystick += pieces[pick(random)];
            macro += pieces[pick(random)];
        }
        expectSound(parsePair(joystick, macro));
        if (HasFatalFailure())
            FAIL() << joystick.toStdString() << "\n--\n" << macro.toStdString();
    }
}

// A time that grows with the square of the depth would run into the test's limit.
TEST(Tolerance, DeepCallsAreCheckedInOnePass)
{
    const int depth = 200'000;
    for (const QString &call :
         { u"LOCK (THR, "_s, u"SWAP ("_s, u"MOUSEXY (%"_s, u"MOUSEMOVE (%, 0%, "_s }) {
        const QString deep = u"BTN S1 "_s + call.repeated(depth) + QString(depth, u')');
        const FilePair pair = parsePair(deep, {});
        EXPECT_TRUE(check(pair).isEmpty()) << call.toStdString();
        EXPECT_TRUE(pair.joystick.items.constFirst().closed);
    }
}

TEST(Tolerance, DeepNestingNeedsNoStack)
{
    const QString deep = u"BTN S1 "_s + QString(300'000, u'{') + QString(300'000, u'}');
    const FilePair pair = parsePair(deep, u"a = "_s + QString(300'000, u'('));
    expectSound(pair.joystick);
    EXPECT_EQ(pair.joystick.items.size(), 300'000);
    EXPECT_TRUE(pair.joystick.strayBrackets.isEmpty());
    EXPECT_EQ(pair.macro.strayBrackets.size(), 1);
}
