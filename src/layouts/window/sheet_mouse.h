// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the mouse does to a sheet, without a window: it selects and sizes boxes with the left
// button, and carries boxes and pictures with the right one.

#include "layouts/sheet.h"

#include <QPointF>
#include <QRectF>

#include <optional>
#include <utility>

namespace zeph {

enum class SheetPointer { Normal, Sizing };
enum class SheetButton { None, Left, Right, Other };

/// So near to its right or lower edge, in pixels, a box is sized.
constexpr int sizingMargin = 6;

/// A movement, a press or a release. While a button is down, moves and the release name what the
/// button was pressed on.
struct SheetMouseEvent {
    QPointF at; ///< in pixels of the sheet
    SheetButton button = SheetButton::None; ///< the one that is down, or that was let go
    int box = -1; ///< the box under the mouse; -1 for the sheet
    int picture = -1; ///< on the sheet, the movable picture under the mouse; -1 for none
};

/// What the mouse wants done.
struct MouseWish {
    std::optional<int> select = {}; ///< this box, in front of all others
    std::optional<QRectF> place = {}; ///< of the selected box
    std::optional<std::pair<int, QPointF>> picture = {}; ///< a picture's top left corner
    bool whenMoving = false; ///< the option for moved and sized boxes is due

    friend bool operator==(const MouseWish &, const MouseWish &) = default;
};

/// Follows the mouse over one sheet.
class SheetMouse
{
public:
    MouseWish pressed(const Sheet &sheet, int selected, const SheetMouseEvent &event);
    MouseWish moved(const Sheet &sheet, int selected, const SheetMouseEvent &event);
    MouseWish released(const Sheet &sheet, int selected, const SheetMouseEvent &event);

    SheetPointer pointer() const
    {
        return m_sizes < 0 ? SheetPointer::Normal : SheetPointer::Sizing;
    }
    /// Whether a box or a picture follows the mouse: no text is marked meanwhile.
    bool isCarrying() const { return m_carried != Carried::Nothing; }

private:
    enum class Carried { Nothing, Size, SizeFromSheet, Box, Picture };

    void point(const Sheet &sheet, const SheetMouseEvent &event);
    Carried pressedOnSheet(const Sheet &sheet, int selected, const SheetMouseEvent &event);
    MouseWish follow(const Sheet &sheet, int selected, const SheetMouseEvent &event) const;

    int m_sizes = -1; ///< the box near whose edge the mouse is
    Carried m_carried = Carried::Nothing;
    int m_picture = -1;
    QPointF m_grip; ///< where the picture is held, from its corner
};

/// The box under a place of the sheet: the selected one before the others, of which later ones lie
/// above earlier ones; -1 for none.
int boxAt(const Sheet &sheet, int selected, const QPointF &at);

} // namespace zeph
