// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "preferences/preferences_keys.h"

#include <QObject>

namespace zeph {

class CougarTools;
class Editor;
class Mum;
class UserLists;
struct ColourSettings;
struct EditorSettings;
struct MenuSettings;

/// Opens Preferences, and lets the running program follow what was changed there.
class PreferencesMenu : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        Mum &mum;
        Editor &editor;
        UserLists &lists;
        CougarTools &tools;
    };
    PreferencesMenu(const Context &context, const Parts &parts);

    void mnuAppsPreferences_Click() { open(PreferencesTab::FileLocations); }
    void mnuGamesEdit_Click() { open(PreferencesTab::Games); }

private:
    void open(PreferencesTab tab);
    void restartDetector();
    /// Lets the program follow; both are what the settings were before.
    void follow(const EditorSettings &editor, const ColourSettings &colours);

    Context m_context;
    Parts m_parts;
};

/// Keeps every tooltip of the program from showing while OKtoShowToolTips is off.
class TooltipSwitch : public QObject
{
    Q_OBJECT
public:
    TooltipSwitch(const MenuSettings &settings, QObject *parent);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const MenuSettings &m_settings;
};

} // namespace zeph
