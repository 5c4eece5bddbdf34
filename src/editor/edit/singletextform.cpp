// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/singletextform.h"

#include "ui_singletextform.h"

namespace zeph {

SingleTextForm::SingleTextForm(bool addCarriageReturn, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::SingleTextForm>())
{
    m_ui->setupUi(this);
    m_ui->CheckAddCR->setChecked(addCarriageReturn);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &SingleTextForm::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &SingleTextForm::reject);
}

SingleTextForm::~SingleTextForm() = default;

QString SingleTextForm::text() const
{
    return m_ui->RichTextBox1->text();
}

bool SingleTextForm::addsCarriageReturn() const
{
    return m_ui->CheckAddCR->isChecked();
}

} // namespace zeph
