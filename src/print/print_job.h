// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What every window that prints does with the system's printers.

#include "platform/context.h"
#include "platform/core/rich_text.h"
#include "print/print_pages.h"

namespace zeph {

class Printers;

/// What is printed.
struct PrintJob {
    QString name; ///< of the file, for titles and messages
    RichText text; ///< header and all
    CharFormat plain; ///< the font of characters that have none
    double tabPixels = usualTabPixels; ///< between tab stops, in the screen's pixels
};

/// Tells the user when there is no printer. True when there is one.
bool tellIfNoPrinter(const Context &context, Printers &printers);
/// Offers portrait where the printer is set up to print in landscape.
void askForPortrait(const Context &context, Printers &printers);
/// Prints, and says so on the status line; a box tells a failure. False when it failed.
bool printJob(const Context &context, Printers &printers, const PrintJob &job);
/// Asks for a file's name and writes the pages into it as PDF. The dialog starts in the folder,
/// with the job's name.
void exportAsPdf(const Context &context, Printers &printers, const PrintJob &job,
                 const QString &folder);

} // namespace zeph
