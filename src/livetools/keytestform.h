// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/key_test_rules.h"
#include "platform/context.h"
#include "toolchain/hotas_ini.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QAction;
class QKeyEvent;
class QLabel;

namespace zeph {

class CougarModes;
class ExternalTools;
class KeyTestMenus;
class RichTextBox;

namespace Ui {
class KeyTestForm;
}

/// Shows what the Cougar really sends: each key that goes down and up, and the text that results.
/// While the window is in front, every key is shown and does nothing else.
class KeyTestForm : public QWidget
{
    Q_OBJECT
public:
    struct Parts {
        CougarModes &modes;
        ExternalTools &tools;
        /// The menu entry that starts the tester for DirectX keys; hidden where there is none.
        QAction &directXTester;
    };
    KeyTestForm(const Context &context, const Parts &parts, QWidget *parent = nullptr);
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
    Parts m_parts;
    std::unique_ptr<Ui::KeyTestForm> m_ui;
    KeyTestMenus *m_menus;
    KeyTestRules m_rules;
    QTimer *m_timer1;
    QTimer m_modeTimer;
    QString m_layoutName;
    ModeReport m_mode;
};

} // namespace zeph
