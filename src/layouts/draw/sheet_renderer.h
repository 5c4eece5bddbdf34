// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Draws a sheet, in the sheet's pixels, alike on screens, on paper and into files.

#include "cougar/drawn_picture.h"
#include "layouts/arrange/leader_lines.h"
#include "layouts/draw/box_text.h"

#include <QPointF>

class QPagedPaintDevice;

namespace zeph {

/// What a sheet is drawn with, beside its value.
struct SheetLook {
    std::vector<DrawnPicture> pictures = {}; ///< of the sheet's pictures, in their order
    PictureWithControls controls = {}; ///< of the first picture
    CharFormat plain = {}; ///< of characters without a font; with family and size
    bool leaderLines = true;
    bool overflowMarks = true; ///< on boxes that do not hold their text
    bool whiteBoxes = true; ///< else what is under a box is seen through it
    std::vector<int> raised = {}; ///< boxes (0-based) in front of all others, the front one last
};

// The sheet's strokes, in its pixels, which all exports share.
constexpr double frameWidth = 0.75;
constexpr double topRuleWidth = 1.75; ///< the frame's upper edge
constexpr double leaderWidth = 0.75;
constexpr double leaderHalo = 2.75; ///< white around a leader line, so that it is seen on a picture
constexpr double leaderDot = 2; ///< radius, where a line meets its control
constexpr double overflowMarkSize = 10;
constexpr ColorRef frameColour = 0x8A807A;
constexpr ColorRef ruleColour = 0x453A33;
constexpr ColorRef overflowColour = 0x1C2AB4;

/// The boxes (0-based) from the back to the front: by their numbers, then those that were raised.
std::vector<size_t> paintingOrder(const Sheet &sheet, const std::vector<int> &raised);

/// The corners of the mark on a box that does not hold its text.
std::array<QPointF, 3> overflowMark(const QRectF &box);

class SheetRenderer
{
public:
    /// White paper.
    static void drawPaper(QPainter &painter, const Sheet &sheet);
    /// Pictures, leader lines and boxes. The text of one box can be left out, which the window
    /// shows in a control.
    void draw(QPainter &painter, const Sheet &sheet, const SheetLook &look, int withoutText = -1);

    /// A box's text as draw() has it; it is laid out again only when something about it changes.
    const BoxText &text(const Sheet &sheet, const SheetLook &look, size_t box);

private:
    void drawBox(QPainter &painter, const Sheet &sheet, const SheetLook &look, size_t box,
                 bool withText);

    struct Kept {
        RichText source;
        CharFormat plain;
        float width = 0;
        std::unique_ptr<BoxText> text;
    };
    std::vector<Kept> m_texts;
};

/// Draws a sheet on a device's pages in its own size: on one page when it is not larger than that,
/// else on as many as it takes, row by row. The error is the reason in the system's words.
Expected<void, QString> printSheet(QPagedPaintDevice &device, const Sheet &sheet,
                                   const SheetLook &look);

} // namespace zeph
