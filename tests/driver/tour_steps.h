// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "notes.h"

#include <QElapsedTimer>
#include <QSet>

#include <optional>

class QWidget;

/// The steps that show the program from window to window. driver.cpp describes them.
class TourSteps
{
public:
    /// Shows everything on a dark desktop when ZEPH_TOUR_PALETTE is "dark".
    explicit TourSteps(Notes &notes);

    /// Does one step that has waited so many milliseconds. False: what it waits for is not there
    /// yet; no value: the verb is none of these.
    std::optional<bool> perform(const QString &verb, const QString &rest, qint64 waitedMs);
    /// With "answers", notes a message box that is open and presses its default button.
    void answerBox();

private:
    bool welcome();
    bool popUp(const QString &name) const;
    bool pressKeys(const QString &name, const QString &keys) const;
    bool click(const QString &name, bool twice) const;
    bool toggle(const QString &button, const QString &name, bool wanted) const;
    void grabAll(const QString &name) const;
    void leaveAll() const;

    Notes &m_notes;
    bool m_answers = false;
    QWidget *m_answered = nullptr;
    QSet<QString> m_welcomePages;
    QElapsedTimer m_sinceWelcome;
};
