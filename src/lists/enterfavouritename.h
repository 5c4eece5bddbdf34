// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class EnterFavouritename;
}

/// Asks for a favourite's name. An empty name means the same as Cancel.
class EnterFavouritename : public QDialog
{
    Q_OBJECT
public:
    explicit EnterFavouritename(QWidget *parent = nullptr);
    ~EnterFavouritename() override;

    QString name() const;

private:
    std::unique_ptr<Ui::EnterFavouritename> m_ui;
};

} // namespace zeph
