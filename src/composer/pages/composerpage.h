// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"

#include <memory>

class QAbstractButton;
class QMenu;

namespace zeph {

class ControlPictures;

namespace Ui {
class ComposerFirstPage;
}

/// The first page of the Composer: the controls to click on pictures of stick and throttle, the
/// macros, and buttons for what goes between statements.
class ComposerFirstPage : public ComposerPage
{
    Q_OBJECT
public:
    ComposerFirstPage(const ComposerParts &parts, QWidget *parent);
    ~ComposerFirstPage() override;

    /// What a click on the control that is pointed at would insert.
    std::optional<Generated> current() const override;
    bool read(const QString &) override { return false; }
    void enter() override;
    void windowActivated() override;

    /// Lists the handles and shows the one in use.
    void GetHandles();
    /// Copies the Editor's macro list.
    void CopyMacroList();
    /// Shows the ticks that the Editor's list has now.
    void showTicks();
    /// Shows a macro that was chosen in the Editor's list.
    void selectMacro(const QString &macro);

private:
    void makePictures();
    void connectButtons();
    void connectMacros();
    void makeMenus();
    void SlashButton_Click(int index);
    void DlyRptButtons_Click(int index);
    void DLYText_LostFocus();
    void Command7_Click(int index);
    void CommandREM_Click();
    void insertMacro(const QString &name);
    void showMacroMenu(const QString &name, const QPoint &at);

    std::unique_ptr<Ui::ComposerFirstPage> m_ui;
    ControlPictures *m_pictures = nullptr;
    QMenu *mnuRHList = nullptr;
    QString m_menuMacro; ///< the macro that mnuRHList is about
};

} // namespace zeph
