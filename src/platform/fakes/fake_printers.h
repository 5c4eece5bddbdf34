// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/printers.h"

#include <QPrinter>

namespace zeph {

/// One printer whose paper is a PDF file. Counts the setups that were asked for.
class FakePrinters : public Printers
{
public:
    int printers = 1;
    int setups = 0;
    QList<PageOrientation> turned; ///< every orientation that was set

    /// Sets the file into which the next print goes.
    void setFile(const QString &path)
    {
        printer().setOutputFormat(QPrinter::PdfFormat);
        printer().setOutputFileName(path);
    }

    int count() const override { return printers; }
    PageOrientation orientation() override
    {
        return printer().pageLayout().orientation() == QPageLayout::Landscape
            ? PageOrientation::Landscape
            : PageOrientation::Portrait;
    }
    void setOrientation(PageOrientation orientation) override
    {
        turned.append(orientation);
        printer().setPageOrientation(orientation == PageOrientation::Landscape
                                         ? QPageLayout::Landscape
                                         : QPageLayout::Portrait);
    }
    void setup(QWidget *) override { ++setups; }
    QPrinter &printer() override
    {
        if (!m_printer) {
            m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
            m_printer->setOutputFormat(QPrinter::PdfFormat);
            m_printer->setPageSize(QPageSize(QPageSize::A4));
            setPrintMargins(*m_printer);
        }
        return *m_printer;
    }

private:
    std::unique_ptr<QPrinter> m_printer;
};

} // namespace zeph
