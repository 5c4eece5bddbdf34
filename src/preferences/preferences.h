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

/// What Preferences does outside of its fields.
struct PreferencesHost {
    std::function<void()> DeleteUndosFromMemory;
    /// The detector's interval changed.
    std::function<void()> restartDetector;
};

/// All settings in tabs. There is no way to leave it without saving: each field is read back when
/// the window unloads, however it was closed.
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
    /// Takes every field and saves, once; closing the window does it too.
    void unload();
    /// After unload(): whether an option of the Cougar's is other than before.
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

/// Writes the ready command line with which the Launcher shows the Files folder.
Expected<void, FileError> SaveFilesPath(const Paths &paths);

} // namespace zeph
