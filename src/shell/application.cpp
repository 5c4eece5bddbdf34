// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/application.h"

#include "documents/document_settings.h"
#include "documents/editor_view.h"
#include "documents/foreign_keyboard.h"
#include "documents/highlighting.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "editor/files/backups.h"
#include "editor/files/file_opening.h"
#include "editor/files/loss_guards.h"
#include "editor/files/printing.h"
#include "editor/files/use_directives.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_features.h"
#include "lists/user_lists.h"
#include "livetools/live_tools.h"
#include "livetools/pictures/viewimage.h"
#include "livetools/quickview/quickview.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "platform/system_info.h"
#include "platform/tool_windows.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "settings/shared_settings.h"
#include "shell/composer_tools.h"
#include "shell/first_run.h"
#include "shell/help_menu.h"
#include "shell/layout_tools.h"
#include "shell/main_scene.h"
#include "shell/mouse_tools.h"
#include "shell/mum.h"
#include "shell/preferences_menu.h"
#include "shell/settings/shell_settings.h"
#include "shell/start_up.h"
#include "shell/template_guard.h"
#include "shell/wizard_tools.h"
#include "shell/zeph_style.h"
#include "templates/template_tools.h"
#include "templates/templateform.h"
#include "toolchain/cougar_tools.h"
#include "toolchain/hotas_folder.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/tool_presence.h"
#include "toolchain/toolchain_settings.h"
#include "toolchain/tools_menu.h"

#include <QAction>
#include <QApplication>
#include <QDir>

