// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"
#include "print/print_job.h"

namespace zeph {

class Editor;
class Printers;

/// The printing entries of the File menu: either file, the selection, preview, printer setup and
/// PDF.
class FilePrinting
{
public:
    FilePrinting(const Context &context, Printers &printers, Editor &editor);

    void mnuFilePrintJoystick_Click();
    void mnuFilePrintMacro_Click();
    /// Prints the selected tab's file after the usual questions.
    void PrintCurrent();
    /// Prints the selection, or everything where nothing is selected.
    void PrintAlternativeMethod();
    void mnuFilePrinterSetup_Click();
    /// Shows the selected file's pages.
    void mnuFilePrintPreview_Click();
    /// Writes the selected file's pages into a PDF file, for which no printer is needed.
    void mnuFileExportPDF_Click();

private:
    PrintJob jobOf(Document &document) const;
    void print(Document &document, const QString &kind);

    Context m_context;
    Printers &m_printers;
    Editor &m_editor;
};

} // namespace zeph
