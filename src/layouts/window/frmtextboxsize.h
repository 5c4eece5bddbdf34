// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/sheet.h"

#include <QDialog>

#include <memory>

class QLabel;
class QLineEdit;

namespace zeph {

namespace Ui {
class FrmTextBoxSize;
}

class SheetModel;

/// Place and size of the selected box as numbers, beside those of the box that was selected before,
/// so that one can be given the other's.
class FrmTextBoxSize : public QDialog
{
    Q_OBJECT
public:
    /// The model must outlive this.
    FrmTextBoxSize(SheetModel &model, QWidget *parent);
    ~FrmTextBoxSize() override;

private:
    void apply();
    void follow(int box);
    void showBox();

    SheetModel &m_model;
    std::unique_ptr<Ui::FrmTextBoxSize> m_ui;
    int m_current = -1;
    int m_previous = -1;
    LayoutTextBox m_shown; ///< the box as the fields show it
};

} // namespace zeph
