// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The programs around the Cougar that Zeph only starts. None is waited for.

#include "platform/context.h"

#include <span>

namespace zeph {

class CougarModes;
struct Launch;

/// A program that belongs to Zeph and lies beside it, and the menu entry that starts it.
struct Companion {
    QStringView action;
    QStringView program;
};

std::span<const Companion> companionTable();

/// What the menu entries of the Cougar's other tools do.
class ExternalTools
{
public:
    ExternalTools(const Context &context, CougarModes &modes) : m_context(context), m_modes(modes)
    {
    }

    /// The control panel, its pages, and the viewers; the index is the menu's, 0 to 5.
    void MnuDiagArray_Click(int index);
    /// 0 empty the buffers, 1 clear the memory, 2 reset after a question, 3 HOTAS Cleanse, 4 have
    /// the mode reported.
    void mnuMemoryClear_Click(int index);
    /// The update of the firmware.
    void mnuFlashUpgrade_Click();
    /// Asks for the installer of a new handle and starts it.
    void mnuHandleInstall_Click();
    /// Windows' own game controllers, 0 and 1.
    void mnuFlashArray_Click(int index);
    /// Starts a companion; a missing one is told with its path.
    void startCompanion(QStringView program);

private:
    bool start(const Launch &launch);
    bool startTool(QStringView program, QStringView arguments, QStringView note);
    void startCleanse();

    Context m_context;
    CougarModes &m_modes;
};

} // namespace zeph
