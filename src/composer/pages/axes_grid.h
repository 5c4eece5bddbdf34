// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/axes_config.h"

#include <QWidget>

#include <vector>

class QAbstractButton;
class QLabel;

namespace zeph {

/// The grid of AxesConfig as 100 cells to click: LBL_UseAxes_0 to LBL_UseAxes_99, a row after the
/// other. Tab reaches one of them, the arrow keys go on from there.
class AxesGrid : public QWidget
{
    Q_OBJECT
public:
    explicit AxesGrid(QWidget *parent);

    const AxesConfig &config() const { return m_config; }
    void setConfig(const AxesConfig &config);

Q_SIGNALS:
    void changed();

protected:
    /// The arrow keys of the cells.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAbstractButton *addCell(int row, int column);
    void click(int cell);
    void focusOn(int cell);
    void showConfig();

    AxesConfig m_config;
    std::vector<QLabel *> m_columns;
    std::vector<QAbstractButton *> m_cells;
    /// The cell that Tab reaches.
    int m_reached = 0;
};

} // namespace zeph
