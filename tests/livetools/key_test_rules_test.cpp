// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_test_rules.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

KeyTestRules rulesWith(QStringView file)
{
    KeyTestRules rules;
    rules.setTable(keyTableFrom(file));
    return rules;
}

} // namespace

TEST(KeyTestRules, ShiftAndPauseIsTheWayOutBeforeAnythingElse)
{
    KeyTestRules rules = rulesWith(u"19,Pause\n");
    const KeyDownEffect effect = rules.keyDown(19, 1);
    EXPECT_TRUE(effect.emergency);
    EXPECT_EQ(effect.eventText, QString());
    EXPECT_EQ(effect.keyText, QString());
    for (const int shift : { 0, 2, 3, 4, 5 }) {
        EXPECT_FALSE(rules.keyDown(19, shift).emergency) << shift;
    }
}

TEST(KeyTestRules, ANamedKeyShowsItsNameAndNotTheCharacterThatComesWithIt)
{
    KeyTestRules rules = rulesWith(u"32,Space\n");
    EXPECT_EQ(rules.keyDown(32, 0).keyText, u"Space\n");
    EXPECT_EQ(rules.keyPress(u' '), QString());
    EXPECT_EQ(rules.keyPress(u'x'), u" x\n") << "one press alone is held back";
}

TEST(KeyTestRules, AKeyWithoutANameShowsTheCharacterThatItTypes)
{
    KeyTestRules rules = rulesWith(u"");
    EXPECT_EQ(rules.keyDown(66, 1).keyText, QString());
    EXPECT_EQ(rules.keyPress(u'B'), u" B\n");
    EXPECT_EQ(rules.keyUp(66), u"Up: b\n");
}

TEST(KeyTestRules, CharactersBelow19AreNotShown)
{
    KeyTestRules rules = rulesWith(u"");
    EXPECT_EQ(rules.keyPress(18), QString());
    EXPECT_EQ(rules.keyPress(19), u" \u0013\n");
}

TEST(KeyTestRules, CtrlHoldsTheNextCharacterBackUntilTheNextKey)
{
    KeyTestRules rules = rulesWith(u"");
    rules.keyDown(65, 0);
    rules.keyPress(u'a');
    EXPECT_EQ(rules.keyDown(17, 2).eventText, u"Down: CTL\n");
    EXPECT_EQ(rules.keyPress(u'a'), QString());
    rules.keyDown(17, 2);
    rules.keyDown(66, 0);
    EXPECT_EQ(rules.keyPress(u'b'), u" b\n");
}

TEST(KeyTestRules, AltAloneShowsItsEventAndNoKey)
{
    KeyTestRules rules = rulesWith(u"");
    const KeyDownEffect effect = rules.keyDown(18, 4);
    EXPECT_EQ(effect.eventText, u"Down: ALT\n");
    EXPECT_EQ(effect.keyText, QString());
    EXPECT_EQ(rules.keyUp(18), u"Up: ALT\n");
}

TEST(KeyTestRules, CapsLockAsksToBeTurnedOff)
{
    KeyTestRules rules = rulesWith(u"20,Caps Lock\n");
    EXPECT_TRUE(rules.keyDown(20, 0).turnsOffCapsLock) << "as the first key too";
    EXPECT_FALSE(rules.keyDown(65, 0).turnsOffCapsLock);
}

TEST(KeyTestRules, TheListsClearOnTheKeyDownAfterTheDelay)
{
    KeyTestRules rules = rulesWith(u"");
    rules.keyDown(65, 0);
    rules.keyUp(65);
    rules.delayOver();
    EXPECT_TRUE(rules.keyDown(66, 0).clearsLists);
    EXPECT_FALSE(rules.keyDown(67, 0).clearsLists) << "once";
}

TEST(KeyTestRules, AKeyUpAfterTheDelayKeepsTheLists)
{
    KeyTestRules rules = rulesWith(u"");
    rules.keyDown(65, 0);
    rules.keyDown(66, 0);
    rules.keyUp(65);
    rules.delayOver();
    rules.keyUp(66);
    EXPECT_FALSE(rules.keyDown(67, 0).clearsLists);
}

TEST(KeyTestRules, TheFirstKeyClearsNothing)
{
    // The keys that opened the window may have been let go long ago.
    KeyTestRules rules = rulesWith(u"");
    rules.keyUp(75);
    rules.delayOver();
    EXPECT_FALSE(rules.keyDown(65, 0).clearsLists);
}

TEST(ClearDelay, IsOffOrTheIntervalOfAMenuEntry)
{
    const std::pair<int, std::optional<int>> intervals[] = {
        { -2, {} }, { -1, {} }, { 0, 200 },  { 1, 400 },
        { 2, 600 }, { 3, 800 }, { 4, 1000 }, { 5, {} },
    };
    for (const auto &[delay, interval] : intervals) {
        EXPECT_EQ(clearDelayMs(delay), interval) << delay;
    }
}
