// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A text on pages: what printers, the preview and PDF files show alike.

#include "platform/core/rich_text.h"

#include <QSizeF>

#include <memory>
#include <span>
#include <vector>

class QPagedPaintDevice;
class QPaintDevice;
class QPainter;
class QTextDocument;

namespace zeph {

/// The place of a line of print on an endless strip of paper, in the device's pixels.
struct LineExtent {
    double top = 0;
    double bottom = 0;
};

/// The first line (0-based) of each page. A page is broken between lines only; a line that is
/// higher than a page has one to itself. Without lines there is one page.
std::vector<size_t> pageStarts(std::span<const LineExtent> lines, double pageHeight);

/// The distance of tab stops where no other is set, in the screen's pixels.
constexpr double usualTabPixels = 80;

/// The colour in which a colour of the screen is printed on white paper: itself, a darker one when
/// it is pale and was chosen for a dark screen, or black when it could not be seen there.
ColorRef inkOf(ColorRef colour, bool isForDarkScreen);

/// A file's text after a header: two empty lines, the file's path, when it was printed, and another
/// empty line. The header has the text's first font, and is black.
RichText withPrintHeader(const RichText &text, const CharFormat &plain, const QString &path,
                         const QString &printedOn);

/// A text laid out on pages: wrapped at the page's width, each line whole on one page, looks kept.
class PrintPages
{
public:
    /// The size is that of the printable part of a page, in the device's pixels. Characters without
    /// a font have the plain one. Tab stops are as far from each other as on the screen.
    PrintPages(const RichText &text, const CharFormat &plain, QPaintDevice &device,
               const QSizeF &size, double tabPixels = usualTabPixels);
    ~PrintPages();

    int count() const { return int(m_starts.size()); }
    /// Draws a page (0-based) with its top left corner at the painter's origin.
    void draw(QPainter &painter, int page) const;

private:
    struct Line {
        int block = 0;
        int index = 0; ///< in its block
        LineExtent extent;
    };
    void collectLines();
    void drawBullet(QPainter &painter, const Line &line, double pageTop) const;

    std::unique_ptr<QTextDocument> m_document;
    std::vector<Line> m_lines;
    std::vector<size_t> m_starts;
};

/// Draws those pages on a device that its user chose to print. The error is the reason of a failure
/// in the system's words.
Expected<void, QString> printOn(QPagedPaintDevice &device, const RichText &text,
                                const CharFormat &plain, double tabPixels = usualTabPixels);

/// All pages as the bytes of a PDF file, on paper like the device's. The error is the reason.
Expected<QByteArray, QString> pdfOf(const RichText &text, const CharFormat &plain,
                                    const QString &title, const QPagedPaintDevice &paper,
                                    double tabPixels = usualTabPixels);

} // namespace zeph
