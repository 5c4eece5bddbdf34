// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/instance_lock.h"
#include "platform/status_line.h"
#include "settings/further_instances.h"
#include "settings/settings.h"

#include <QStringList>

#include <memory>

class QApplication;

namespace zeph {

class CougarTools;
class Downloader;
class Editor;
class FilePrinting;
class HelpMenu;
class Joystick;
class Mum;
class Printers;
class Screen;
class SystemInfo;
class TemplateMenu;
class UserLists;

/// The world that a run stands in; all must outlive it.
struct ApplicationOptions {
    /// The folder that everything lies in, without a closing separator.
    QString appFolder;
    /// The command line without the program's name.
    QStringList arguments;
    Dialogs &dialogs;
    ProcessLauncher &launcher;
    Clock &clock;
    Downloader &downloader;
    Keyboard &keyboard;
    Joystick &joystick;
    Printers &printers;
    const Screen &screen;
    const SystemInfo &system;
    /// Milliseconds between two dots of the first run's script.
    int welcomeIntervalMs = 250;
};

/// The composition root: owns the paths, the settings, the status line and the main window, brings
/// a run up in its fixed order and down again.
class Application
{
public:
    explicit Application(const ApplicationOptions &options);
    ~Application();

    /// How every window looks, on every system.
    static void applyStyle(QApplication &application);

    /// Brings the run up. False when it has to end at once, which has been told.
    bool start();

    Mum &mum() { return *m_mum; }
    Editor &editor() { return *m_editor; }
    HelpMenu &help() { return *m_help; }
    CougarTools &tools() { return *m_tools; }
    Context context();
    const Paths &paths() const { return m_paths; }
    Settings &settings() { return m_settings; }
    StatusLine &status() { return m_status; }

private:
    bool chooseInstance();
    void placeMum();
    void makeFolders() const;
    void readSettings();
    void startModes();
    void loadEditor();
    void readEditorOptions();
    /// Some keys are read at several steps of the start; what is wrong with them is told at the
    /// first.
    void tellOnce(const SettingProblems &problems);
    void hideDirectXTesters();
    void greet();
    void selectFirstTab();
    bool queryUnload();
    void unloadMum();
    SettingsFiles files() const;

    ApplicationOptions m_options;
    InstanceLock m_lock;
    Instance m_instance;
    Paths m_paths;
    Settings m_settings;
    SettingProblems m_told;
    StatusLine m_status;
    QString m_commandLineFile;
    std::unique_ptr<Mum> m_mum;
    Editor *m_editor = nullptr;
    HelpMenu *m_help = nullptr;
    UserLists *m_lists = nullptr;
    CougarTools *m_tools = nullptr;
    TemplateMenu *m_templates = nullptr;
    std::unique_ptr<FilePrinting> m_printing;
};

} // namespace zeph
