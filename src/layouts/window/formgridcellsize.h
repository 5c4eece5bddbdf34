// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class FormGridCellSize;
}

/// Asks for the distance of the grid's lines.
class FormGridCellSize : public QDialog
{
    Q_OBJECT
public:
    /// Shows a cell size in pixels.
    explicit FormGridCellSize(int cell, QWidget *parent = nullptr);
    ~FormGridCellSize() override;

    /// As gridCellSize() reads it.
    int cellSize() const;

private:
    std::unique_ptr<Ui::FormGridCellSize> m_ui;
};

} // namespace zeph
