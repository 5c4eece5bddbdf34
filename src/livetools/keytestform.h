// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/key_test_rules.h"
#include "platform/context.h"
#include "toolchain/hotas_ini.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>

class QAction;
class QKeyEvent;
class QLabel;
class QMenuBar;

namespace zeph {

class MenuActions;
class RichTextBox;

namespace Ui {
class KeyTestForm;
}

/// The Editor's menu entries that the Key Tester runs too. All must outlive it.
struct KeyTestEntries {
    std::array<QAction *, 2> memoryClear; ///< 0 empty buffers, 1 clear memory
    QAction *directXTester; ///< hidden where there is no such tester
};

/// Shows what the Cougar really sends: each key that goes down and up, and the text that results.
/// While the window is in front, every key is shown and does nothing else.
class KeyTestForm : public QWidget
{
    Q_OBJECT
public:
    KeyTestForm(const Context &context, const KeyTestEntries &entries, QWidget *parent = nullptr);
    ~KeyTestForm() override;

    /// Reads what the window needs and puts the Cougar into programmed mode. False when there is no
    /// key table, or when the window was closed meanwhile, and maybe deleted: the caller must not
    /// show it.
    bool Form_Load();

    void GetKeyPosition();
    void SaveKeyFormPosition();
    void ClearTextBoxes();
    /// Reads KeyCodes.txt. False, which is told, when there is none.
    bool GetMappedCharacters();
    void TurnOffCapsLOCK();
    void ToggleMenus();
    void ResizeStuff();

    /// Takes a key that goes down, which may close the window and delete it. Key codes are virtual
    /// ones; shift states are bits of ShiftBit.
    void Form_KeyDown(int keycode, int shift);
    void Form_KeyUp(int keycode, int shift);
    void Form_KeyPress(char16_t ascii);

Q_SIGNALS:
    /// The buttons' programmed (true) or Windows mode is wanted.
    void buttonsModeWanted(bool programmed);
    /// Shift+Break: the Cougar's buttons must stop typing at once.
    void emergencyOff();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void connectEntries();
    void mnuYankCord_Click();
    void keyPressed(const QKeyEvent &event);
    void keyReleased(const QKeyEvent &event);
    void emergency();
    void chooseClearDelay(int index);
    void setClearDelay(int index);
    void setFontSize(int index);
    void showKeyEvents(bool shown);
    void showMenus(bool shown);
    void copyList(int index) const;
    void light(QLabel *label, bool on) const;
    void lightModifiers(int shift, bool on) const;
    void showNumLock() const;
    void readMode();
    void LBL_ModeWarning_Click();

    Context m_context;
    KeyTestEntries m_entries;
    std::unique_ptr<Ui::KeyTestForm> m_ui;
    std::unique_ptr<MenuActions> m_menus;
    QMenuBar *m_bar;
    KeyTestRules m_rules;
    QTimer *m_timer1;
    QTimer m_modeTimer;
    QString m_layoutName;
    ModeReport m_mode;
};

} // namespace zeph
