// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "print/print_job.h"

#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/printers.h"
#include "platform/status_line.h"
#include "print/print_pages.h"

#include <QFileInfo>
#include <QPrinter>

namespace zeph {

bool tellIfNoPrinter(const Context &context, Printers &printers)
{
    if (printers.count() > 0) {
        return false;
    }
    context.dialogs.tell(u"No printer to print to"_s,
                         u"I couldn't detect a printer connected to your system. Please check "
                         "your printer settings."_s,
                         BoxIcon::Exclamation);
    return true;
}

void askForPortrait(const Context &context, Printers &printers)
{
    if (printers.orientation() != PageOrientation::Landscape) {
        return;
    }
    const Box box = { .title = u"Change orientation to Portrait?"_s,
                      .text = u"Your printer is setup to print in Landscape. Would you like me to "
                              "set it up to print your file in Portrait first before I print this "
                              "file?"_s,
                      .icon = BoxIcon::Question,
                      .buttons = { BoxButton::Yes, BoxButton::No },
                      .defaultButton = BoxButton::Yes };
    if (context.dialogs.box(box) == BoxButton::Yes) {
        printers.setOrientation(PageOrientation::Portrait);
    }
}

bool printJob(const Context &context, Printers &printers, const PrintJob &job)
{
    context.status.setTextNow(u"Printing "_s + job.name);
    QPrinter &printer = printers.printer();
    printer.setDocName(job.name);
    if (const auto done = printOn(printer, job.text, job.plain, job.tabPixels); !done) {
        context.status.setText(job.name + u" wasn't printed"_s);
        context.dialogs.tell(u"I couldn't print your file buddy"_s,
                             job.name + u" wasn't printed: "_s + done.error(), BoxIcon::Stop);
        return false;
    }
    context.status.setText(u"Finished printing "_s + job.name);
    return true;
}

void exportAsPdf(const Context &context, Printers &printers, const PrintJob &job,
                 const QString &folder)
{
    const auto path = context.dialogs.saveFile(
        { u"Export as PDF ..."_s, u"PDF files (*.pdf)|*.pdf|All files (*.*)|*.*"_s, u"pdf"_s,
          folder, QFileInfo(job.name).completeBaseName() + u".pdf"_s });
    if (!path) {
        return;
    }
    if (!mayOverwrite(context.dialogs, *path)) {
        return;
    }
    const auto pdf = pdfOf(job.text, job.plain, job.name, printers.printer(), job.tabPixels);
    if (!pdf) {
        tellNotSaved(context.dialogs, { *path, pdf.error() });
        return;
    }
    if (const auto written = writeFileAtomically(*path, *pdf); !written) {
        tellNotSaved(context.dialogs, written.error());
        return;
    }
    context.status.setText(*path + u" saved successfully."_s);
}

} // namespace zeph
