// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/wizards/lesson.h"
#include "platform/control_array.h"

#include <QDialog>

#include <memory>

class QPushButton;

namespace zeph {

class LessonFrame;

namespace Ui {
class WizardWindow;
}

/// A button on a page of a wizard, which runs a command of the Editor. Its object name is
/// BTNinFrame and its number.
struct WizardButton {
    int page; ///< counted from 0
    int number;
    QStringView caption;
    QStringView tip;
    QStringView entry;
    /// Whether the command works on the selected file: that of the lesson is selected first.
    bool isForFile = false;
};

/// A window that turns the pages of a lesson with Back (CommandAll_0) and Next (CommandAll_1), and
/// closes with CommandAll_2. A wizard's last page has a closing button in place of Next.
class WizardWindow : public QDialog
{
    Q_OBJECT
public:
    /// The pages get the object names FRAMES_0, FRAMES_1 and so on. The lesson and what the parts
    /// refer to must outlive the window.
    WizardWindow(const ComposerParts &parts, const Lesson &lesson, const QString &frames,
                 QWidget *parent = nullptr);
    ~WizardWindow() override;

    /// The page in front, counted from 0.
    int page() const;
    void showPage(int page);

Q_SIGNALS:
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

protected:
    LessonFrame &frame(int page) const { return *m_frames[page]; }
    /// Puts the buttons on their pages, those of one page side by side.
    void addButtons(std::span<const WizardButton> buttons);
    /// The command of a button has been run.
    virtual void buttonRun(int) { }
    /// The control that gets the focus when the page comes to the front; null for the Next button.
    virtual QWidget *firstControl(int) const { return nullptr; }
    /// The button that the Enter key presses on that page.
    virtual QPushButton *defaultButton(int) const;

    ComposerParts m_parts;

private:
    void runButton(const WizardButton &button);
    void CommandAll_Click(int index);
    void showFile();
    int lastPage() const { return m_frames.count() - 1; }

    const Lesson &m_lesson;
    std::unique_ptr<Ui::WizardWindow> m_ui;
    ControlArray<LessonFrame> m_frames;
    ControlArray<QPushButton> m_commands; ///< CommandAll
};

/// A lesson without anything to do. Each has a class of its own, since the tool windows hold one
/// window of a class.
template <const Lesson &lesson> class TeachingWindow : public WizardWindow
{
public:
    explicit TeachingWindow(const ComposerParts &parts, QWidget *parent = nullptr)
        : WizardWindow(parts, lesson, u"LessonFrame"_s, parent)
    {
    }
};

using WizardSlashModifiers = TeachingWindow<slashModifiersLesson>;
using WizardMouseMicrostick = TeachingWindow<mouseMicrostickLesson>;
using WizardDLYandRATE = TeachingWindow<dlyAndRateLesson>;
using WizardConfigurationStatements = TeachingWindow<configurationLesson>;

} // namespace zeph
