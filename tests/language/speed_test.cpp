// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Any text of a megabyte is parsed and checked in under a second of the processor's time.

#include "language/checker.h"
#include "language/macro_graph.h"
#include "tests/support/cpu_time.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace zeph;
using namespace zeph::language;

namespace {

constexpr qsizetype megabyte = 1 << 20;

// The address sanitizer makes everything several times slower.
#ifdef __SANITIZE_ADDRESS__
constexpr double limit = 10;
#else
constexpr double limit = 1;
#endif

double secondsFor(const QString &joystick, const QString &macros)
{
    const double start = test::cpuSeconds();
    const FilePair pair = parsePair(joystick, macros);
    check(pair);
    compiledSize(pair);
    return test::cpuSeconds() - start;
}

QString filled(const QString &piece, qsizetype size)
{
    return piece.repeated(size / piece.size());
}

} // namespace

TEST(Speed, OneCharacterRepeated)
{
    for (char16_t c = u'\t'; c < 0x7F; ++c) {
        const bool isPlain = QChar(c).isLetterOrNumber() && c != u'a' && c != u'X' && c != u'1';
        if (c < u' ' && c != u'\n' && c != u'\t')
            continue;
        if (isPlain)
            continue;
        const QString text = filled(QString(QChar(c)), megabyte / 2);
        EXPECT_LT(secondsFor(u"BTN S1 "_s + text, u"a = "_s + text), limit) << int(c);
        EXPECT_LT(secondsFor(text, text), limit) << int(c);
        const QString whole = filled(QString(QChar(c)), megabyte);
        EXPECT_LT(secondsFor(u"BTN S1 "_s + whole, {}), limit) << int(c);
        EXPECT_LT(secondsFor({}, u"a = "_s + whole), limit) << int(c);
    }
}

TEST(Speed, OnePieceOfTheLanguageRepeated)
{
    const QStringList pieces{
        u"MOUSEXY ("_s,
        u"LOCK (THR, "_s,
        u"SWAP ("_s,
        u"KD("_s,
        u"KD( ) "_s,
        u"KU() "_s,
        u"( "_s,
        u" )"_s,
        u"( > "_s,
        u"{x ( > "_s,
        u"[a] "_s,
        u"]x["_s,
        u"/U /I "_s,
        u"/O /I "_s,
        u"BTN "_s,
        u"BTN S1 "_s,
        u"USE "_s,
        u"USE HAT1 AS "_s,
        u"DEF X1 zz "_s,
        u"THR 5 3 0) "_s,
        u"THR /U"_s,
        u"zz "_s,
        u"X99 "_s,
        u"\"a\" "_s,
        u"rem --\n"_s,
        u"a = (\n"_s,
        u"~ = (\n"_s,
        u"= "_s,
        u"DISABLE "_s,
        u"DLY(60) "_s,
        u"MOUSE\nXY (%"_s,
        u"THR 5 3 (0)\n"_s,
        u"CURVE /I ("_s,
        u"~BTN "_s,
        u"DISABLE THR 3 "_s,
        u"THR 5 3 0, "_s,
        u"MOUSEMOVE (5,%"_s,
        u"MOUSEMOVE (5 MOUSEXY ("_s,
    };
    for (const QString &piece : pieces) {
        const QString text = filled(piece, megabyte / 2);
        EXPECT_LT(secondsFor(u"BTN S1 "_s + text, u"a = "_s + text), limit) << piece.toStdString();
        EXPECT_LT(secondsFor(u"DEF X1 "_s + text, text), limit) << piece.toStdString();
        const QString whole = filled(piece, megabyte);
        EXPECT_LT(secondsFor(whole, {}), limit) << piece.toStdString();
        EXPECT_LT(secondsFor({}, u"a = "_s + whole), limit) << piece.toStdString();
    }
}

TEST(Speed, AHundredThousandSquareBrackets)
{
    for (const QChar bracket : { u'[', u']' }) {
        const QString line(100'000, bracket);
        EXPECT_LT(secondsFor(u"BTN S1 "_s + line, u"a = "_s + line), limit / 2);
        EXPECT_EQ(parsePair(u"BTN S1 "_s + line, {}).joystick.items.size(), 100'000);
        // A macro of nearly that name makes each of them worth a look.
        EXPECT_LT(secondsFor(u"BTN S1 "_s + line, line.first(50'000) + u"x = a"_s), limit / 2);
    }
}

TEST(Speed, CallsInsideEachOtherWithOnePercentSignInTheInnermost)
{
    const int depth = 110'000;
    const QString deep =
        u"BTN S1 "_s + u"MOUSEXY ("_s.repeated(depth) + u'%' + QString(depth, u')');
    EXPECT_LT(secondsFor(deep, {}), limit);
}

TEST(Speed, ClosingBracketsAmongKeysInsideManyGroups)
{
    const int depth = 100'000;
    const QString text = u"BTN S1 "_s + u"(a "_s.repeated(depth) + u"KD("_s
        + u" )"_s.repeated(4 * depth) + u" {x "_s + u"( > "_s.repeated(depth);
    EXPECT_LT(secondsFor(text, {}), limit);
}
