// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The programs around the Cougar that Zeph starts without waiting for them.

#include "platform/context.h"

#include <QList>

#include <span>

namespace zeph {

class CougarModes;
class ProcessLauncher;
struct Launch;
struct Paths;

/// A program that comes with Zeph and is in the same folder, and the menu entry that starts it.
struct Companion {
    QStringView action;
    QStringView program;
};

std::span<const Companion> companionTable();

/// A menu entry and the program that it needs.
struct EntryProgram {
    QString entry;
    QString program; ///< its path, or a name alone for a program of the system
    /// The entry opens a box when the program is missing, so it can be chosen all the same.
    bool tellsByItself = false;
};

/// All entries that need a program, for the folders as they are now.
QList<EntryProgram> entryPrograms(const Paths &paths);
/// What the entry lacks, in words; empty when its program is there.
QString lackOf(const EntryProgram &entry, const ProcessLauncher &launcher);

/// What the menu entries of the Cougar's other tools do.
class ExternalTools
{
public:
    ExternalTools(const Context &context, CougarModes &modes) : m_context(context), m_modes(modes)
    {
    }

    /// Starts the control panel, one of its pages, or a viewer, by the menu's index (0 to 5).
    void MnuDiagArray_Click(int index);
    /// Empties the buffers (0), clears the memory (1), resets the Cougar after a question (2),
    /// starts HOTAS Cleanse (3) or has the mode reported (4).
    void mnuMemoryClear_Click(int index);
    /// Starts the update of the firmware.
    void mnuFlashUpgrade_Click();
    /// Asks for the installer of a new handle and starts it.
    void mnuHandleInstall_Click();
    /// Opens one of the two pages (0 and 1) of Windows' own game controllers.
    void mnuFlashArray_Click(int index);
    /// Starts a companion program; a missing one is told with its path.
    void startCompanion(QStringView program);

private:
    bool start(const Launch &launch);
    bool startTool(QStringView program, QStringView arguments, QStringView note);
    void startCleanse();

    Context m_context;
    CougarModes &m_modes;
};

} // namespace zeph
