// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "print/print_job.h"

#include <QDialog>

#include <memory>

class QPrintPreviewWidget;
class QPrinter;

namespace zeph {

namespace Ui {
class PrintPreview;
}

/// Shows the pages as the printer would print them, and prints or exports them.
class PrintPreview : public QDialog
{
    Q_OBJECT
public:
    PrintPreview(const Context &context, Printers &printers, PrintJob job, QString pdfFolder,
                 QWidget *parent = nullptr);
    ~PrintPreview() override;

private:
    void connectControls();
    void showPage();
    void turnPaper();
    void print();

    Context m_context;
    Printers &m_printers;
    PrintJob m_job;
    QString m_pdfFolder;
    std::unique_ptr<QPrinter> m_paper; ///< never prints: the preview draws on it, and it has the
                                       ///< size of the printer's paper
    std::unique_ptr<Ui::PrintPreview> m_ui;
    QPrintPreviewWidget *m_pages = nullptr;
};

/// Shows the pages in a window of their own over the parent, until it is closed.
void showPreview(const Context &context, Printers &printers, const PrintJob &job,
                 const QString &pdfFolder, QWidget *parent);

} // namespace zeph
