// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/ubbandhtmlview.h"

#include "layouts/markup/markup.h"
#include "ui_ubbandhtmlview.h"

#include <QApplication>
#include <QClipboard>

namespace zeph {

UBBandHTMLview::UBBandHTMLview(RichText text, ColorRef plain, QWidget *parent)
    : QDialog(parent), m_text(std::move(text)), m_plain(plain),
      m_ui(std::make_unique<Ui::UBBandHTMLview>())
{
    m_ui->setupUi(this);
    connect(m_ui->Command1, &QPushButton::clicked, this, &UBBandHTMLview::Command1_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->CodeType_1, &QRadioButton::toggled, this, &UBBandHTMLview::followType);
}

UBBandHTMLview::~UBBandHTMLview() = default;

/// The tags are UBB's alone, and web pages are what has to be escaped for.
void UBBandHTMLview::followType()
{
    const bool isHtml = m_ui->CodeType_1->isChecked();
    m_ui->CheckCodeTag->setEnabled(!isHtml);
    m_ui->CheckEscape->setChecked(isHtml);
}

void UBBandHTMLview::Command1_Click()
{
    if (m_ui->Stages->currentWidget() == m_ui->FrameOptions) {
        convert();
        return;
    }
    QApplication::clipboard()->setText(m_result);
    accept();
}

void UBBandHTMLview::convert()
{
    m_result = markup(m_text,
                      { .type = m_ui->CodeType_1->isChecked() ? CodeType::HTML : CodeType::UBB,
                        .codeTags = m_ui->CheckCodeTag->isChecked(),
                        .escape = m_ui->CheckEscape->isChecked() },
                      m_plain);
    m_ui->RTBforUBB->setPlainText(m_result);
    m_ui->Stages->setCurrentWidget(m_ui->FrameResult);
    m_ui->Command1->setText(u"&Copy"_s);
    m_ui->Command1->setToolTip(u"Copies the code and closes this window"_s);
    m_ui->Command1->setFocus();
}

} // namespace zeph
