// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/keytestform.h"

#include <QObject>

namespace zeph {

class CougarTools;
class Editor;
class Mum;

/// Ties the Key Tester to the main window: its menu entry, the Cougar's modes and the Editor's
/// memory commands.
class KeyTesterMenu : public QObject
{
    Q_OBJECT
public:
    KeyTesterMenu(const Context &context, CougarTools &tools, Mum &mum, Editor &editor);

    /// Opens the Key Tester, or brings it to the front.
    void mnuAppsKeyTester_Click();

private:
    Context m_context;
    CougarTools &m_tools;
    Mum &m_mum;
    Editor &m_editor;
};

} // namespace zeph
