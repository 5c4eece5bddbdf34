// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/formdownloadstatus.h"

#include "ui_formdownloadstatus.h"

#include <algorithm>

namespace zeph {

FormDownloadStatus::FormDownloadStatus(const QString &caption, int longestSeconds, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::FormDownloadStatus>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    // It appears by itself, maybe while the user types elsewhere: it must not take the keyboard.
    setAttribute(Qt::WA_ShowWithoutActivating);
    begin(caption, longestSeconds);
}

FormDownloadStatus::~FormDownloadStatus() = default;

void FormDownloadStatus::begin(const QString &caption, int longestSeconds)
{
    m_ui->LabelStatus->setText(caption);
    // The toolkit shows a bar from 0 to 0 as one without an end.
    m_ui->ProgressBar->setRange(0, std::max(1, longestSeconds));
    m_ui->ProgressBar->setValue(0);
}

void FormDownloadStatus::end(const QString &words)
{
    m_ui->LabelStatus->setText(m_ui->LabelStatus->text() + words);
}

void FormDownloadStatus::setSeconds(int seconds)
{
    m_ui->ProgressBar->setValue(std::clamp(seconds, 0, m_ui->ProgressBar->maximum()));
}

} // namespace zeph
