// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/free_flags.h"

#include "platform/core/text_search.h"

#include <gtest/gtest.h>

#include <QList>

#include <random>

using namespace zeph;

namespace flag_tests {

namespace {

using Flags = QList<int>;

// The numbers of the flags that are used.
Flags used(QStringView text)
{
    Flags numbers;
    const auto free = freeFlags(text);
    for (size_t at = 0; at < free.size(); ++at) {
        if (!free[at])
            numbers.append(int(at) + 1);
    }
    return numbers;
}

// The same by the steps of the window's rule, one after another: comments are taken out as long as
// one is found, then each flag is searched for in both forms.
Flags usedBySearching(QString text)
{
    for (qsizetype rem; (rem = findText(text, u"Rem ", 0, SearchPlain)) >= 0;) {
        const qsizetype end = text.indexOf(u'\n', rem);
        text.remove(rem, (end < 0 ? text.size() : end) - rem);
    }
    Flags numbers;
    for (int flag = 1; flag <= 48; ++flag) {
        const QString number = QString::number(flag);
        if (findText(text, u" X"_s + number + u' ', 0, SearchPlain) >= 0
            || findText(text, u"(X"_s + number + u')', 0, SearchPlain) >= 0)
            numbers.append(flag);
    }
    return numbers;
}

} // namespace

TEST(FreeFlags, AnEmptyFileLeavesAllFree)
{
    EXPECT_EQ(used(u""), Flags());
    EXPECT_EQ(used(u" \n\t\n  "), Flags());
}

TEST(FreeFlags, AFlagBetweenBlanksIsUsed)
{
    EXPECT_EQ(used(u"DEF X1 S1\nBTN X48 a"), (Flags{ 1, 48 }));
    EXPECT_EQ(used(u"def x7 s1"), Flags{ 7 });
    EXPECT_EQ(used(u"DEF X2 X3 AND X4 OR X5 "), (Flags{ 2, 3, 4, 5 }));
}

TEST(FreeFlags, AFlagAloneInBracketsIsUsed)
{
    EXPECT_EQ(used(u"(X12)"), Flags{ 12 });
    EXPECT_EQ(used(u"NOT(x9)AND(X10)"), (Flags{ 9, 10 }));
}

TEST(FreeFlags, X12InBracketsIsNoUseOfX1)
{
    EXPECT_EQ(used(u"DEF X30 (X12) "), (Flags{ 12, 30 }));
    EXPECT_EQ(used(u" X12 "), Flags{ 12 });
}

TEST(FreeFlags, AFlagInACommentAloneIsFree)
{
    EXPECT_EQ(used(u"Rem X1 X2 \nDEF X3 S1 REM X4 \nBTN X5 a rem (X6)"), (Flags{ 3, 5 }));
    EXPECT_EQ(used(u"DEF X3 X4 Rem without a blank X4 would end the line"), (Flags{ 3, 4 }));
}

TEST(FreeFlags, ACommentBeginsInsideALongerWordToo)
{
    EXPECT_EQ(used(u"BTN S1 Harem X1 "), Flags());
    EXPECT_EQ(used(u"BTN S1 Rem\nDEF X2 S1"), Flags{ 2 });
}

TEST(FreeFlags, AFlagIsNotFoundAtALineEndOrAfterOtherSigns)
{
    for (const QStringView text :
         { u"BTN X1\n"_s, u"BTN X1"_s, u"X1 a"_s, u"\nX1 a"_s, u" /X1 "_s, u" =X1 "_s, u"\tX1 "_s,
           u" X1\t"_s, u"(X1 )"_s, u"( X1)"_s, u"(X1 OR S1)"_s, u" X1)"_s })
        EXPECT_EQ(used(text), Flags()) << text.toString().toStdString();
}

TEST(FreeFlags, OtherNumbersAndWordsAreNoFlags)
{
    for (const QStringView text :
         { u" X0 "_s, u" X49 "_s, u" X100 "_s, u" X01 "_s, u" X "_s, u" X1a "_s, u" DX1 "_s,
           u" X-1 "_s, u" X99999999999999 "_s, u"()"_s, u"(X)"_s })
        EXPECT_EQ(used(text), Flags()) << text.toString().toStdString();
}

TEST(FreeFlags, EveryFlagIsTold)
{
    for (int flag = 1; flag <= 48; ++flag) {
        EXPECT_EQ(used(u"BTN X%1 a"_s.arg(flag)), Flags{ flag });
        EXPECT_EQ(used(u"BTN S1 (X%1)"_s.arg(flag)), Flags{ flag });
    }
}

TEST(FreeFlags, AgreesWithTheSearchesOnTextsOfAllKinds)
{
    const QList<QString> pieces{ u" "_s,  u"X"_s,    u"x"_s,   u"1"_s,  u"2"_s,   u"48"_s,
                                 u"("_s,  u")"_s,    u"0"_s,   u"\n"_s, u" X3"_s, u"(x4"_s,
                                 u"\t"_s, u"Rem "_s, u"rem"_s, u"a"_s };
    std::mt19937 random(7);
    qsizetype found = 0;
    for (int round = 0; round < 3000; ++round) {
        QString text;
        for (int piece = 0; piece < 60; ++piece)
            text += pieces[qsizetype(random() % size_t(pieces.size()))];
        ASSERT_EQ(used(text), usedBySearching(text)) << text.toStdString();
        found += used(text).size();
    }
    EXPECT_GT(found, 1000);
}

} // namespace flag_tests
