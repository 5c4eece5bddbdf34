// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// How keys reach the Key Tester, and what it shows for each.

#include "livetools/key_tester_settings.h"
#include "livetools/keytestform.h"
#include "livetools/virtual_keys.h"
#include "platform/dialogs.h"
#include "platform/input/keyboard.h"
#include "platform/richtext/rich_text_box.h"
#include "settings/settings.h"
#include "ui_keytestform.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPointer>

#include <array>

namespace zeph {

namespace {

void append(RichTextBox *list, const QString &text)
{
    QTextCursor end(list->document());
    end.movePosition(QTextCursor::End);
    end.insertText(text);
    list->setTextCursor(end);
    list->ensureCursorVisible();
}

KeyStroke strokeOf(const QKeyEvent &event)
{
    return { Qt::Key(event.key()), event.modifiers(), event.nativeScanCode(),
             event.nativeVirtualKey() };
}

int keyCodeOf(const KeyStroke &stroke)
{
#ifdef Q_OS_WIN
    // Keys that no keyboard sent have no code of the system.
    if (stroke.nativeCode != 0) {
        return virtualKeyOfNative(stroke.nativeCode);
    }
#endif
    return virtualKeyOf(stroke);
}

/// What a key types. With Alt alone any key is a command and types nothing; Ctrl and Alt together
/// are AltGr, which types.
QString typedText(const QKeyEvent &event)
{
    const auto commands = event.modifiers() & (Qt::AltModifier | Qt::ControlModifier);
    return commands == Qt::AltModifier ? QString() : event.text();
}

} // namespace

void KeyTestForm::Form_KeyDown(int keycode, int shift)
{
    const KeyDownEffect effect = m_rules.keyDown(keycode, shift);
    if (effect.emergency) {
        emergency();
        return;
    }
    m_timer1->stop();
    if (effect.clearsLists) {
        ClearTextBoxes();
    }
    lightModifiers(shift, true);
    if (effect.turnsOffCapsLock) {
        TurnOffCapsLOCK();
    }
    append(m_ui->RTFKeysDownText, effect.eventText);
    append(m_ui->RTFKeysText, effect.keyText);
}

void KeyTestForm::Form_KeyPress(char16_t ascii)
{
    append(m_ui->RTFKeysText, m_rules.keyPress(ascii));
}

void KeyTestForm::Form_KeyUp(int keycode, int)
{
    if (m_context.settings.of<KeyTesterSettings>().ClearDelay == noClearDelay) {
        m_timer1->stop();
    } else {
        m_timer1->start();
    }
    if (keycode >= shiftKeyCode && keycode <= altKeyCode) {
        lightModifiers(1 << (keycode - shiftKeyCode), false);
    }
    showNumLock();
    if (keycode == capsLockKeyCode) {
        TurnOffCapsLOCK();
    }
    append(m_ui->RTFKeysDownText, m_rules.keyUp(keycode));
}

void KeyTestForm::emergency()
{
    const QPointer<KeyTestForm> alive(this);
    Q_EMIT emergencyOff();
    if (alive) {
        close();
    }
}

void KeyTestForm::lightModifiers(int shift, bool on) const
{
    const std::array labels = { m_ui->LabelSHIFT, m_ui->LabelCTRL, m_ui->LabelALT };
    for (size_t bit = 0; bit < labels.size(); ++bit) {
        if (shift & (1 << bit)) {
            light(labels[bit], on);
        }
    }
}

void KeyTestForm::showNumLock() const
{
    light(m_ui->LabelNUMLOCK, m_context.keyboard.numLockOn());
}

void KeyTestForm::keyPressed(const QKeyEvent &event)
{
    m_context.keyboard.noteNativeModifiers(event.nativeModifiers());
    const KeyStroke stroke = strokeOf(event);
    const QString text = typedText(event);
    const QPointer<KeyTestForm> alive(this);
    Form_KeyDown(keyCodeOf(stroke), shiftStateOf(stroke));
    for (const QChar character : text) {
        if (alive && character.isPrint()) {
            Form_KeyPress(character.unicode());
        }
    }
}

void KeyTestForm::keyReleased(const QKeyEvent &event)
{
    m_context.keyboard.noteNativeModifiers(event.nativeModifiers());
    // Some systems report a key that is held down as released and pressed again and again.
    if (!event.isAutoRepeat()) {
        const KeyStroke stroke = strokeOf(event);
        Form_KeyUp(keyCodeOf(stroke), shiftStateOf(stroke));
        // AltGr counts as Ctrl and Alt, but there is only one release.
        lightModifiers(~shiftStateOf(stroke), false);
    }
}

bool KeyTestForm::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    if (type == QEvent::Resize && watched == m_ui->LabelEvents) {
        // The label gets its size after the window, and its heading depends on it.
        ResizeStuff();
        return false;
    }
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::ShortcutOverride
        && type != QEvent::ContextMenu) {
        return false;
    }
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || widget->window() != this) {
        return false;
    }
    if (type == QEvent::ContextMenu) {
        return static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard;
    }
    event->accept();
    auto &key = *static_cast<QKeyEvent *>(event);
    if (type == QEvent::KeyPress) {
        guarded(m_context.dialogs, [this, &key] { keyPressed(key); })();
    } else if (type == QEvent::KeyRelease) {
        guarded(m_context.dialogs, [this, &key] { keyReleased(key); })();
    }
    return true;
}

void KeyTestForm::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        // The window is not told of keys that are released while another one is active.
        lightModifiers(ShiftDown | CtrlDown | AltDown, false);
        showNumLock();
    }
}

bool KeyTestForm::focusNextPrevChild(bool)
{
    return false;
}

} // namespace zeph
