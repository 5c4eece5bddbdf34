// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/preferences.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "lists/user_lists.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "platform/system_info.h"
#include "platform/unwritable_note.h"
#include "preferences/appspage.h"
#include "preferences/colourspage.h"
#include "preferences/favouritespage.h"
#include "preferences/gamespage.h"
#include "preferences/option_pages.h"
#include "preferences/setting_fields.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "settings/shared_settings.h"
#include "toolchain/toolchain_settings.h"
#include "ui_preferences.h"

#include <QProxyStyle>
#include <QTabBar>

namespace zeph {

namespace {

/// Narrow tabs, so that all nine are visible.
class CloseTabs : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_TabBarTabHSpace ? usual / 2 : usual;
    }
};

QString captionOf(PreferencesTab tab)
{
    constexpr QStringView captions[] = {
        u"&File locations", u"&Colours/Fonts",   u"&Apps",
        u"Fa&vourites",     u"&Games",           u"&Open/Save/Undo",
        u"&Misc.",          u"&Default options", u"&Zeph",
    };
    return captions[size_t(tab)].toString();
}

/// Saves the settings of this window that saveGlobalSettings() leaves out.
Expected<void, FileError> saveOwnOptions(Settings &settings, const SettingsFiles &files)
{
    return saveSettings(
        settings, files,
        { &SharedSettings::ShowTips, &EditorSettings::TileFiles,
          &EditorSettings::AlwaysShowCompileDownload, &DocumentSettings::ColourWithTyping,
          &DocumentSettings::ForeignLanguageKBInputFix, &ToolchainSettings::HotasFolder,
          &ToolchainSettings::JoyTestConnect, &ToolchainSettings::NumlockDownloadMode,
          &ToolchainSettings::SynchroniseModeOnStartup, &ToolchainSettings::TellStandIn,
          &SharedSettings::TurnOffFontCheck, &SharedSettings::UseHLPnotCHM });
}

} // namespace

Expected<void, FileError> SaveFilesPath(const Paths &paths)
{
    return ProfileFile(paths.iniPath)
        .write(ProfileEntry{ u"Launcher"_s, u"FilesDirectory"_s,
                             filesDirectoryCommand(windowsFolder(), paths.filesFolder()) });
}

Preferences::Preferences(const Context &context, const Parts &parts, PreferencesHost host,
                         QWidget *parent)
    : QDialog(parent), m_context(context), m_parts(parts), m_host(std::move(host)),
      m_ui(std::make_unique<Ui::Preferences>())
{
    m_ui->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    auto *style = new CloseTabs;
    style->setParent(this);
    m_ui->SSTab1->tabBar()->setStyle(style);
    addPages(parts);
    m_ui->SSTab1->setCurrentIndex(0);
    new UnwritableNote(*this, *m_ui->LabelUnwritable);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &Preferences::accept);
}

Preferences::~Preferences() = default;

void Preferences::addPages(const Parts &parts)
{
    auto *open = new OpenPage(m_context, this);
    auto *favourites = new FavouritesPage(m_context, parts.lists.favourites(), this);
    m_defaults = new DefaultsPage(m_context, this);
    auto *files = new FilesPage(m_context, this);
    addPage(PreferencesTab::FileLocations, files);
    addPage(PreferencesTab::ColoursFonts, new ColoursPage(m_context, this));
    addPage(PreferencesTab::Apps, new AppsPage(m_context, parts.lists.customApps(), this));
    addPage(PreferencesTab::Favourites, favourites);
    addPage(PreferencesTab::Games, new GamesPage(m_context, parts.games, this));
    addPage(PreferencesTab::OpenSaveUndo, open);
    addPage(PreferencesTab::Misc, new MiscPage(m_context, this));
    addPage(PreferencesTab::DefaultOptions, m_defaults);
    addPage(PreferencesTab::Zeph, new ZephPage(m_context, this));
    connect(open, &OpenPage::deleteUndosWanted, this, m_host.DeleteUndosFromMemory);
    connect(open, &OpenPage::restoresChanged, favourites, &FavouritesPage::setRestores);
    favourites->setRestores(open->restores());
    connect(files, &FilesPage::hotasFolderChosen, m_defaults, &DefaultsPage::readOptions);
}

void Preferences::addPage(PreferencesTab tab, PreferencesPage *page)
{
    m_ui->SSTab1->addTab(page, captionOf(tab));
    m_pages.append(page);
    m_tabs.append(tab);
}

void Preferences::showTab(PreferencesTab tab)
{
    m_ui->SSTab1->setCurrentIndex(int(m_tabs.indexOf(tab)));
}

void Preferences::done(int result)
{
    unload();
    QDialog::done(result);
}

void Preferences::unload()
{
    if (std::exchange(m_unloaded, true)) {
        return;
    }
    const int joystick = m_context.settings.of<ToolchainSettings>().JoyIDnumber;
    const int interval = m_context.settings.of<ToolchainSettings>().StatusMonitoringInterval;
    takeFields();
    m_hardwareHasChanged = m_context.settings.of<ToolchainSettings>().JoyIDnumber != joystick
        || m_defaults->haveChanged();
    if (m_context.settings.of<ToolchainSettings>().StatusMonitoringInterval != interval) {
        // Guarded, since the settings have to be saved even when the timer refuses the interval.
        guarded(m_context.dialogs, m_host.restartDetector)();
    }
    save();
}

void Preferences::takeFields()
{
    for (PreferencesPage *page : m_pages) {
        guarded(m_context.dialogs, [page] { page->collect(); })();
    }
}

void Preferences::save()
{
    const SettingsFiles files = settingsFilesOf(m_context.paths);
    Settings &settings = m_context.settings;
    // All parts are saved even if one fails; the first failure is told.
    Expected<void, FileError> result = SaveFilesPath(m_context.paths);
    const auto also = [&result](const Expected<void, FileError> &written) {
        if (result && !written) {
            result = written;
        }
    };
    also(saveGlobalSettings(settings, files));
    also(saveOwnOptions(settings, files));
    also(SaveColourScheme(settings, files));
    m_parts.lists.save();
    also(saveFilesFolder(files, m_context.paths.filesFolder()));
    also(m_defaults->save());
    if (!result) {
        tellNotKept(m_context.status, result.error());
    }
}

} // namespace zeph
