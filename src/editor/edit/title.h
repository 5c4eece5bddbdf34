// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "text/insert_blocks.h"

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class Title;
}

/// Asks for what a file's title tells. Writing it is the caller's.
class Title : public QDialog
{
    Q_OBJECT
public:
    explicit Title(const TitleFields &preset, QWidget *parent = nullptr);
    ~Title() override;

    TitleFields fields() const;

private:
    std::unique_ptr<Ui::Title> m_ui;
};

} // namespace zeph
