// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the driver finds in the program by object names and titles, and the plain acts on fields.

#include <QAction>
#include <QLineEdit>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <memory>

QString textOf(const QWidget *widget);
QString selectionOf(const QWidget *widget);
/// The control of that object name: the modal window's first, then one that is visible, then any;
/// null when there is none.
QWidget *widgetNamed(const QString &name);
/// The visible window whose title begins so; null when there is none.
QWidget *windowTitled(const QString &title);
/// The main window; null before it is made.
QWidget *mainWindow();
/// The entry of that object name, or "WINDOW/ENTRY" for that of one window; null when there is
/// none.
QAction *actionNamed(const QString &name);
/// The line that a field is typed into: its own, or that of a list with free entry.
QLineEdit *lineOf(QWidget *field);
/// A tick's 0 or 1, a line's text, a list's place and text, a number.
QString valueOf(QWidget *field);
/// Types a text in place of a line's own.
void retype(QLineEdit &line, const QString &text);
/// Takes an entry of a list (0-based), or a number.
void choose(QWidget *field, int place);

/// What a verb does to the main window; null for other verbs.
void (*actOnMain(const QString &verb))(QWidget *);
/// "X Y W H" of the window that holds a control; empty for none.
QString placeOf(const QWidget *control);
/// Sends a key that went "down" or "up" with its number, the modifiers before it and its symbol.
bool sendNative(QWidget *control, const QStringList &stroke);

/// An act that the event loop has not begun yet. It is over when the last copy is gone, so also
/// when what was to act died before.
class Posted
{
public:
    Posted() : m_counted(std::make_shared<Counted>()) { }
    void begin() { m_counted.reset(); }
    /// Whether any act is still to begin.
    static bool isAny() { return s_count > 0; }

private:
    struct Counted {
        Counted() { ++s_count; }
        ~Counted() { --s_count; }
        Q_DISABLE_COPY_MOVE(Counted)
    };
    inline static int s_count = 0;
    std::shared_ptr<Counted> m_counted;
};

/// Acts from the event loop, so that a modal loop begun by the act does not hold the driver's
/// timer.
template <class Target, class Act> void later(Target *target, Act act)
{
    QTimer::singleShot(0, target, [target, act, posted = Posted()]() mutable {
        posted.begin();
        act(target);
    });
}
