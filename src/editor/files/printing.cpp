// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/printing.h"

#include "documents/editor_view.h"
#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/printers.h"
#include "print/print_pages.h"
#include "print/printpreview.h"
#include "text/insert_blocks.h"

namespace zeph {

FilePrinting::FilePrinting(const Context &context, Printers &printers, Editor &editor)
    : m_context(context), m_printers(printers), m_editor(editor)
{
    MenuActions &on = editor.actions();
    on.connectTo(u"mnuFilePrintJoystick", [this] { mnuFilePrintJoystick_Click(); });
    on.connectTo(u"mnuFilePrintMacro", [this] { mnuFilePrintMacro_Click(); });
    on.connectTo(u"printtest", [this] { PrintAlternativeMethod(); });
    on.connectTo(u"mnuFilePrinterSetup", [this] { mnuFilePrinterSetup_Click(); });
    on.connectTo(u"mnuFilePrintPreview", [this] { mnuFilePrintPreview_Click(); });
    on.connectTo(u"mnuFileExportPDF", [this] { mnuFileExportPDF_Click(); });
}

void FilePrinting::mnuFilePrintJoystick_Click()
{
    print(m_editor.joystick(), u"joystick"_s);
}

void FilePrinting::mnuFilePrintMacro_Click()
{
    print(m_editor.macro(), u"macro"_s);
}

void FilePrinting::PrintCurrent()
{
    if (m_editor.selected().kind() == DocumentKind::Macro) {
        mnuFilePrintMacro_Click();
    } else {
        mnuFilePrintJoystick_Click();
    }
}

PrintJob FilePrinting::jobOf(Document &document) const
{
    const CharFormat plain = document.plain();
    return { document.name(),
             withPrintHeader(document.richText(), plain, document.path(),
                             stampText(m_context.clock.now())),
             plain, m_editor.view().tabStop() };
}

void FilePrinting::print(Document &document, const QString &kind)
{
    if (tellIfNoPrinter(m_context, m_printers)) {
        return;
    }
    askForPortrait(m_context, m_printers);
    const Box box = { .title = u"Print "_s + document.name() + u'?',
                      .text = u"Zeph is ready to print "_s + document.name()
                          + u". Would you like me to go ahead and print this "_s + kind
                          + u" file?"_s,
                      .icon = BoxIcon::Question,
                      .buttons = { BoxButton::Yes, BoxButton::No },
                      .defaultButton = BoxButton::Yes };
    if (m_context.dialogs.box(box) == BoxButton::Yes) {
        printJob(m_context, m_printers, jobOf(document));
    }
}

void FilePrinting::PrintAlternativeMethod()
{
    if (tellIfNoPrinter(m_context, m_printers)) {
        return;
    }
    Document &document = m_editor.selected();
    const CharFormat plain = document.plain();
    RichText text = RichText::plain(u"\n"_s, plain);
    text.append(document.selLength() > 0
                    ? document.richText(document.selStart(), document.selLength())
                    : document.richText());
    printJob(m_context, m_printers, { document.name(), text, plain, m_editor.view().tabStop() });
}

void FilePrinting::mnuFilePrinterSetup_Click()
{
    if (!tellIfNoPrinter(m_context, m_printers)) {
        m_printers.setup(m_editor.window());
    }
}

void FilePrinting::mnuFilePrintPreview_Click()
{
    Document &document = m_editor.selected();
    showPreview(m_context, m_printers, jobOf(document), folderOf(document.path()),
                m_editor.window());
}

void FilePrinting::mnuFileExportPDF_Click()
{
    Document &document = m_editor.selected();
    exportAsPdf(m_context, m_printers, jobOf(document), folderOf(document.path()));
}

} // namespace zeph
