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

/// Tells that a compile or a download is still going on, and when it has ended. Does not block the
/// other windows, and deletes itself when it is closed.
class FormDownloadStatus : public QDialog
{
    Q_OBJECT
public:
    /// The caption says what is going on; the bar is full at longestSeconds.
    FormDownloadStatus(const QString &caption, int longestSeconds, QWidget *parent = nullptr);
    ~FormDownloadStatus() override;

    /// Another compile or download is going on now: the bar starts anew.
    void begin(const QString &caption, int longestSeconds);
    /// It has ended; the words follow the caption. The bar stays as it is.
    void end(const QString &words);
    /// Shows the seconds waited so far; a number beyond the bar's end fills it.
    void setSeconds(int seconds);

private:
    std::unique_ptr<Ui::FormDownloadStatus> m_ui;
};

} // namespace zeph
