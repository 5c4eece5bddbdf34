// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/tool_parts.h"

namespace zeph {

class ExternalTools;
enum class CalibrationRequest;

/// The menu entries of the Cougar's other tools, of the profiles and of Zeph's companion programs.
class ToolsMenu
{
public:
    ToolsMenu(const Context &context, const ToolParts &parts, ExternalTools &tools);

    /// Ticks the entry that resets the axes with each download, as the settings say; the profile
    /// can be applied by itself only while it is ticked.
    void UpdateResetAxes();

private:
    void connectTools();
    void connectProfiles();
    void saveAndUpdate();
    void mnuResetAxes_Click();
    void mnuResetOptions_Click();
    void mnuDownloadProfile_Click();
    void apply(const QString &profile, CalibrationRequest calibration);

    Context m_context;
    ToolParts m_parts;
    ExternalTools &m_tools;
};

} // namespace zeph
