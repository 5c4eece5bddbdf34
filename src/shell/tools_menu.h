// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/external_tools.h"

#include <QObject>

namespace zeph {

class Editor;
class Mum;
class Profiles;

/// Ties the Cougar's other tools, the profiles and Zeph's companion programs to their menu entries.
class ToolsMenu : public QObject
{
    Q_OBJECT
public:
    ToolsMenu(const Context &context, CougarModes &modes, Profiles &profiles, Mum &mum,
              Editor &editor);

    /// Shows whether each download resets the axes; only then the profile can be applied by itself.
    void UpdateResetAxes();

private:
    void connectTools();
    void connectProfiles();
    void saveAndUpdate();
    void mnuResetAxes_Click();
    void mnuResetOptions_Click();
    void mnuDownloadProfile_Click();

    Context m_context;
    Profiles &m_profiles;
    Mum &m_mum;
    Editor &m_editor;
    ExternalTools m_tools;
};

} // namespace zeph
