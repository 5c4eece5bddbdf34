// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/wizards/wizard_window.h"

namespace zeph {

class ToolWindows;

/// Walks a new user through making a joystick file, by the Editor's own commands and the Composer.
class WizardJoystickFile : public WizardWindow
{
    Q_OBJECT
public:
    /// The Composer is one of the tool windows, which must outlive this one.
    WizardJoystickFile(const ComposerParts &parts, ToolWindows &windows, QWidget *parent = nullptr);

protected:
    void buttonRun(int number) override;

private:
    ToolWindows &m_windows;
};

} // namespace zeph
