// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/formgridcellsize.h"

#include "layouts/window/grid.h"
#include "platform/core/base.h"
#include "ui_formgridcellsize.h"

namespace zeph {

FormGridCellSize::FormGridCellSize(int cell, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::FormGridCellSize>())
{
    m_ui->setupUi(this);
    m_ui->Text1->setText(QString::number(cell));
    m_ui->Text1->selectAll();
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

FormGridCellSize::~FormGridCellSize() = default;

int FormGridCellSize::cellSize() const
{
    return gridCellSize(m_ui->Text1->text());
}

} // namespace zeph
