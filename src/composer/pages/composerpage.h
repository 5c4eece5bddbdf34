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
    bool isPiece() const override { return m_pointed.isEmpty(); }
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
<<<<<<< HEAD
=======
    /// Shows the handle of that name. An error says why it is not shown.
    Expected<void, QString> showHandle(const QString &name);
    void ChangeHandle();
    void clicked(const ControlsPicture &picture, const QString &id);
    void tell(ControlsPicture &picture, const QString &id);
    /// Writes a control's statement, or goes to the one that it has.
    void insertControl(const QString &control);
    bool goToStatement(const QString &statement);

    /// What each button with a box inserts.
    Generated delay() const;
    Generated repeat() const;
    Generated remark() const;
    using Fragment = Generated (ComposerFirstPage::*)() const;
    void showWhenEdited(QLineEdit *box, Fragment fragment);

>>>>>>> main
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
<<<<<<< HEAD
=======
    bool m_triggerHasStages = true;
    /// The hot spot that LabelControl tells of.
    struct {
        ControlsPicture *picture = nullptr;
        QString id;
    } m_told;
    QString m_pointed; ///< the one control of the hot spot that is pointed at; else empty
    Fragment m_edited = nullptr; ///< of the box that was edited last
>>>>>>> main
};

} // namespace zeph
