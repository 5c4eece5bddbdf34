// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/enterfavouritename.h"

#include "platform/core/text1252.h"
#include "ui_enterfavouritename.h"

namespace zeph {

EnterFavouritename::EnterFavouritename(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::EnterFavouritename>())
{
    m_ui->setupUi(this);
    // What the store cannot hold would come back without its name.
    connect(m_ui->TextFavouriteName, &QLineEdit::textChanged, this,
            [this](const QString &text) { m_ui->cmdOK->setEnabled(firstNot1252(text) < 0); });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &EnterFavouritename::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &EnterFavouritename::reject);
}

EnterFavouritename::~EnterFavouritename() = default;

QString EnterFavouritename::name() const
{
    return m_ui->TextFavouriteName->text().trimmed();
}

} // namespace zeph
