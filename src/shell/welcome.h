// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "shell/welcome_script.h"

#include <QDialog>
#include <QTimer>

#include <memory>

namespace zeph {

namespace Ui {
class Welcome;
}

/// The first run's conversation. Plays its script by a timer, page by page, and ends with the
/// answers; it changes nothing itself. The last page shows a sample in the look that is chosen.
class Welcome : public QDialog
{
    Q_OBJECT
public:
    /// Begins with the answers of a conversation that was broken off. The interval is the time
    /// between two dots in milliseconds.
    Welcome(const Context &context, const WelcomeAnswers &before, int intervalMs = 250,
            QWidget *parent = nullptr);
    ~Welcome() override;

    /// What the pilot said so far, names included that were not confirmed; experience is -1 until
    /// its page is answered.
    WelcomeAnswers answers() const;

    /// Whether the Cougar's own software lies in the folder that is known.
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
    void connectPages();
    void fillExperience();
    void fillLook();
    void showLook();
    void acceptHotasFolder();
    void acceptExperience();

    Context m_context;
    WelcomeAnswers m_answers;
    size_t m_step = 0;
    int m_ticks = 0;
    QTimer m_timerDots;
    std::unique_ptr<Ui::Welcome> m_ui;
};

} // namespace zeph
