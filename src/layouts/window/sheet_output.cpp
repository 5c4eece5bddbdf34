// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_output.h"

#include "layouts/draw/sheet_exports.h"
#include "layouts/files/layoutsize.h"
#include "layouts/window/customtweaker.h"
#include "layouts/window/sheet_view.h"
#include "menus/menu_actions.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/printers.h"
#include "platform/system_info.h"
#include "settings/shared_settings.h"

#include <QAction>
#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QMainWindow>
#include <QPainter>
#include <QPrinter>

namespace zeph {

namespace {

QString bySize(const QSize &size, const QString &by)
{
    return QString::number(size.width()) + by + QString::number(size.height());
}

QSize sizeOf(const Sheet &sheet)
{
    return { sheet.width, sheet.height };
}

bool isLarger(const QSize &size, const QSize &limit)
{
    return size.width() > limit.width() || size.height() > limit.height();
}

QByteArray bitmapOf(const Sheet &sheet, const SheetLook &look)
{
    QImage image(sizeOf(sheet), QImage::Format_RGB32);
    QPainter painter(&image);
    SheetRenderer::drawPaper(painter, sheet);
    SheetRenderer().draw(painter, sheet, look);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "BMP");
    return buffer.data();
}

} // namespace

SheetOutput::SheetOutput(const SheetDesk &desk, const Ways &ways)
    : QObject(&desk.window), m_desk(desk), m_ways(ways)
{
    connectEntries();
    m_desk.actions.action(u"mnuOrientAuto")->setChecked(true);
    showOrientation();
}

void SheetOutput::connectEntries()
{
    MenuActions &on = m_desk.actions;
    on.connectTo(u"mnuPrint", [this] { mnuPrint_Click(); });
    on.connectTo(u"mnuPrinterSetup", [this] { m_ways.printers.setup(&m_desk.window); });
    on.connectArray(u"mnuPrinterOrientArray"_s, [this](int i) { mnuPrinterOrientArray_Click(i); });
    on.connectTo(u"mnuOrientAuto", [this] { showOrientation(); });
    on.connectTo(u"mnuShowImageSize", [this] { mnuShowImageSize_Click(); });
    on.connectTo(u"mnuCaptureAsBitmap", [this] { mnuCaptureAsBitmap_Click(); });
    on.connectTo(u"mnuTweaks", [this] { showTweaks(); });
    on.connectTo(u"mnuExportPDF", [this] { exportAs(u"pdf"_s); });
    on.connectTo(u"mnuExportSVG", [this] { exportAs(u"svg"_s); });
    on.connectTo(u"mnuExportHTML", [this] { exportAs(u"html"_s); });
    on.connectArray(u"mnuExportPNG"_s, [this](int i) { exportAs(u"png"_s, 1 << i); });
    if (on.has(u"mnuPrintWhite")) {
        on.action(u"mnuPrintWhite")->setChecked(m_desk.settings().CleoPrintOnWhite);
        on.connectTo(u"mnuPrintWhite", [this] {
            m_desk.settings().CleoPrintOnWhite =
                m_desk.actions.action(u"mnuPrintWhite")->isChecked();
            m_desk.keep({ &LayoutsSettings::CleoPrintOnWhite });
        });
    }
}

QString SheetOutput::title() const
{
    return sheetKind(m_desk.kind).caption.toString() + u" layout"_s;
}

void SheetOutput::showOrientation()
{
    m_desk.actions.tickOnly(u"mnuPrinterOrientArray"_s, isPortrait(m_desk.model.sheet()) ? 0 : 1);
}

void SheetOutput::mnuPrinterOrientArray_Click(int index)
{
    // What the user chooses holds instead of the layout's own.
    m_desk.actions.action(u"mnuOrientAuto")->setChecked(false);
    m_desk.actions.tickOnly(u"mnuPrinterOrientArray"_s, index);
}

Sheet SheetOutput::printedSheet() const
{
    const LayoutsSettings &tweaks = m_desk.settings();
    Sheet sheet = m_desk.view.canvas().shown();
    for (LayoutTextBox &box : sheet.boxes) {
        box.Visible = box.Visible && !box.text.text.isEmpty();
        box.Left += float(tweaks.TxtLeftAdjust);
        box.Top += float(tweaks.TxtTopAdjust);
        box.Width = std::max(1.0F, box.Width + float(tweaks.TBAdjustWidth));
        box.Height = std::max(1.0F, box.Height + float(tweaks.TBAdjustHeight));
    }
    return sheet;
}

/// The custom sheet's boxes may let the pictures through on paper.
SheetLook SheetOutput::printedLook() const
{
    SheetLook look = m_desk.view.canvas().look();
    look.whiteBoxes = m_desk.kind != SheetKind::Custom || m_desk.settings().CleoPrintOnWhite;
    return look;
}

bool SheetOutput::mayPrintOver(const QSize &paper)
{
    const QSize size = sizeOf(m_desk.model.sheet());
    return !isLarger(size, paper)
        || m_desk.context.dialogs.ask(
            u"OK to print?"_s,
            u"The layout's size ("_s + bySize(size, u" by "_s)
                + u") is greater than the Printer's paper size settings ("_s
                + bySize(paper, u" by "_s)
                + u"). Do you still want me to try and print out the layout? This may result in a "
                  "problem for your printer, or a lot of extra paper being churned out"_s,
            BoxIcon::Question);
}

