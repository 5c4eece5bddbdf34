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

constexpr MouseWizardRow rows[mouseWizardPageCount] = {
    { u"mouse-introduction.html", {}, Gesture::None, false },
    { u"mouse-resolution.html", Pane::Resolution, Gesture::None, true },
    { u"mouse-choice.html", Pane::Choice, Gesture::None, false },
    { u"mouse-absolute.html", Pane::Coordinate | Pane::Place | Pane::Statement, Gesture::Point,
      true },
    { u"mouse-relative.html", Pane::Place | Pane::Statement, Gesture::Line, true },
    { u"mouse-rotate-from.html", Pane::Coordinate | Pane::Readings | Pane::Statement,
      Gesture::Radius, false },
    { u"mouse-rotate-to.html", Pane::Readings | Pane::Statement, Gesture::Target, false },
    { u"mouse-rotate-how.html", Pane::How | Pane::Statement, Gesture::None, false },
    { u"mouse-rotate-values.html", Pane::Values | Pane::Statement, Gesture::None, true },
};

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