namespace zeph {

namespace {

QString storeOf(const QString &appFolder)
{
    return withClosingSeparator(appFolder) + u"Zeph.ini"_s;
}

} // namespace

Application::Application(const ApplicationOptions &options) : m_options(options)
{
    addAllSettings(m_settings);
    m_paths.appFolder = options.appFolder;
    m_paths.iniPath = storeOf(options.appFolder);
    m_options.dialogs.customColours = {
        [this] { return GetCustomColour(ProfileFile(m_paths.iniPath)); },
        [this](const CustomColours &colours) {
            // When the store cannot be written, the colours still hold for this run.
            (void)keepCustomColours(ProfileFile(m_paths.iniPath), colours);
        },
    };
}

Application::~Application()
{
    m_options.dialogs.customColours = {};
}

void Application::applyStyle(QApplication &application)
{
    application.setStyle(new ZephStyle(QCoreApplication::applicationDirPath() + u"/icons/"_s));
    application.setApplicationName(u"Zeph"_s);
    application.setDesktopFileName(u"zeph"_s);
}

Context Application::context()
{
    return { m_paths,         m_settings,        m_status, m_options.dialogs, m_options.launcher,
             m_options.clock, m_options.keyboard };
}

SettingsFiles Application::files() const
{
    return settingsFilesOf(m_paths);
}

bool Application::start()
{
    if (!chooseInstance()) {
        m_options.dialogs.box(tooManyWindowsBox());
        return false;
    }
    if (!m_options.canWrite) {
        m_options.dialogs.box(nowhereToWriteBox(m_options.appFolder));
    }
    m_mum = std::make_unique<Mum>(context());
    placeMum();
    m_mum->refreshToolbars();
    if (!m_settings.of<SharedSettings>().TurnOffFontCheck) {
        if (const auto warning = smallFontsWarning(m_options.screen.logicalDpi())) {
            m_options.dialogs.box(*warning);
        }
    }
    findHotasFolder();
    makeFolders();
    readSettings();
    m_commandLineFile = TestCommandLine(m_options.arguments);
    m_mum->queryUnload = [this] {
        return queryUnload();
    };
    QObject::connect(m_mum.get(), &Mum::unloading, m_mum.get(), [this] { unloadMum(); });
    m_mum->refreshToolbars();
    m_mum->show();
    m_mum->repaint();
    startModes();
    loadEditor();
    selectFirstTab();
    // The tab has said what is edited.
    greet();
    if (!m_options.keptFiles.isEmpty()) {
        m_status.setText(keptFilesText(m_options.keptFiles));
    }
    // The first run waits for the pilot, who may have closed the main window meanwhile.
    return m_mum->isVisible();
}

bool Application::chooseInstance()
{
    m_instance = takeInstance(
        m_paths.appFolder,
        askToTakeOver(m_options.dialogs, u"My settings in "_s + m_paths.appFolder + u" are"_s));
    m_paths.iniPath = m_instance.iniPath;
    return !m_instance.isTooMany();
}

void Application::placeMum()
{
    if (m_instance.isFurther()) {
        m_mum->setFurther();
    }
    tellOnce(GetMumPosition(m_settings, files()));
    m_mum->setPlace(mumPlace(m_settings.of<ShellSettings>()));
}

void Application::findHotasFolder()
{
    // The program expects to be installed among the Cougar's own software, unless it was told
    // otherwise. Reading needs a folder already, since the settings are in several files.
    m_paths.hotasFolder = withClosingSeparator(m_paths.appFolder);
    tellOnce(::zeph::readSettings(m_settings, files(), { &ToolchainSettings::HotasFolder }));
    m_paths.hotasFolder =
        hotasFolderBy(m_settings.of<ToolchainSettings>().HotasFolder, m_paths.appFolder);
}

void Application::makeFolders() const
{
    for (const QString &folder : { m_paths.rtfFolder(), m_paths.filesFolder(),
                                   m_paths.layoutsFolder(), m_paths.tempFolder() }) {
        QDir().mkpath(folder);
    }
}

void Application::readSettings()
{
    tellOnce(readGlobalSettings(m_settings, files()));
    // The save below writes these two, long before the Editor reads the colours.
    tellOnce(::zeph::readSettings(
        m_settings, files(),
        { &ColourSettings::JoystickTextDefaultColour, &ColourSettings::MacroTextDefaultColour }));
    // Where nothing can be written, the user knows it already.
    if (m_options.canWrite) {
        m_settings.of<EditorSettings>().BackUpFolder = checkedBackupFolder(
            m_settings.of<EditorSettings>().BackUpFolder, m_paths, m_options.dialogs);
    }
    renewFilesFolder(m_paths);
    if (m_settings.of<SharedSettings>().ImageFilePath.isEmpty()) {
        m_settings.of<SharedSettings>().ImageFilePath = m_paths.inApp(u"Zeph.bmp");
    }
    if (m_settings.of<SharedSettings>().TextFilePath.isEmpty()) {
        m_settings.of<SharedSettings>().TextFilePath = m_paths.inApp(u"ReadMe.txt");
    }
    // When the store cannot be written, the run works with what it has read.
    (void)saveGlobalSettings(m_settings, files());
    m_wasSetUp = isSetUp(files());
    if (m_settings.of<ShellSettings>().FirstTimeUsed == 1 && !m_wasSetUp) {
        (void)SetUpDefaultIniSettings(m_settings, files());
    }
}

void Application::startModes()
{
    m_tools = new CougarTools(context(), m_options.joystick, *m_mum);
    m_status.setModePicture(int(ModePicture::SelectorOff));
    guarded(m_options.dialogs, [this] { m_tools->modes().startOfRun(); })();
}

void Application::loadEditor()
{
    tellOnce(readColours(m_settings, files()));
    m_editor = new Editor(context(), m_mum.get());
    m_mum->attachEditor(m_editor);
    m_help = new HelpMenu(context(), m_options.downloader, m_mum->toolWindows(), *m_editor);
    m_lists = new UserLists(context(), *m_editor);
    new MainScene(context(), { *m_mum, *m_editor, *m_help, *m_tools });
    new PreferencesMenu(context(), { *m_mum, *m_editor, *m_lists, *m_tools });
    addToolWindows();
    m_printing = std::make_unique<FilePrinting>(context(), m_options.printers, *m_editor);
    new ForeignKeyBSupport(m_options.keyboard, m_settings.of<DocumentSettings>(), m_editor);
    QObject::connect(
        &m_mum->toolWindows(), &ToolWindows::loaded, m_mum.get(), [this](QWidget *window) {
            new ForeignKeyBSupport(m_options.keyboard, m_settings.of<DocumentSettings>(), window);
        });
    m_editor->actions().connectTo(u"mnuFileExit", [this] { m_mum->close(); });
    m_help->readZephInfo();
    readEditorOptions();
    if (m_options.system.isVista()) {
        hideDirectXTesters();
    }
    openStartFiles(*m_editor, m_commandLineFile, m_settings.of<EditorSettings>(),
                   ProfileFile(m_paths.iniPath), m_options.dialogs);
    if (m_commandLineFile.isEmpty() && !m_options.arguments.isEmpty()) {
        m_options.dialogs.box(missingFileBox(m_options.arguments));
    }
    m_editor->guards().recovery.offerLeft();
    m_templateGuard->offerLeft();
    m_editor->guards().autoSave.restart();
    m_mum->refreshToolbars();
    m_status.setLine(1);
    m_editor->view().UpdateSavedIcon();
    greet();
    if (m_settings.of<ShellSettings>().FirstTimeUsed == 1) {
        const ColourSettings colours = m_settings.of<ColourSettings>();
        runFirstRun(context(), { *m_help, *m_lists, *m_tools, m_wasSetUp },
                    m_options.welcomeIntervalMs, m_mum.get());
        m_editor->applySettings();
        m_editor->highlighting().followScheme(colours);
        m_tools->presence().refresh();
        // The first run has only now asked for the callsign.
        greet();
    } else if (m_settings.of<SharedSettings>().ShowTips) {
        m_help->showTip();
    }
}

void Application::addToolWindows()
{
    ToolWindows &windows = m_mum->toolWindows();
    m_templateGuard = new TemplateGuard(context(), windows, m_mum.get());
    const ToolEntries tools{ m_editor->actions(), windows };
    addLiveTools(tools, context(), m_tools->modes());
    addPictures(tools);
    addQuickView(tools);
    addTemplateTools(tools, context(), m_options.printers, m_editor->macros().list().table());
    windows.whenLoaded<TemplateForm>(m_mum.get(), [this](TemplateForm &form) {
        QObject::connect(
            &form, &TemplateForm::helpWanted, m_help,
            guarded(m_options.dialogs, [this](int topic) { m_help->showTopic(topic); }));
        QObject::connect(&form, &TemplateForm::fileWritten, m_editor, [this](const QString &path) {
            m_editor->opening().offerToReload({ path });
        });
    });
    auto *composer = new ComposerTools(context(), windows, *m_editor);
    QObject::connect(composer, &ComposerTools::helpWanted, m_help,
                     guarded(m_options.dialogs, [this](int topic) { m_help->showTopic(topic); }));
    QObject::connect(
        composer, &ComposerTools::keywordWanted, m_help,
        guarded(m_options.dialogs, [this](const QString &word) { m_help->showKeyword(word); }));
    auto *mouse = new MouseTools(context(), windows, *m_editor, *composer);
    QObject::connect(mouse, &MouseTools::helpWanted, m_help,
                     guarded(m_options.dialogs, [this](int topic) { m_help->showTopic(topic); }));
    auto *wizards = new WizardTools(context(), windows, *m_editor, *composer);
    QObject::connect(wizards, &WizardTools::helpWanted, m_help,
                     guarded(m_options.dialogs, [this](int topic) { m_help->showTopic(topic); }));
    auto *layouts =
        new LayoutTools(context(), windows, *m_editor, { m_options.printers, m_options.screen });
    QObject::connect(layouts, &LayoutTools::helpWanted, m_help,
                     guarded(m_options.dialogs, [this](int topic) { m_help->showTopic(topic); }));
    windows.whenLoaded<TemplateForm>(m_mum.get(), [composer](TemplateForm &form) {
        form.actions().connectTo(u"mnuComposerPlugin", [composer] { composer->openTemplates(); });
        form.actions().action(u"mnuComposerPlugin")->setEnabled(true);
    });
    m_editor->actions().connectTo(u"mnuAppsViewReadMe", [this, &windows] {
        windows.open<TemplateForm>()->OpenReadMe(m_editor->useDirectives().textFilePath());
    });
}

void Application::addPictures(const ToolEntries &tools)
{
    addImageViewer(tools, context(), m_options.printers);
    tools.windows.whenLoaded<ViewImage>(m_mum.get(), [this](ViewImage &viewer) {
        QObject::connect(
            &viewer, &ViewImage::helpWanted, m_help,
            guarded(m_options.dialogs, [this](int topic) { m_help->showTopic(topic); }));
    });
    m_editor->actions().connectTo(u"mnuAppsViewGraphic", [this] {
        // The viewer may have opened another picture since the file was opened.
        m_settings.of<SharedSettings>().ImageFilePath = m_editor->useDirectives().imageFilePath();
        m_editor->action(u"mnuAppsImageViewer")->trigger();
    });
}

void Application::addQuickView(const ToolEntries &tools)
{
    MacroList &macros = m_editor->macros().list();
    ::zeph::addQuickView(tools, context(),
                         { m_editor->documents(), macros.table(), m_options.joystick },
                         m_tools->modes());
    tools.windows.whenLoaded<QuickView>(m_mum.get(), [this, &macros](QuickView &view) {
        QObject::connect(
            &view, &QuickView::helpWanted, m_help,
            guarded(m_options.dialogs, [this](int topic) { m_help->showTopic(topic); }));
        QObject::connect(&view, &QuickView::editorWanted, m_editor, [this] {
            ToolWindows::raise(*m_mum);
            m_editor->ResetFocusToEditor();
        });
        QObject::connect(&macros, &MacroList::tableChanged, &view,
                         guarded(m_options.dialogs, [&view] { view.macrosChanged(); }));
    });
}

void Application::readEditorOptions()
{
    tellOnce(GetResetAxes(m_settings, files()));
    tellOnce(::zeph::readSettings(m_settings, files(),
                                  { &ToolchainSettings::RegainControlAfter,
                                    &ToolchainSettings::CheckForCompletionTime,
                                    &EditorSettings::OpenSingleFileOnly }));
    m_editor->applySettings();
    m_tools->toolsMenu().UpdateResetAxes();
}

void Application::tellOnce(const SettingProblems &problems)
{
    SettingProblems fresh;
    for (const SettingProblem &problem : problems) {
        if (!m_told.contains(problem)) {
            fresh.append(problem);
        }
    }
    m_told.append(fresh);
    tellProblems(m_options.dialogs, fresh);
}

void Application::hideDirectXTesters()
{
    for (const QStringView name :
         { u"mnuAppsDX8Divider", u"mnuAppsDX8_0", u"mnuAppsDX8_1", u"mnuAppsDX8_2" }) {
        m_editor->action(name)->setVisible(false);
    }
    m_settings.of<SharedSettings>().DefaultToDX8KeyTester = false;
}

void Application::greet()
{
    m_status.setText(u"Ready! Welcome to Zeph, "_s + m_settings.of<SharedSettings>().PilotCallsign
                     + u'!');
}

void Application::selectFirstTab()
{
    const bool joystickFirst =
        !m_editor->joystickText().isEmpty() || m_editor->macroText().isEmpty();
    if (joystickFirst && m_editor->selected().kind() != DocumentKind::Joystick) {
        m_editor->documents().select(DocumentKind::Joystick);
    }
    Document &document = m_editor->selected();
    document.select(0, 0);
    m_editor->ResetFocusToEditor();
}

bool Application::queryUnload()
{
    return !m_editor || (m_editor->queryUnload() && m_mum->toolWindows().mayUnloadAll());
}

void Application::unloadMum()
{
    if (m_editor) {
        (void)saveTesterOptions(m_settings, files());
        (void)SaveIndentStuff(m_settings, files());
        m_settings.of<EditorSettings>().RestoreJoyFile =
            m_editor->restorableFile(DocumentKind::Joystick);
        m_settings.of<EditorSettings>().RestoreMacroFile =
            m_editor->restorableFile(DocumentKind::Macro);
        (void)SaveForRestore(m_settings, files());
        m_editor->guards().recovery.finish();
    }
    m_mum->toolWindows().unloadAll();
    if (m_templateGuard) {
        m_templateGuard->finish();
    }
    const WindowPlace place = m_mum->place();
    const QSize screen = m_options.screen.size();
    (void)SaveMumPosition(
        m_settings, files(), place,
        { double(twipsFromPixels(screen.width())), double(twipsFromPixels(screen.height())) });
    if (place.state != WindowState::Minimised) {
        deleteInstanceStore(m_instance);
    }
}

} // namespace zeph
