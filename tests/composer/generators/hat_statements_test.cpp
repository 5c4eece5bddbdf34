// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/hat_statements.h"

#include "compilation.h"
#include "generator_rows.h"

using namespace zeph;

namespace hat_tests {

namespace {

constexpr UseOption ud = UseOption::ReverseUd;
constexpr UseOption lr = UseOption::ReverseLr;
constexpr UseOption corners = UseOption::ForcedCorners;
constexpr UseOption noHold = UseOption::NoHold;
constexpr UseOption kp5 = UseOption::Kp5;
constexpr UseOptions all = ud | lr | corners | noHold | kp5;

const QString wrongRate =
    u"Oh no! You've made a boo boo.: When assigning a hat to control the mouse, the rate value "
    u"must be from 1 to 127. "
    "The value you've entered is invalid, and the statement will not compile or download, and that "
    "would just be a "
    "crying shame basically, after all the hard work you've put into this file."_s;
const QString missing =
    u"Missing some text buddy: You have left out one of the required parameters I need to create the statement."_s;

struct Row {
    HatFields fields;
    QString expected;
};

const Row rows[] = {
    // The rate.
    { { u"HAT1"_s, u"MOUSE"_s, u"20"_s }, u"USE HAT1 AS MOUSE (20)"_s },
    { { u"HAT1"_s, u"MOUSE"_s, u"1"_s }, u"USE HAT1 AS MOUSE (1)"_s },
    { { u"HAT1"_s, u"MOUSE"_s, u"127"_s }, u"USE HAT1 AS MOUSE (127)"_s },
    { { u"HAT1"_s, u"MOUSE"_s, u"128"_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u"0"_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u"-1"_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u"40000"_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u"99999999999"_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u"fast"_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u" "_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u"0.5"_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u"0.6"_s }, u"USE HAT1 AS MOUSE (0.6)"_s },
    { { u"HAT1"_s, u"MOUSE"_s, u"127.4"_s }, u"USE HAT1 AS MOUSE (127.4)"_s },
    { { u"HAT1"_s, u"MOUSE"_s, u"127.5"_s }, wrongRate },
    { { u"HAT1"_s, u"MOUSE"_s, u" 64"_s }, u"USE HAT1 AS MOUSE ( 64)"_s },
    { { u"HAT1"_s, u"MOUSE"_s, u""_s }, u"USE HAT1 AS MOUSE ()"_s },
    { { u"RADIOSWITCH"_s, u"MOUSE"_s, u"5"_s }, u"USE RADIOSWITCH AS MOUSE (5)"_s },
    // The rate counts for the mouse alone.
    { { u"HAT2"_s, u"POV"_s, u"20"_s }, u"USE HAT2 AS POV"_s },
    { { u"HAT2"_s, u"POV"_s, u"999"_s }, u"USE HAT2 AS POV"_s },
    { { u"HAT3"_s, u"ARROWKEYS"_s, u"0"_s }, u"USE HAT3 AS ARROWKEYS"_s },
    { { u"HAT4"_s, u"KEYPAD"_s, u"x"_s }, u"USE HAT4 AS KEYPAD"_s },
    // Names.
    { { u"RADIOSWITCH"_s, u"POV"_s }, u"USE RADIOSWITCH AS POV"_s },
    { { u"RADIOSWITCH"_s, u"ARROWKEYS"_s }, u"USE RADIOSWITCH AS ARROWKEYS"_s },
    { { u""_s, u"POV"_s }, missing },
    { { u"HAT1"_s, u""_s }, missing },
    // One option.
    { { u"HAT1"_s, u"POV"_s, {}, ud }, u"USE HAT1 AS POV - REVERSE_UD"_s },
    { { u"HAT1"_s, u"POV"_s, {}, lr }, u"USE HAT1 AS POV - REVERSE_LR"_s },
    { { u"HAT1"_s, u"KEYPAD"_s, {}, corners }, u"USE HAT1 AS KEYPAD - FORCED_CORNERS"_s },
    { { u"HAT1"_s, u"KEYPAD"_s, {}, noHold }, u"USE HAT1 AS KEYPAD - NOHOLD"_s },
    { { u"HAT1"_s, u"KEYPAD"_s, {}, kp5 }, u"USE HAT1 AS KEYPAD - KP5"_s },
    { { u"HAT1"_s, u"ARROWKEYS"_s, {}, noHold }, u"USE HAT1 AS ARROWKEYS - NOHOLD"_s },
    { { u"HAT1"_s, u"MOUSE"_s, u"9"_s, ud }, u"USE HAT1 AS MOUSE (9) - REVERSE_UD"_s },
    { { u"HAT1"_s, u"MOUSE"_s, u""_s, lr }, u"USE HAT1 AS MOUSE () - REVERSE_LR"_s },
    // Several, in the page's order.
    { { u"HAT1"_s, u"ARROWKEYS"_s, {}, ud | lr | noHold },
      u"USE HAT1 AS ARROWKEYS - REVERSE_UD, REVERSE_LR, NOHOLD"_s },
    { { u"HAT1"_s, u"KEYPAD"_s, {}, kp5 | corners },
      u"USE HAT1 AS KEYPAD - FORCED_CORNERS, KP5"_s },
    { { u"HAT1"_s, u"KEYPAD"_s, {}, kp5 | noHold | lr },
      u"USE HAT1 AS KEYPAD - REVERSE_LR, NOHOLD, KP5"_s },
    { { u"HAT1"_s, u"KEYPAD"_s, {}, all },
      u"USE HAT1 AS KEYPAD - REVERSE_UD, REVERSE_LR, FORCED_CORNERS, NOHOLD, KP5"_s },
    // Those that the role does not take.
    { { u"HAT1"_s, u"MOUSE"_s, u"9"_s, all }, u"USE HAT1 AS MOUSE (9) - REVERSE_UD, REVERSE_LR"_s },
    { { u"HAT1"_s, u"POV"_s, {}, all }, u"USE HAT1 AS POV - REVERSE_UD, REVERSE_LR"_s },
    { { u"HAT1"_s, u"ARROWKEYS"_s, {}, all },
      u"USE HAT1 AS ARROWKEYS - REVERSE_UD, REVERSE_LR, NOHOLD"_s },
    { { u"RADIOSWITCH"_s, u"KEYPAD"_s, {}, all },
      u"USE RADIOSWITCH AS KEYPAD - REVERSE_UD, REVERSE_LR, NOHOLD, KP5"_s },
    { { u"RADIOSWITCH"_s, u"KEYPAD"_s, {}, corners }, u"USE RADIOSWITCH AS KEYPAD"_s },
    { { u"HAT1"_s, u"POV"_s, {}, kp5 }, u"USE HAT1 AS POV"_s },
};

// Every option alone and with every other.
QList<UseOptions> optionSets()
{
    QList<UseOptions> sets;
    constexpr UseOption options[] = { ud, lr, corners, noHold, kp5 };
    for (int bits = 0; bits < 1 << std::size(options); ++bits) {
        UseOptions set;
        for (size_t at = 0; at < std::size(options); ++at)
            set.setFlag(options[at], (bits >> at & 1) != 0);
        sets.append(set);
    }
    return sets;
}

} // namespace

TEST(HatStatement, EachRowGivesItsTextOrRefusal)
{
    for (const Row &row : rows)
        EXPECT_EQ(toldBy(hatStatement(row.fields)), row.expected);
}

TEST(HatStatement, StartsALine)
{
    EXPECT_TRUE(hatStatement({ u"HAT1"_s, u"POV"_s })->startsLine);
    EXPECT_TRUE(forcedCorners(u"HAT1"_s)->startsLine);
}

TEST(HatStatement, ARateOf127IsAcceptedAnd128And0AreRefused)
{
    EXPECT_TRUE(hatStatement({ u"HAT1"_s, u"MOUSE"_s, u"127"_s }));
    EXPECT_FALSE(hatStatement({ u"HAT1"_s, u"MOUSE"_s, u"128"_s }));
    EXPECT_FALSE(hatStatement({ u"HAT1"_s, u"MOUSE"_s, u"0"_s }));
}

TEST(HatStatement, AnEmptyRateGivesEmptyBrackets)
{
    EXPECT_EQ(toldBy(hatStatement({ u"HAT1"_s, u"MOUSE"_s, u""_s })), u"USE HAT1 AS MOUSE ()");
}

TEST(HatStatement, NoTicksGiveNoTail)
{
    EXPECT_EQ(toldBy(hatStatement({ u"HAT4"_s, u"KEYPAD"_s })), u"USE HAT4 AS KEYPAD");
    EXPECT_EQ(optionTail({}), u"");
}

TEST(HatPage, TheRateIsEnabledForTheMouseAlone)
{
    EXPECT_TRUE(takesRate(u"MOUSE"));
    for (const QStringView role : { u"POV"_s, u"ARROWKEYS"_s, u"KEYPAD"_s })
        EXPECT_FALSE(takesRate(role));
}

TEST(HatPage, TheRoleSaysWhichOptionsAreEnabled)
{
    const UseOptions reversals = ud | lr;
    for (const QString &hat : { u"HAT1"_s, u"HAT2"_s, u"HAT3"_s, u"HAT4"_s }) {
        EXPECT_EQ(hatOptions(hat, u"MOUSE"), reversals);
        EXPECT_EQ(hatOptions(hat, u"POV"), reversals);
        EXPECT_EQ(hatOptions(hat, u"ARROWKEYS"), reversals | noHold);
        EXPECT_EQ(hatOptions(hat, u"KEYPAD"), all);
    }
    EXPECT_EQ(hatOptions(u"RADIOSWITCH", u"MOUSE"), reversals);
    EXPECT_EQ(hatOptions(u"RADIOSWITCH", u"POV"), reversals);
    EXPECT_EQ(hatOptions(u"RADIOSWITCH", u"ARROWKEYS"), reversals | noHold);
    EXPECT_EQ(hatOptions(u"RADIOSWITCH", u"KEYPAD"), reversals | noHold | kp5);
}

TEST(HatPage, TheBoxesHaveTheirCaptionsAndPages)
{
    const QStringList captions{ u"REVERSE_UD"_s, u"FORCED_CORNERS"_s, u"KP5"_s,
                                u"REVERSE_LR"_s, u"REVERSE_LR"_s,     u"REVERSE_UD"_s,
                                u"REVERSE_UD"_s, u"REVERSE_LR"_s,     u"REVERSE_DIR"_s,
                                u"NOHOLD"_s,     u"NO_BUTTON"_s };
    const QString pages = u"HHHHTTAAAHA"_s;
    ASSERT_EQ(std::size(checkHatUse), size_t(captions.size()));
    for (qsizetype at = 0; at < captions.size(); ++at) {
        const OptionBox &box = checkHatUse[at];
        EXPECT_EQ(wordOf(box.option), captions[at]);
        EXPECT_EQ(u"HTA"_s[int(box.page)], pages[at]) << at;
    }
}

TEST(ForcedCorners, EveryHatHasThem)
{
    EXPECT_EQ(toldBy(forcedCorners(u"HAT1"_s)), u"USE HAT1 FORCED_CORNERS");
    EXPECT_EQ(toldBy(forcedCorners(u"HAT4"_s)), u"USE HAT4 FORCED_CORNERS");
    EXPECT_EQ(toldBy(forcedCorners({})), missing);
    EXPECT_EQ(hatsWithCorners.size(), 4U);
    test::Compilation compilation;
    for (const QStringView hat : hatsWithCorners) {
        const QString text = forcedCorners(hat.toString())->text();
        compilation.add(text);
        EXPECT_EQ(readForcedCorners(text), hat.toString());
        EXPECT_FALSE(readHatStatement(text));
    }
    EXPECT_EQ(compilation.verdict(), "");
}

TEST(ForcedCorners, IsReadInAnyCaseAndFromNothingElse)
{
    EXPECT_EQ(readForcedCorners(u"  use  hat2\tforced_corners Rem both"), u"HAT2"_s);
    for (const QStringView text :
         { u"USE HAT5 FORCED_CORNERS"_s, u"USE RADIOSWITCH FORCED_CORNERS"_s, u"USE HAT1"_s,
           u"USE HAT1 FORCED_CORNERS KP5"_s, u""_s, u"USE HAT1 AS KEYPAD - FORCED_CORNERS"_s })
        EXPECT_FALSE(readForcedCorners(text)) << text.toString().toStdString();
}

TEST(HatStatement, EveryCombinationCompilesAndIsReadBack)
{
    const QStringList rates{
        u""_s, u"1"_s, u"64"_s, u"127"_s, u"12.4"_s, u" 20 "_s, u"5 a frame"_s
    };
    test::Compilation compilation;
    for (const QStringView hat : hatNames) {
        for (const QStringView role : hatRoles) {
            for (const QString &rate : rates) {
                for (const UseOptions options : optionSets()) {
                    const Generated made =
                        hatStatement({ hat.toString(), role.toString(), rate, options });
                    ASSERT_TRUE(made);
                    compilation.add(made->text());
                    const std::optional<HatFields> read = readHatStatement(made->text());
                    ASSERT_TRUE(read) << made->text().toStdString();
                    EXPECT_EQ(read->hat, hat);
                    EXPECT_EQ(read->role, role);
                    EXPECT_EQ(read->rate, takesRate(role) ? rate : QString());
                    EXPECT_EQ(read->options, options & hatOptions(hat, role));
                    EXPECT_EQ(toldBy(hatStatement(*read)), made->text());
                }
            }
        }
    }
    EXPECT_EQ(compilation.count(), 5 * 4 * 7 * 32);
    EXPECT_EQ(compilation.verdict(), "");
}

TEST(HatStatement, IsReadAsPilotsWriteIt)
{
    const auto text = [](QStringView statement) {
        const std::optional<HatFields> read = readHatStatement(statement);
        return read ? toldBy(hatStatement(*read)) : u"no"_s;
    };
    EXPECT_EQ(text(u"\tuse hat3 as  pov Rem views"), u"USE HAT3 AS POV");
    EXPECT_EQ(text(u"USE HAT1 AS MOUSE(20)-REVERSE_UD"), u"USE HAT1 AS MOUSE (20) - REVERSE_UD");
    EXPECT_EQ(text(u"Use Hat1 As Keypad - kp5,nohold"), u"USE HAT1 AS KEYPAD - NOHOLD, KP5");
    EXPECT_EQ(text(u"USE HAT1 AS KEYPAD\n   - KP5"), u"USE HAT1 AS KEYPAD - KP5");
    EXPECT_EQ(text(u"USE HAT1 AS MOUSE"), u"USE HAT1 AS MOUSE ()");
}

TEST(HatStatement, WhatThePageCannotMakeIsNotRead)
{
    const QStringList others{
        u""_s,
        u"Rem USE HAT1 AS POV"_s,
        u"BTN S1 a"_s,
        u"USE HAT1"_s,
        u"USE HAT1 AS"_s,
        u"USE HAT5 AS POV"_s,
        u"USE HAT1 AS DX5"_s,
        u"USE S1 AS POV"_s,
        u"USE HAT1 AS POV (20)"_s,
        u"USE HAT1 AS MOUSE (20"_s,
        u"USE HAT1 AS MOUSE 20)"_s,
        u"USE HAT1 AS POV - KP5"_s,
        u"USE HAT1 AS MOUSE (9) - NOHOLD"_s,
        u"USE RADIOSWITCH AS KEYPAD - FORCED_CORNERS"_s,
        u"USE HAT1 AS POV REVERSE_UD"_s,
        u"USE HAT1 AS POV - REVERSE_DIR"_s,
        u"USE HAT1 AS POV - sideways"_s,
        u"USE HAT1 AS POV\nUSE HAT2 AS POV"_s,
        u"USE HAT1 AS POV - REVERSE_UD (5)"_s,
    };
    for (const QString &text : others)
        EXPECT_FALSE(readHatStatement(text)) << text.toStdString();
}

} // namespace hat_tests
