// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_list.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

struct StorableCase {
    QString typed;
    QString kept; ///< when "before" was there before
    QString hinted; ///< what the hint names; empty for no hint
};

const StorableCase cases[] = {
    { u"Falcon"_s, u"Falcon"_s, {} },
    { u"  C:\\a b  "_s, u"C:\\a b"_s, {} },
    { {}, {}, {} },
    { u"\u20AC 5"_s, u"\u20AC 5"_s, {} },
    { u"C:\\\u0416\u0418"_s, u"before"_s, u"\u0416"_s },
    { QString(499, u'x'), QString(499, u'x'), {} },
    { QString(500, u'x'), u"before"_s, u"499"_s },
};

} // namespace

TEST(Storable, WhatTheStoreCannotGiveBackLeavesWhatWasThere)
{
    for (const StorableCase &test : cases) {
        EXPECT_EQ(storableOr(test.typed, u"before"_s), test.kept) << test.typed.toStdString();
    }
}

TEST(Storable, TheHintNamesWhatStandsInTheWay)
{
    for (const StorableCase &test : cases) {
        const QString hint = unstorableHint({ u"fine"_s, test.typed });
        EXPECT_EQ(hint.isEmpty(), test.hinted.isEmpty()) << test.typed.toStdString();
        EXPECT_TRUE(hint.contains(test.hinted)) << hint.toStdString();
    }
}
