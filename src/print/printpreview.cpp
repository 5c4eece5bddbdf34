// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "print/printpreview.h"

#include "platform/printers.h"
#include "print/print_pages.h"
#include "ui_printpreview.h"

#include <QPrintPreviewWidget>
#include <QPrinter>

namespace zeph {

namespace {

constexpr double zoomStep = 1.25;

} // namespace

PrintPreview::PrintPreview(const Context &context, Printers &printers, PrintJob job,
                           QString pdfFolder, QWidget *parent)
    : QDialog(parent, Qt::Window), m_context(context), m_printers(printers), m_job(std::move(job)),
      m_pdfFolder(std::move(pdfFolder)),
      m_paper(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      m_ui(std::make_unique<Ui::PrintPreview>())
{
    m_paper->setOutputFormat(QPrinter::PdfFormat);
    m_paper->setPageLayout(printers.printer().pageLayout());
    m_ui->setupUi(this);
    setWindowTitle(u"Print preview of "_s + m_job.name);
    m_pages = new QPrintPreviewWidget(m_paper.get(), this);
    m_pages->setObjectName(u"Pages"_s);
    m_pages->setAccessibleName(u"Pages"_s);
    m_ui->layoutPage->insertWidget(1, m_pages, 1);
    connectControls();
    m_ui->CheckLandscape->setChecked(m_paper->pageLayout().orientation() == QPageLayout::Landscape);
    m_pages->setZoomMode(QPrintPreviewWidget::FitToWidth);
}

PrintPreview::~PrintPreview()
{
    // It draws on the paper, a member, which goes before the window's children do.
    delete m_pages;
}

void PrintPreview::connectControls()
{
    connect(m_pages, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter *paper) {
        (void)printOn(*paper, m_job.text, m_job.plain, m_job.tabPixels);
    });
    connect(m_pages, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::showPage);
    connect(m_ui->SpinPage, &QSpinBox::valueChanged, m_pages, &QPrintPreviewWidget::setCurrentPage);
    connect(m_ui->cmdZoomIn, &QPushButton::clicked, m_pages, [this] { m_pages->zoomIn(zoomStep); });
    connect(m_ui->cmdZoomOut, &QPushButton::clicked, m_pages,
            [this] { m_pages->zoomOut(zoomStep); });
    connect(m_ui->cmdFitWidth, &QPushButton::clicked, m_pages, &QPrintPreviewWidget::fitToWidth);
    connect(m_ui->cmdWholePage, &QPushButton::clicked, m_pages, &QPrintPreviewWidget::fitInView);
    connect(m_ui->CheckLandscape, &QCheckBox::clicked, this, &PrintPreview::turnPaper);
    connect(m_ui->cmdPrint, &QPushButton::clicked, this, &PrintPreview::print);
    connect(m_ui->cmdExport, &QPushButton::clicked, this,
            [this] { exportAsPdf(m_context, m_printers, m_job, m_pdfFolder); });
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &PrintPreview::close);
}

void PrintPreview::showPage()
{
    const int count = std::max(1, m_pages->pageCount());
    m_ui->SpinPage->setMaximum(count);
    m_ui->SpinPage->setSuffix(u" of "_s + QString::number(count));
    m_ui->SpinPage->setValue(m_pages->currentPage());
}

void PrintPreview::turnPaper()
{
    const bool landscape = m_ui->CheckLandscape->isChecked();
    m_printers.setOrientation(landscape ? PageOrientation::Landscape : PageOrientation::Portrait);
    m_paper->setPageLayout(m_printers.printer().pageLayout());
    m_pages->updatePreview();
}

void PrintPreview::print()
{
    if (!tellIfNoPrinter(m_context, m_printers) && printJob(m_context, m_printers, m_job)) {
        close();
    }
}

void showPreview(const Context &context, Printers &printers, const PrintJob &job,
                 const QString &pdfFolder, QWidget *parent)
{
    auto *preview = new PrintPreview(context, printers, job, pdfFolder, parent);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->open();
}

} // namespace zeph
