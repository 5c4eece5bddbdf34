// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/window/sheet_desk.h"

#include <QObject>

class QAction;

namespace zeph {

class Printers;
class Screen;
struct SheetLook;

/// How a sheet leaves the program: on paper, as a picture for the Image Viewer, and as files.
class SheetOutput : public QObject
{
    Q_OBJECT
public:
    struct Ways {
        Printers &printers;
        const Screen &screen;
        QAction &imageViewer; ///< shows the picture of ImageFilePath
    };

    /// The window owns this; the ways must outlive it.
    SheetOutput(const SheetDesk &desk, const Ways &ways);

    void mnuPrint_Click();
    void mnuPrinterOrientArray_Click(int index);
    void mnuShowImageSize_Click();
    void mnuCaptureAsBitmap_Click();
    /// Writes the sheet into a file of that ending, whose name the user gives.
    void exportAs(const QString &ending, int scale = 1);
    void showTweaks();
    /// Ticks the orientation that the sheet has.
    void showOrientation();

    /// The sheet as it is printed: empty boxes are left out, and the tweaks are added to the
    /// others.
    Sheet printedSheet() const;

private:
    void connectEntries();
    /// Of print jobs and exported files.
    QString title() const;
    bool mayPrintOver(const QSize &paper);
    SheetLook printedLook() const;

    SheetDesk m_desk;
    Ways m_ways;
};

} // namespace zeph
