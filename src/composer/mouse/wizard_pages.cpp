// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/wizard_pages.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace zeph {

namespace {

using Page = MouseWizardPage;
using Pane = MousePane;

// clang-format off
constexpr MouseWizardRow rows[mouseWizardPageCount] = {
    { LessonPage{ u"The mouse, without touching the mouse", u"Wizards/mouse-introduction.html", u"A button of the stick moves the mouse to a switch of the cockpit", u"Wizards/mouse-introduction.svg" }, {}, Gesture::None, false },
    { LessonPage{ u"How large is the screen?", u"Wizards/mouse-resolution.html", u"A screen, 1024 pixels wide and 768 high", u"Wizards/mouse-resolution.svg" }, Pane::Resolution, Gesture::None, true },
    { LessonPage{ u"What shall the mouse do?", u"Wizards/mouse-choice.html", u"The mouse goes to a place, goes on from where it is, or turns a switch", u"Wizards/mouse-choice.svg" }, Pane::Choice, Gesture::None, false },
    { LessonPage{ u"Click on the place", u"Wizards/mouse-absolute.html", u"The corners UL, UR, DL, DR and the centre of the screen, and a place counted from UL", u"Wizards/mouse-absolute.svg" }, Pane::Coordinate | Pane::Place | Pane::Statement, Gesture::Point,
      true },
    { LessonPage{ u"Draw the way", u"Wizards/mouse-relative.html", u"The mouse goes 40 to the right and 10 up", u"Wizards/mouse-relative.svg" }, Pane::Place | Pane::Statement, Gesture::Line, true },
    { LessonPage{ u"Take hold of the switch", u"Wizards/mouse-rotate-from.html", u"A line from the centre of a rotary switch to its rim", u"Wizards/mouse-rotate-from.svg" }, Pane::Coordinate | Pane::Readings | Pane::Statement,
      Gesture::Radius, false },
    { LessonPage{ u"And turn it", u"Wizards/mouse-rotate-to.html", u"With Shift, a second line follows the mouse round the circle", u"Wizards/mouse-rotate-to.svg" }, Pane::Readings | Pane::Statement, Gesture::Target, false },
    { LessonPage{ u"How is it turned?", u"Wizards/mouse-rotate-how.html", u"A square, an octagon, and rounder figures: 1, 2, 4 and 8 steps in a quarter turn", u"Wizards/mouse-steps.svg" }, Pane::How | Pane::Statement, Gesture::None, false },
    { LessonPage{ u"Here it is", u"Wizards/mouse-rotate-values.html", u"A rotation from 90 degrees clockwise to 180 and its statement", u"Wizards/mouse-rotate-values.svg" }, Pane::Values | Pane::Statement, Gesture::None, true },
};
// clang-format on

using Order = std::span<const Page>;
constexpr Page absolute[] = { Page::Introduction, Page::Resolution, Page::Choice, Page::Absolute };
constexpr Page relative[] = { Page::Introduction, Page::Resolution, Page::Choice, Page::Relative };
constexpr Page rotation[] = { Page::Introduction, Page::Resolution, Page::Choice,
                              Page::RotateFrom,   Page::RotateTo,   Page::RotateHow,
                              Page::RotateValues };
const Order orders[mouseMovementCount] = { absolute, relative, rotation };

/// The page this many places further in the order; no value outside of it.
std::optional<Page> turned(Page page, MouseMovement movement, std::ptrdiff_t step)
{
    const Order order = orders[size_t(movement)];
    const std::ptrdiff_t at = std::ranges::find(order, page) - order.begin();
    const std::ptrdiff_t to = at + step;
    if (at == std::ssize(order) || to < 0 || to >= std::ssize(order))
        return {};
    return order[size_t(to)];
}

} // namespace

const MouseWizardRow &rowOf(MouseWizardPage page)
{
    return rows[size_t(page)];
}

std::optional<MouseWizardPage> pageAfter(MouseWizardPage page, MouseMovement movement)
{
    return turned(page, movement, 1);
}

std::optional<MouseWizardPage> pageBefore(MouseWizardPage page, MouseMovement movement)
{
    return turned(page, movement, -1);
}

} // namespace zeph
