// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/shared_settings.h"
#include "shell/welcome_script.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace zeph;

TEST(ValidUser, IsFirstNameCallsignInQuotesAndLastName)
{
    EXPECT_EQ(composeValidUser(u"Pete"_s, u"Maverick"_s, u"Mitchell"_s),
              u"Pete \"Maverick\" Mitchell");
}

TEST(ValidUser, HasSingleBlanksBetweenTheNamesThatThereAre)
{
    EXPECT_EQ(composeValidUser(u"Pete"_s, {}, u"Mitchell"_s), u"Pete Mitchell");
    EXPECT_EQ(composeValidUser({}, u"Maverick"_s, {}), u"\"Maverick\"");
    EXPECT_EQ(composeValidUser(u" Pete "_s, {}, {}), u"Pete");
    EXPECT_EQ(composeValidUser({}, {}, {}), QString());
}

TEST(PilotCallsign, IsBuddyWhenLeftEmpty)
{
    EXPECT_EQ(callsignOrBuddy({}), u"buddy");
    EXPECT_EQ(callsignOrBuddy(u"  "_s), u"buddy");
    EXPECT_EQ(callsignOrBuddy(u"Goose"_s), u"Goose");
}

TEST(FirstTimeUsed, Becomes2To5ForTheFourOptions)
{
    EXPECT_EQ(firstTimeUsedAfter(0), 2);
    EXPECT_EQ(firstTimeUsedAfter(3), 5);
    EXPECT_EQ(firstTimeUsedAfter(-1), 1);
}

TEST(WelcomeScript, OffersFourExperiencesThatBeginAsTold)
{
    ASSERT_EQ(experienceOptions().size(), 4U);
    const auto option = [](size_t i) {
        return QString::fromUtf16(experienceOptions()[i]);
    };
    EXPECT_EQ(option(0),
              u"I'm a complete beginner - I've no idea how to program the HOTAS Cougar, "
              "but I just want to get flying. A brief introduction will do.");
    EXPECT_EQ(option(1),
              u"I'm a complete beginner - but I'm keen to have a crack at programming "
              "these beauties. Show me how.");
    EXPECT_TRUE(option(2).startsWith(u"I'm one of the old school"));
    EXPECT_TRUE(option(3).startsWith(u"Now look here, I'm a human, you're a computer."));
}

TEST(WelcomeScript, PlaysItsLinesInOrder)
{
    QStringList lines;
    for (const WelcomeStep &step : welcomeScript()) {
        lines.append(QString::fromUtf16(step.line));
    }
    EXPECT_EQ(lines,
              QStringList({ u"Getting ready to run Zeph for the first time ... please wait ..."_s,
                            u"Checking installation ..."_s, u"Checking pilot identity "_s,
                            u"Searching for Cougar software "_s,
                            u"Setting up support for current flight sims "_s }));
}

TEST(PartsOfValidUser, GiveTheNamesFromWhichItWasMade)
{
    for (const WelcomeAnswers &names : {
             WelcomeAnswers{
                 .firstName = u"Pete"_s, .lastName = u"Mitchell"_s, .callsign = u"Maverick"_s },
             WelcomeAnswers{
                 .firstName = u"Mary Ann"_s, .lastName = u"Lee"_s, .callsign = u"Gust"_s },
             WelcomeAnswers{ .callsign = u"Gust"_s },
             WelcomeAnswers{ .firstName = u"Pete"_s, .lastName = u"Mitchell"_s },
             WelcomeAnswers{ .firstName = u"Pete"_s },
             WelcomeAnswers{},
         }) {
        const QString whole = composeValidUser(names.firstName, names.callsign, names.lastName);
        const WelcomeAnswers parts = partsOfValidUser(whole, names.callsign);
        EXPECT_EQ(parts.firstName, names.firstName) << whole.toStdString();
        EXPECT_EQ(parts.lastName, names.lastName) << whole.toStdString();
        EXPECT_EQ(parts.callsign, names.callsign) << whole.toStdString();
    }
}
