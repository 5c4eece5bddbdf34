// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/wizardjoystickfile.h"

#include "composer/insertoptions.h"
#include "composer/pages/usepage.h"
#include "platform/tool_windows.h"

namespace zeph {

namespace {

/// The buttons that open the Composer, by their numbers.
enum ComposerButton { MacroFileButton = 3, ControlsButton = 6, AxesButton = 7 };

// clang-format off
constexpr WizardButton buttons[] = {
    { 1, 0, u"&Open a macro file", u"Opens the macro file that your joystick file is going to use", u"MnuFileMacroLoad" },
    { 2, 1, u"Ne&w joystick file please", u"Puts a fresh joystick file into the Editor; asks first if the present one isn't saved", u"mnuFileNewJoystick" },
    { 3, 2, u"&Save joystick file", u"Asks for a name and a place, and saves the file there", u"mnuFileSave", true },
    { 4, MacroFileButton, u"Show me the Composer's M&DEF page", u"Opens the Composer where it writes USE MDEF", u"mnuAppsComposer" },
    { 5, 4, u"Inse&rt a title please", u"Asks what the title should say, and writes it at the caret", u"mnuInsertTitle", true },
    { 6, ControlsButton, u"Show me the Composer's &pictures", u"Opens the Composer at the stick and the throttle", u"mnuAppsComposer" },
    { 7, AxesButton, u"Show me the Composer's di&gital axes", u"Opens the Composer where it turns axes into keys", u"mnuAppsComposer" },
    { 8, 5, u"Co&mpile my joystick file", u"Hands the joystick file to the compiler", u"mnuAppsCompile", true },
};
// clang-format on

} // namespace

WizardJoystickFile::WizardJoystickFile(const ComposerParts &parts, ToolWindows &windows,
                                       QWidget *parent)
    : WizardWindow(parts, joystickFileLesson, u"JoyWizFrame"_s, parent), m_windows(windows)
{
    addButtons(buttons);
}

void WizardJoystickFile::buttonRun(int number)
{
    if (isMinimized()) {
        // The compiler has all windows make room.
        showNormal();
    }
    auto *composer = m_windows.get<InsertOptions>();
    if (!composer) {
        return;
    }
    switch (number) {
    case MacroFileButton:
        static_cast<UsePage *>(composer->page(InsertOptions::Use))
            ->bringToFront(UseInsert::MacroFile);
        composer->showPage(InsertOptions::Use);
        break;
    case ControlsButton:
        composer->showPage(InsertOptions::Composer);
        break;
    case AxesButton:
        composer->showPage(InsertOptions::DigitalAxis);
        break;
    default:
        break;
    }
}

} // namespace zeph
