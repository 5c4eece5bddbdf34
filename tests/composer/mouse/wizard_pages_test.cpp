// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/wizard_pages.h"

#include <gtest/gtest.h>

#include <QList>

using namespace zeph;

namespace mouse_wizard_pages_tests {

namespace {

using enum MouseWizardPage;
using Pages = QList<MouseWizardPage>;

Pages walked(MouseMovement movement)
{
    Pages pages{ Introduction };
    while (const auto next = pageAfter(pages.last(), movement)) {
        pages.append(*next);
    }
    return pages;
}

} // namespace

TEST(MouseWizardPages, TheMovementDecidesThePagesThatFollow)
{
    EXPECT_EQ(walked(MouseMovement::Absolute),
              Pages({ Introduction, Resolution, Choice, Absolute }));
    EXPECT_EQ(walked(MouseMovement::Relative),
              Pages({ Introduction, Resolution, Choice, Relative }));
    EXPECT_EQ(
        walked(MouseMovement::Rotation),
        Pages({ Introduction, Resolution, Choice, RotateFrom, RotateTo, RotateHow, RotateValues }));
}

TEST(MouseWizardPages, BackGoesTheSameWay)
{
    for (const auto movement :
         { MouseMovement::Absolute, MouseMovement::Relative, MouseMovement::Rotation }) {
        const Pages pages = walked(movement);
        EXPECT_FALSE(pageBefore(pages.first(), movement));
        for (qsizetype i = 1; i < pages.size(); ++i) {
            EXPECT_EQ(pageBefore(pages[i], movement), pages[i - 1]);
        }
    }
}

TEST(MouseWizardPages, APageOfAnotherMovementLeadsNowhere)
{
    EXPECT_FALSE(pageAfter(RotateTo, MouseMovement::Absolute));
    EXPECT_FALSE(pageBefore(Relative, MouseMovement::Rotation));
}

TEST(MouseWizardPages, EachAsksForItsGesture)
{
    const std::pair<MouseWizardPage, Gesture> gestures[] = {
        { Introduction, Gesture::None }, { Resolution, Gesture::None },
        { Choice, Gesture::None },       { Absolute, Gesture::Point },
        { Relative, Gesture::Line },     { RotateFrom, Gesture::Radius },
        { RotateTo, Gesture::Target },   { RotateHow, Gesture::None },
        { RotateValues, Gesture::None },
    };
    for (const auto &[page, gesture] : gestures) {
        EXPECT_EQ(rowOf(page).gesture, gesture) << int(page);
    }
}

TEST(MouseWizardPages, InsertIsForPagesThatEndAStatement)
{
    Pages inserting;
    for (int page = 0; page < mouseWizardPageCount; ++page) {
        if (rowOf(MouseWizardPage(page)).inserts) {
            inserting.append(MouseWizardPage(page));
        }
    }
    EXPECT_EQ(inserting, Pages({ Resolution, Absolute, Relative, RotateValues }));
}

} // namespace mouse_wizard_pages_tests
