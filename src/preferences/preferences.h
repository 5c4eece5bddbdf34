// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/file_io.h"
#include "preferences/preferences_keys.h"

#include <QDialog>
#include <QList>

#include <functional>
#include <memory>

namespace zeph {

class DefaultsPage;
class Games;
class PreferencesPage;
class UserLists;

namespace Ui {
class Preferences;
}

/// What Preferences calls outside of its fields.
struct PreferencesHost {
    std::function<void()> DeleteUndosFromMemory;
    /// Called when the detector's interval was changed.
    std::function<void()> restartDetector;
};

/// All settings, in tabs. It always saves: however the window is closed, each field is taken.
class Preferences : public QDialog
{
    Q_OBJECT
public:
    struct Parts {
        UserLists &lists;
        Games &games;
    };
    Preferences(const Context &context, const Parts &parts, PreferencesHost host,
                QWidget *parent = nullptr);
    ~Preferences() override;

    void showTab(PreferencesTab tab);
    /// Takes every field and saves. Done once; closing the window calls it too.
    void unload();
    /// Whether unload() changed an option of the Cougar.
    bool hardwareHasChanged() const { return m_hardwareHasChanged; }

    void done(int result) override;

private:
    void addPages(const Parts &parts);
    void addPage(PreferencesTab tab, PreferencesPage *page);
    void takeFields();
    void save();

    Context m_context;
    Parts m_parts;
    PreferencesHost m_host;
    std::unique_ptr<Ui::Preferences> m_ui;
    QList<PreferencesPage *> m_pages;
    QList<PreferencesTab> m_tabs;
    DefaultsPage *m_defaults = nullptr;
    bool m_unloaded = false;
    bool m_hardwareHasChanged = false;
};

/// Stores the command line with which the Launcher shows the Files folder.
Expected<void, FileError> SaveFilesPath(const Paths &paths);

} // namespace zeph