void SheetOutput::mnuPrint_Click()
{
    if (m_ways.printers.count() == 0) {
        m_desk.context.dialogs.tell(
            u"No printer detected"_s,
            u"Sorry - I couldn't detect a printer connected to your system, so I can't print out "
            "your layout. If you do have a printer connected, check your driver's settings from "
            "the "
            "Control panel."_s,
            BoxIcon::Exclamation);
        return;
    }
    const bool isAuto = m_desk.actions.action(u"mnuOrientAuto")->isChecked();
    const bool isAcross = isAuto ? !isPortrait(m_desk.model.sheet())
                                 : m_desk.actions.action(u"mnuPrinterOrientArray_1")->isChecked();
    m_ways.printers.setOrientation(isAcross ? PageOrientation::Landscape
                                            : PageOrientation::Portrait);
    if (!mayPrintOver(paperPixels(m_ways.printers).value_or(QSize()))) {
        return;
    }
    m_desk.say(u"Communicating with the printer ....."_s);
    QPrinter &printer = m_ways.printers.printer();
    printer.setDocName(title());
    if (const auto printed = printSheet(printer, printedSheet(), printedLook()); !printed) {
        m_desk.context.dialogs.tell(u"Not printed"_s,
                                    u"I couldn't print the layout: "_s + printed.error(),
                                    BoxIcon::Exclamation);
        return;
    }
    m_desk.say(u"Layout has been sent to your printer. It make take some time to print it."_s);
}

void SheetOutput::mnuShowImageSize_Click()
{
    const auto paper = paperPixels(m_ways.printers);
    m_desk.context.dialogs.tell(
        u"Layout size"_s,
        u"Current layout size is: "_s + bySize(sizeOf(m_desk.model.sheet()), u" by "_s)
            + u"\n\nPrinter's maximum paper size: "_s
            + (paper ? bySize(*paper, u" by "_s) : u"no printer detected"_s)
            + u"\n\n(Note that these printer paper dimensions are for the current printer's "
              "orientation and are therefore interchangeable to match the orientation of the "
              "layout "
              "if required.)"_s);
}

void SheetOutput::mnuCaptureAsBitmap_Click()
{
    const QSize size = sizeOf(m_desk.model.sheet());
    const QSize screen = m_ways.screen.size();
    if (isLarger(size, screen)) {
        m_desk.context.dialogs.tell(
            u"Hang on a minute there buddy!"_s,
            u"We've run into a problem here. If you want me to capture the layout as a bitmap, I "
            "need to be able to see the whole layout on the screen. Your current screen resolution "
            "is "_s
                + bySize(screen, u" x "_s) + u", whereas your layout size is "_s
                + bySize(size, u" x "_s)
                + u". The layout is too large.\n\nCan you see the problem now? Once again, a human "
                  "expects me, a humble computer, to perform miracles. Oh well. I recommend that "
                  "you "
                  "either increase your screen resolution above your layout size if possible, or "
                  "reduce your layout size. Over to you."_s,
            BoxIcon::Exclamation);
        return;
    }
    const QString path = m_desk.context.paths.layoutsFolder() + u"capture.bmp"_s;
    const QByteArray bitmap = bitmapOf(m_desk.view.canvas().shown(), m_desk.view.canvas().look());
    if (const auto written = writeFileAtomically(path, bitmap); !written) {
        tellNotSaved(m_desk.context.dialogs, written.error());
        return;
    }
    m_desk.context.settings.of<SharedSettings>().ImageFilePath = path;
    m_ways.imageViewer.trigger();
}

void SheetOutput::exportAs(const QString &ending, int scale)
{
    const auto path = m_desk.context.dialogs.saveFile(
        { .title = u"Export the sheet"_s,
          .filter = u"%1 files (*.%2)|*.%2"_s.arg(ending.toUpper(), ending),
          .defaultExtension = ending,
          .folder = m_desk.context.paths.layoutsFolder(),
          .name = title() + u'.' + ending });
    if (!path || !mayOverwrite(m_desk.context.dialogs, *path)) {
        return;
    }
    const auto bytes = exportSheet(ending, m_desk.view.canvas().shown(),
                                   m_desk.view.canvas().look(), title(), scale);
    if (!bytes) {
        tellNotSaved(m_desk.context.dialogs, FileError{ *path, bytes.error() });
        return;
    }
    if (const auto written = writeFileAtomically(*path, *bytes); !written) {
        tellNotSaved(m_desk.context.dialogs, written.error());
        return;
    }
    m_desk.say(QFileInfo(*path).fileName() + u" was written"_s);
}

void SheetOutput::showTweaks()
{
    CustomTweaker tweaker(m_desk.settings(), &m_desk.window);
    if (tweaker.exec() == QDialog::Accepted) {
        tweaker.store(m_desk.settings());
        m_desk.keep({ &LayoutsSettings::TBAdjustHeight, &LayoutsSettings::TBAdjustWidth,
                      &LayoutsSettings::TxtTopAdjust, &LayoutsSettings::TxtLeftAdjust });
    }
}

} // namespace zeph
