// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
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
class TemplateGuard;
struct ToolEntries;
class UserLists;

/// The outside world of a run; all of it must outlive the Application.
struct ApplicationOptions {
    /// The folder of all files, without a closing separator.
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
    /// False when neither appFolder nor any other folder for the program's files can be written.
    bool canWrite = true;
    /// Files in appFolder that the program would have brought up to date, had the user not changed
    /// them.
    QStringList keptFiles = {};
};

/// The composition root: owns the paths, the settings, the status line and the main window, brings
/// a run up in its fixed order and down again.
class Application
{
public:
    explicit Application(const ApplicationOptions &options);
    ~Application();

    /// Gives every window the same look on every system.
    static void applyStyle(QApplication &application);

    /// Brings the run up. False when it has to end at once; the user knows why then.
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
    void findHotasFolder();
    void makeFolders() const;
    void readSettings();
    void startModes();
    void loadEditor();
    void addToolWindows();
    void addPictures(const ToolEntries &tools);
    void addQuickView(const ToolEntries &tools);
    void readEditorOptions();
    /// Tells the user the problems that were not told before: some keys are read at several steps
    /// of the start.
    void tellOnce(const SettingProblems &problems);
    void hideDirectXTesters();
    void greet();
    void selectFirstTab();
    bool queryUnload();
    void unloadMum();
    SettingsFiles files() const;

    ApplicationOptions m_options;
    Instance m_instance;
    Paths m_paths;
    Settings m_settings;
    SettingProblems m_told;
    StatusLine m_status;
    QString m_commandLineFile;
    bool m_wasSetUp = false; ///< an earlier run has written the first run's defaults
    std::unique_ptr<Mum> m_mum;
    Editor *m_editor = nullptr;
    HelpMenu *m_help = nullptr;
    TemplateGuard *m_templateGuard = nullptr;
    UserLists *m_lists = nullptr;
    CougarTools *m_tools = nullptr;
    std::unique_ptr<FilePrinting> m_printing;
};

} // namespace zeph
