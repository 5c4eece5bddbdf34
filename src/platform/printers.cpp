// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/printers.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>

namespace zeph {

namespace {

constexpr double marginMillimetres = 15;

} // namespace

void setPrintMargins(QPrinter &printer)
{
    const double margin = marginMillimetres;
    printer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
}

SystemPrinters::SystemPrinters() = default;
SystemPrinters::~SystemPrinters() = default;

int SystemPrinters::count() const
{
    return int(QPrinterInfo::availablePrinterNames().size());
}

PageOrientation SystemPrinters::orientation()
{
    return printer().pageLayout().orientation() == QPageLayout::Landscape
        ? PageOrientation::Landscape
        : PageOrientation::Portrait;
}

void SystemPrinters::setOrientation(PageOrientation orientation)
{
    printer().setPageOrientation(orientation == PageOrientation::Landscape ? QPageLayout::Landscape
                                                                           : QPageLayout::Portrait);
}

void SystemPrinters::setup(QWidget *parent)
{
    QPrintDialog dialog(&printer(), parent);
    dialog.setWindowTitle(u"Printer setup"_s);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    // The toolkit's own print box would start to print; this one only keeps the choices.
    if (const auto *buttons = dialog.findChild<QDialogButtonBox *>()) {
        if (QPushButton *ok = buttons->button(QDialogButtonBox::Ok)) {
            ok->setText(u"OK"_s);
        }
    }
    dialog.exec();
}

QPrinter &SystemPrinters::printer()
{
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        setPrintMargins(*m_printer);
    }
    return *m_printer;
}

} // namespace zeph
