// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class FormDownloadStatus;
}

/// Tells that a compile or a download is still going on. Stays up beside the other windows and
/// deletes itself when it is closed.
class FormDownloadStatus : public QDialog
{
    Q_OBJECT
public:
    /// The caption says what is going on; longestSeconds is where the bar is full.
    FormDownloadStatus(const QString &caption, int longestSeconds, QWidget *parent = nullptr);
    ~FormDownloadStatus() override;

    /// Seconds waited so far; more than the bar holds fill it.
    void setSeconds(int seconds);

private:
    std::unique_ptr<Ui::FormDownloadStatus> m_ui;
};

} // namespace zeph
