// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QDialog>
#include <QStringList>

#include <memory>

namespace zeph {

namespace Ui {
class Heading;
}

/// Asks for the text of a heading, which may be one of a list. Writing it is the caller's.
class Heading : public QDialog
{
    Q_OBJECT
public:
    explicit Heading(const QStringList &headings, QWidget *parent = nullptr);
    ~Heading() override;

    QString text() const;

private:
    void showText();

    std::unique_ptr<Ui::Heading> m_ui;
};

} // namespace zeph
