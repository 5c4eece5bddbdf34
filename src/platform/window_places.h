// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Where windows stand: places kept from an earlier run, and places beside the main window. A place
// is the corner of a window's frame and the size of what is within it, in pixels.

#include <QList>
#include <QRect>

class QWidget;

namespace zeph {

/// The place moved, and made smaller where need be, so that all of it lies on one of the screens:
/// the one that it covers most of, else the nearest. Without screens it stays as it is.
QRect heldToScreens(const QRect &place, const QList<QRect> &screens);

/// A place of that size on the screen: to the right of the window, else to its left, else at the
/// side where less of the window is covered.
QRect placeBeside(const QSize &size, const QRect &window, const QRect &screen);

/// The place that a window has, or goes back to from minimised or maximised.
QRect normalPlace(const QWidget &window);

/// Gives a window a place from an earlier run, held to the screens that there are now. A size that
/// is empty is no size: the window keeps its own.
void restorePlace(QWidget &window, const QRect &place);

/// Puts a window that has no place yet beside the main window.
void openBeside(QWidget &window, const QWidget &main);

} // namespace zeph
