// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/quickview/coverage.h"
#include "platform/context.h"
#include "text/macro_keys.h"

#include <QModelIndex>
#include <QWidget>

#include <functional>
#include <memory>

namespace zeph {

class CoverageModel;

namespace Ui {
class CoverageWindow;
}

/// Quick View's table of all controls by mode and shift: which positions are used, which are empty,
/// and which repeat another mode. A click on a cell, or Enter, leads to its statement.
class CoverageWindow : public QWidget
{
    Q_OBJECT
public:
    explicit CoverageWindow(const Context &context, QWidget *parent = nullptr);
    ~CoverageWindow() override;

    using QWidget::show;
    /// Shows another table, and opens nothing. The chosen cell stays, and is chosen again when the
    /// filter had hidden it.
    void show(const Assignments &table, const MacroKeys &keys);

    /// The cell that the keyboard is on; row and column are 0 without one.
    CellPlace chosen() const;

    void GetCoveragePosition();
    void SaveCoveragePosition();

Q_SIGNALS:
    void jumpTo(zeph::CellPlace cell);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpTable();
    void setUpFilter();
    void showColours();
    void showCount();
    void keepingChosen(const std::function<void()> &change);
    void jumpFrom(const QModelIndex &index);
    void copy() const;

    Context m_context;
    std::unique_ptr<Ui::CoverageWindow> m_ui;
    CoverageModel *m_model;
    CellPlace m_chosen; ///< the last cell that the user chose, maybe hidden now
};

} // namespace zeph
