// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/generators/logic_workbench.h"
#include "platform/control_array.h"

#include <memory>

class QBoxLayout;
class QRadioButton;

namespace zeph {

class StatementLine;

namespace Ui {
class LogicalPage;
}

/// The page "Logical": a workbench of 96 lines, on which statements on logical flags are put
/// together from buttons before they go into the joystick file.
class LogicalPage : public ComposerPage
{
    Q_OBJECT
public:
    LogicalPage(const ComposerParts &parts, QWidget *parent);
    ~LogicalPage() override;

    /// The selected line; no value while it is empty.
    std::optional<Generated> current() const override;
    bool read(const QString &statement) override;
    void enter() override;
    void windowActivated() override;

    /// The index of the line that receives what the buttons insert, 0-based.
    int WhichLogicText() const { return m_workbench.WhichLogicText(); }

private:
    void FillLogicLists();
    void makeWordButtons();
    QPushButton *addWordButton(QBoxLayout &row, const QString &name, QStringView word,
                               const QString &tip);
    void makeLines();
    void makeLine(int index, QWidget *sheet);
    void connectButtons();
    FlagFields fields() const;
    void showLines();
    void select(int index);
    /// The selected line if it is empty, else the first empty one, else the selected one.
    int freeLine() const;
    void goToLine(int index);
    void lineEdited(int index);
    void append(QStringView word);
    void insertIntoJoystick(const std::optional<Statement> &statement);
    void readBack();
    void CMDFlagInsert_Click(int index);
    void Command13_Click(int index);

    std::unique_ptr<Ui::LogicalPage> m_ui;
    LogicWorkbench m_workbench;
    ControlArray<StatementLine> m_lines; ///< RichTexFlag
    ControlArray<QRadioButton> m_options; ///< OptionFlag
};

} // namespace zeph
