// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "shell/welcome_script.h"

#include <QDialog>
#include <QTimer>

#include <memory>

namespace zeph {

class Dialogs;
struct Paths;

namespace Ui {
class Welcome;
}

/// The first run's conversation. Plays its script by a timer, page by page, and ends with the
/// answers; it changes nothing itself.
class Welcome : public QDialog
{
    Q_OBJECT
public:
    /// The interval is the time between two dots in milliseconds.
    Welcome(const Paths &paths, Dialogs &dialogs, int intervalMs = 250, QWidget *parent = nullptr);
    ~Welcome() override;

    /// What the pilot said so far; experience is -1 until the last page is answered.
    const WelcomeAnswers &answers() const { return m_answers; }

    /// Whether the folder of the Cougar's software is known.
    bool CheckForHotasDirectory() const;
    /// Lets the pilot choose that folder in a dialog.
    void GetHotasDirectory();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tick();
    void startStep(size_t step);
    void finishStep();
    void showPage(QWidget *page, QWidget *focus);
    void acceptNames();
    void acceptHotasFolder();
    void acceptExperience();

    const Paths &m_paths;
    Dialogs &m_dialogs;
    WelcomeAnswers m_answers;
    size_t m_step = 0;
    int m_ticks = 0;
    QTimer m_timerDots;
    std::unique_ptr<Ui::Welcome> m_ui;
};

} // namespace zeph
