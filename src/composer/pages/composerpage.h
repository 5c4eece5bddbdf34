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

    /// What a click on the control that is pointed at would insert; else what the button of the
    /// box would that was edited last.
    std::optional<Generated> current() const override;
    bool isPiece() const override;
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
    /// What each button with a box inserts.
    Generated delay() const;
    Generated repeat() const;
    Generated remark() const;
    using Fragment = Generated (ComposerFirstPage::*)() const;
    void showWhenEdited(QLineEdit *box, Fragment fragment);

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
    Fragment m_edited = nullptr; ///< of the box that was edited last
};

} // namespace zeph
