// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class SingleTextForm;
}

/// Asks for the text of a comment. Writing it is the caller's.
class SingleTextForm : public QDialog
{
    Q_OBJECT
public:
    explicit SingleTextForm(bool addCarriageReturn, QWidget *parent = nullptr);
    ~SingleTextForm() override;

    QString text() const;
    /// Whether a line end follows the comment.
    bool addsCarriageReturn() const;

private:
    std::unique_ptr<Ui::SingleTextForm> m_ui;
};

} // namespace zeph
