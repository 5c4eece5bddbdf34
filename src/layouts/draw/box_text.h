// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The text of a box, laid out. Lines break by the font's own measures, not by a screen's dots, so
// that screen, paper and all exports have the same lines. All measures are pixels of the sheet,
// which is as large as a screen of 96 dots an inch shows it.

#include "platform/core/rich_text.h"

#include <memory>
#include <vector>

class QPainter;
class QTextDocument;

namespace zeph {

constexpr double sheetDotsPerInch = 96;
/// From a box's edge to its text.
constexpr double boxPadding = 5;
inline constexpr QChar bulletCharacter(u'\u2022');

/// A stretch of a line in one look.
struct BoxRun {
    QString text; ///< without line ends; a tab is a run of its own
    double left = 0; ///< in the box's text
    double width = 0;
    CharFormat format; ///< with family, size and colour
};

struct BoxLine {
    double left = 0; ///< all places are in the box's text, whose top left corner is 0, 0
    double top = 0;
    double baseline = 0;
    double height = 0;
    double width = 0; ///< of the characters that are seen
    bool endsParagraph = false;
    std::vector<BoxRun> runs;
};

/// Gives a document all that decides on a box's lines; its width is the caller's. Characters
/// without a font have the plain one.
void setUpBoxDocument(QTextDocument &document, const CharFormat &plain);

/// A box's text in a box of some width.
class BoxText
{
public:
    BoxText(const RichText &text, const CharFormat &plain, double boxWidth);
    ~BoxText();
    BoxText(BoxText &&) noexcept;
    BoxText &operator=(BoxText &&) noexcept;

    /// Lays the text out again for a box of another width.
    void setBoxWidth(double width);
    /// The height of a box that holds all of the text.
    double neededHeight() const;
    /// The width of a box in which no line is broken.
    double unbrokenWidth();
    bool fits(double boxHeight) const;
    /// The height of the lines that a box holds whole: all of them, or fewer, at least one.
    double heldHeight(double boxHeight) const;
    std::vector<BoxLine> lines() const;
    /// Draws the lines that the box holds; its top left corner is the painter's origin.
    void draw(QPainter &painter, double boxHeight) const;

private:
    double textHeight() const;

    CharFormat m_plain;
    std::unique_ptr<QTextDocument> m_document;
};

} // namespace zeph
