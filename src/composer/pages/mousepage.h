// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/generators/mouse_statements.h"
#include "composer/pages/option_boxes.h"

#include <memory>

namespace zeph {

namespace Ui {
class MousePage;
}

/// The page "Mouse / Microstick": the mouse type, an axis as mouse, and what a button does with the
/// mouse.
class MousePage : public ComposerPage
{
    Q_OBJECT
public:
    MousePage(const ComposerParts &parts, QWidget *parent);
    ~MousePage() override;

    std::optional<Generated> current() const override;
    bool isPiece() const override;
    bool read(const QString &statement) override;
    void enter() override;
    void windowActivated() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fillLists();
    void connectButtons();
    MouseTypeFields typeFields() const;
    AxisAsMouseFields axisFields() const;
    MouseCommandFields commandFields() const;
    void showFields(const MouseTypeFields &fields);
    void showFields(const AxisAsMouseFields &fields);
    void showFields(const ReadMouseCommand &command);
    void showButtonsOfType();
    /// Offers what the chosen axis can drive, and enables the options that go with it.
    void DisableChecksForUSeAxisAsMouse();
    void Command9_Click(int index);
    void CMD_MouseButton_Click(MouseCommand command);
    void CMD_MouseWizard_Click();

    std::unique_ptr<Ui::MousePage> m_ui;
    OptionBoxes m_typeOptions;
    OptionBoxes m_axisOptions;
    /// MSX or MSY, which take the same field: the one whose button had the focus last.
    MouseCommand m_move = MouseCommand::MoveX;
};

} // namespace zeph
