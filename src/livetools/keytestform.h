// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/key_test_rules.h"
#include "platform/context.h"
#include "toolchain/hotas_ini.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QKeyEvent;
class QLabel;

namespace zeph {

class KeyTestMenus;
class RichTextBox;

namespace Ui {
class KeyTestForm;
}

/// What the Key Tester needs of the rooms around it. All must be set.
struct KeyTestHost {
    /// Asks for the buttons' programmed (true) or Windows mode.
    std::function<void(bool programmed)> changeButtonsMode;
    /// Shift+Break: tells what it does, asks for Windows mode, and lets events run.
    std::function<void()> emergencyOff;
    /// The Cougar menu's memory command of that index: 0 empty buffers, 1 clear memory.
    std::function<void(int index)> mnuMemoryClear_Click;
    /// Whether there is a tester for DirectX keys, and its start.
    std::function<bool()> hasDirectXTester;
    std::function<void()> startDirectXTester;
};

/// Shows what the Cougar really sends: each key that goes down and up, and the text that results.
/// While the window is in front every key is shown and none does anything else.
class KeyTestForm : public QWidget
{
    Q_OBJECT
public:
    KeyTestForm(const Context &context, KeyTestHost host, QWidget *parent = nullptr);
    ~KeyTestForm() override;

    /// Reads what the window needs and asks for the Cougar's programmed mode. False when the
    /// window has to go again: without a key table, or closed while events ran (it may then be
    /// gone for good).
    bool Form_Load();

    void GetKeyPosition();
    void SaveKeyFormPosition();
    void ClearTextBoxes();
    /// Reads KeyCodes.txt, restored from its copy if need be. False when there is none.
    bool GetMappedCharacters();
    void TurnOffCapsLOCK();
    void ToggleMenus();
    void ResizeStuff();

    /// Virtual key codes; shift states are bits of ShiftBit. A key going down may close the window
    /// and delete it.
    void Form_KeyDown(int keycode, int shift);
    void Form_KeyUp(int keycode, int shift);
    void Form_KeyPress(char16_t ascii);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void chosen(const QString &name, int index);
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
    KeyTestHost m_host;
    std::unique_ptr<Ui::KeyTestForm> m_ui;
    KeyTestMenus *m_menus;
    KeyTestRules m_rules;
    QTimer *m_timer1;
    QTimer m_modeTimer;
    QString m_layoutName;
    ModeReport m_mode;
};

} // namespace zeph
