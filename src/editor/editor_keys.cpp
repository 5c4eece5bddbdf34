// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/editor_keys.h"

#include "documents/editor_view.h"
#include "editor/actions.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"
#include "settings/shared_settings.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <array>

namespace zeph {

namespace {

/// The exceptions of the macro text: what Ctrl and a key runs there instead of the entry with that
/// shortcut. New, open and print have no row, since pilots rely on these keys for the joystick file
/// in both texts.
struct MacroKey {
    int key;
    QStringView entry; ///< empty: none
};

constexpr std::array macroKeys = {
    MacroKey{ Qt::Key_G, u"" },
    MacroKey{ Qt::Key_B, u"mnuViewApplyColourBothFiles" },
    MacroKey{ Qt::Key_I, u"" },
    MacroKey{ Qt::Key_U, u"mnuEditUpdateMacros" },
};

struct StandardKey {
    QKeySequence::StandardKey key;
    QStringView entry;
};

bool isMacroKey(int key)
{
    return std::ranges::find(macroKeys, key, &MacroKey::key) != macroKeys.end();
}

// Shift+Insert and the like, which the toolkit would otherwise handle without our menu entries.
constexpr std::array standardKeys = {
    StandardKey{ QKeySequence::Cut, u"mnuEditCut" },
    StandardKey{ QKeySequence::Copy, u"mnuEditCopy" },
    StandardKey{ QKeySequence::Paste, u"mnuEditPaste" },
};

QStringView standardEntry(const QKeyEvent &event)
{
    const auto row = std::ranges::find_if(
        standardKeys, [&event](const StandardKey &each) { return event.matches(each.key); });
    return row == standardKeys.end() ? QStringView() : row->entry;
}

} // namespace

EditorKeys::EditorKeys(EditorView &view, MenuActions &actions, const SharedSettings &settings,
                       StatusLine &status)
    : m_view(view), m_actions(actions), m_settings(settings), m_status(status)
{
    view.watch(*this);
    // Keys that no control handles reach the Editor widget.
    if (QWidget *editor = view.parentWidget()) {
        editor->installEventFilter(this);
    }
}

QString EditorKeys::entryFor(int key, bool macroText)
{
    const auto row = std::ranges::find(macroKeys, key, &MacroKey::key);
    return macroText && row != macroKeys.end()
        ? row->entry.toString()
        : entryWithShortcut(actionTable(), Qt::CTRL | Qt::Key(key));
}

bool EditorKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && emergencyPressed(*static_cast<QKeyEvent *>(event))) {
        return true;
    }
    if (event->type() == QEvent::KeyPress && offEntryPressed(*static_cast<QKeyEvent *>(event))) {
        return true;
    }
    const auto kind = m_view.kindOf(watched);
    if (!kind) {
        return false;
    }
    const bool macroText = *kind == DocumentKind::Macro;
    if (event->type() == QEvent::ShortcutOverride) {
        // In the texts our key table comes first; menu shortcuts serve the rest of the window.
        if (handles(*static_cast<QKeyEvent *>(event), macroText)) {
            event->accept();
            return true;
        }
    } else if (event->type() == QEvent::KeyPress) {
        return keyPressed(*static_cast<QKeyEvent *>(event), macroText);
    }
    return false;
}

bool EditorKeys::emergencyPressed(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Pause || !event.modifiers().testFlag(Qt::ShiftModifier)) {
        return false;
    }
    // A key held down repeats; one request is enough.
    if (!event.isAutoRepeat()) {
        Q_EMIT emergencyOff();
    }
    return true;
}

/// The key of an entry that is disabled comes to the texts; where there is a reason, it is told.
bool EditorKeys::offEntryPressed(const QKeyEvent &event)
{
    const QString entry = event.modifiers() == Qt::NoModifier
        ? entryWithShortcut(actionTable(), event.keyCombination())
        : QString();
    if (entry.isEmpty() || m_actions.action(entry)->isEnabled()) {
        return false;
    }
    QString why = m_actions.lackOf(entry);
    if (why.isEmpty() && conditionOf(actionTable(), entry) == EditorWhen::JoystickText) {
        why = u"%1 is for the joystick file: select its tab first (a tick in Preferences allows it "
              "from both)"_s.arg(event.key() == Qt::Key_F11 ? u"F11"_s : u"F12"_s);
    }
    if (!why.isEmpty()) {
        m_status.setText(u' ' + why);
    }
    return !why.isEmpty();
}

bool EditorKeys::handles(const QKeyEvent &event, bool macroText) const
{
    if (!standardEntry(event).isEmpty()) {
        return true;
    }
    if (event.modifiers() == Qt::ControlModifier) {
        // A key that does nothing here is taken too: otherwise the menu's shortcut would run.
        return (macroText && isMacroKey(event.key()))
            || !entryFor(event.key(), macroText).isEmpty();
    }
    return event.modifiers() == Qt::NoModifier
        && (event.key() == Qt::Key_Escape || event.key() == Qt::Key_F1);
}

bool EditorKeys::keyPressed(const QKeyEvent &event, bool macroText)
{
    if (!handles(event, macroText)) {
        return false;
    }
    const bool heldDown = event.isAutoRepeat();
    if (event.key() == Qt::Key_Escape) {
        if (!heldDown) {
            popUpInsertMenu();
        }
        return true;
    }
    if (event.key() == Qt::Key_F1) {
        if (!heldDown) {
            help();
        }
        return true;
    }
    const QStringView standard = standardEntry(event);
    QString entry = standard.isEmpty() ? entryFor(event.key(), macroText) : standard.toString();
    if (event.key() == Qt::Key_K && m_settings.DefaultToDX8KeyTester) {
        entry = u"mnuAppsDX8_0"_s;
    }
    if (entry.isEmpty()) {
        return true;
    }
    if (const QString lack = m_actions.lackOf(entry); !lack.isEmpty()) {
        m_status.setText(u' ' + lack);
    }
    // Consumed even when the entry is disabled: on some desktops the toolkit would delete lines
    // with these keys.
    if (QAction *action = m_actions.action(entry); !heldDown || action->autoRepeat()) {
        action->trigger();
    }
    return true;
}

void EditorKeys::popUpInsertMenu()
{
    QAction *divider = m_actions.action(u"mnuInsertDivider8");
    QAction *tip = m_actions.action(u"mnuInsertQuickTip");
    divider->setVisible(false);
    tip->setVisible(false);
    m_actions.menu(u"mnuInsert")->exec(m_view.belowCaret());
    divider->setVisible(true);
    tip->setVisible(true);
}

void EditorKeys::help()
{
    const Document &document = m_view.documents().selected();
    const QString word = document.text().mid(document.selStart(), document.selLength()).trimmed();
    if (word.isEmpty()) {
        m_actions.action(u"mnuHelpContents")->trigger();
    } else {
        Q_EMIT helpOn(word);
    }
}

} // namespace zeph
