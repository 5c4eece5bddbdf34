// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QKeyEvent;

namespace zeph {

class MenuActions;
class EditorView;
class StatusLine;
struct SharedSettings;

/// The keys of the two texts other than typing. A key with Ctrl alone runs its menu entry, which
/// may differ between the texts, and never reaches the text.
class EditorKeys : public QObject
{
    Q_OBJECT
public:
    EditorKeys(EditorView &view, MenuActions &actions, const SharedSettings &settings,
               StatusLine &status);

    /// The object name of the menu entry that Ctrl and this key runs; empty when there is none.
    static QString entryFor(int key, bool macroText);

Q_SIGNALS:
    /// F1 was pressed on a selection; the selected text, trimmed.
    void helpOn(const QString &word);
    /// Shift+Break was pressed anywhere in the Editor: the Cougar's buttons must stop typing at
    /// once.
    void emergencyOff();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool emergencyPressed(const QKeyEvent &event);
    bool offEntryPressed(const QKeyEvent &event);
    bool handles(const QKeyEvent &event, bool macroText) const;
    bool keyPressed(const QKeyEvent &event, bool macroText);
    void popUpInsertMenu();
    void help();

    EditorView &m_view;
    MenuActions &m_actions;
    const SharedSettings &m_settings;
    StatusLine &m_status;
};

} // namespace zeph
