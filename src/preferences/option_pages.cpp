// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/option_pages.h"

#include "editor/editor_settings.h"
#include "editor/files/backups.h"
#include "platform/core/profile_list.h"
#include "platform/dialogs.h"
#include "preferences/setting_fields.h"
#include "settings/settings.h"
#include "toolchain/default_options.h"
#include "toolchain/hotas_folder.h"
#include "toolchain/toolchain_settings.h"
#include "ui_defaultspage.h"
#include "ui_filespage.h"
#include "ui_miscpage.h"
#include "ui_openpage.h"
#include "ui_zephpage.h"
#include <QLineEdit>

namespace zeph {

OpenPage::OpenPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_ui(std::make_unique<Ui::OpenPage>())
{
    m_ui->setupUi(this);
    m_fields = std::make_unique<SettingFields>(*this, PreferencesTab::OpenSaveUndo);
    m_fields->show(context.settings);
    connect(m_ui->AutoSaveTime, &QLineEdit::editingFinished, this, &OpenPage::tidyAutoSave);
    connect(m_ui->RestoreStatus, &QCheckBox::toggled, this, &OpenPage::restoresChanged);
    connect(m_ui->cmdBrowseBackUp, &QPushButton::clicked, this, &OpenPage::browseBackups);
    connect(m_ui->cmdDeleteUndos, &QPushButton::clicked, this, [this] {
        Q_EMIT deleteUndosWanted();
        m_ui->cmdDeleteUndos->setEnabled(false);
    });
}

OpenPage::~OpenPage() = default;

bool OpenPage::restores() const
{
    return m_ui->RestoreStatus->isChecked();
}

void OpenPage::tidyAutoSave()
{
    const AutoSaveFields taken =
        takenAutoSave(m_ui->AutoSaveTime->text(), m_ui->AutoSaveEnabled->isChecked());
    m_ui->AutoSaveTime->setText(QString::number(taken.AutoSaveTime));
    m_ui->AutoSaveEnabled->setChecked(taken.AutoSaveEnabled);
}

void OpenPage::collect()
{
    // A field that still has the focus has not been tidied yet.
    tidyAutoSave();
    m_fields->take(m_context.settings);
    m_context.settings.of<EditorSettings>().BackUpFolder = checkedBackupFolder(
        m_context.settings.of<EditorSettings>().BackUpFolder, m_context.paths, m_context.dialogs);
}

void OpenPage::browseBackups()
{
    const auto folder = m_context.dialogs.chooseFolder(u"Select the folder for your backups"_s,
                                                       m_ui->BackUpFolder->text());
    if (folder) {
        m_ui->BackUpFolder->setText(withClosingSeparator(nativeSeparators(*folder)));
    }
}

FilesPage::FilesPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_ui(std::make_unique<Ui::FilesPage>())
{
    m_ui->setupUi(this);
    m_fields = std::make_unique<SettingFields>(*this, PreferencesTab::FileLocations);
    m_fields->show(context.settings);
    m_ui->FilesFolder->setText(context.paths.filesFolder());
    m_ui->HotasFolder->setText(context.paths.hotasFolder);
    connect(m_ui->cmdBrowseHotas, &QPushButton::clicked, this, &FilesPage::browseHotas);
    connect(m_ui->cmdBrowseWinZip, &QPushButton::clicked, this, &FilesPage::browseWinZip);
}

FilesPage::~FilesPage() = default;

void FilesPage::collect()
{
    m_fields->take(m_context.settings);
}

void FilesPage::browseHotas()
{
    const auto folder = m_context.dialogs.chooseFolder(u"Locate the HOTAS directory"_s,
                                                       m_context.paths.hotasFolder);
    if (folder) {
        // The compiler's path is derived from this one.
        m_context.paths.hotasFolder = withClosingSeparator(nativeSeparators(*folder));
        m_ui->HotasFolder->setText(m_context.paths.hotasFolder);
        QString &setting = m_context.settings.of<ToolchainSettings>().HotasFolder;
        setting = storableOr(
            settingForHotasFolder(m_context.paths.hotasFolder, m_context.paths.appFolder), setting);
        Q_EMIT hotasFolderChosen();
    }
}

void FilesPage::browseWinZip()
{
    const auto path =
        m_context.dialogs.openFile({ .title = u"Locate WinZip 8 (or higher)"_s,
                                     .filter = u"Executables (*.exe)|*.exe|All files (*.*)|*.*"_s,
                                     .folder = folderOf(m_ui->WinZipFilePath->text()) });
    if (path) {
        m_ui->WinZipFilePath->setText(*path);
    }
}

MiscPage::MiscPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_ui(std::make_unique<Ui::MiscPage>())
{
    m_ui->setupUi(this);
    m_ui->GamesCaption->addItems(gamesCaptions());
    m_ui->GamesCaption->lineEdit()->setObjectName(u"GamesCaptionText"_s);
    m_ui->GamesCaption->lineEdit()->setAccessibleName(m_ui->GamesCaption->accessibleName());
    // The list counts joysticks from 1, the setting from 0.
    const SettingRange joysticks = rangeOf(&ToolchainSettings::JoyIDnumber);
    for (int number = int(joysticks.least); number <= int(joysticks.most); ++number) {
        m_ui->JoyIDnumber->addItem(QString::number(number + 1));
    }
    m_fields = std::make_unique<SettingFields>(*this, PreferencesTab::Misc);
    m_fields->show(context.settings);
}

MiscPage::~MiscPage() = default;

void MiscPage::collect()
{
    m_fields->take(m_context.settings);
}

ZephPage::ZephPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_ui(std::make_unique<Ui::ZephPage>())
{
    m_ui->setupUi(this);
    m_fields = std::make_unique<SettingFields>(*this, PreferencesTab::Zeph);
    m_fields->show(context.settings);
}

ZephPage::~ZephPage() = default;

void ZephPage::collect()
{
    m_fields->take(m_context.settings);
}

namespace {

/// In the order of the ticks CHK_Default_0 to CHK_Default_7.
constexpr bool DefaultOptions::*flags[] = {
    &DefaultOptions::POVUD,        &DefaultOptions::MicrostickMouse, &DefaultOptions::MicrostickUD,
    &DefaultOptions::TG1enabled,   &DefaultOptions::S2enabled,       &DefaultOptions::RCSType,
    &DefaultOptions::MDEFrequired, &DefaultOptions::DownloadMode,
};

} // namespace

DefaultsPage::DefaultsPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_ui(std::make_unique<Ui::DefaultsPage>())
{
    m_ui->setupUi(this);
    m_ticks = ControlArray<QCheckBox>(this, u"CHK_Default"_s);
    const SettingRange hats = rangeOf(&DefaultOptions::POVhat);
    for (int hat = int(hats.least); hat <= int(hats.most); ++hat) {
        m_ui->Combo_defaultPOV->addItem(u"Hat "_s + QString::number(hat));
    }
    readOptions();
    m_before = m_read;
}

DefaultsPage::~DefaultsPage() = default;

void DefaultsPage::readOptions()
{
    m_read = GetDefaultOptions(settingsFilesOf(m_context.paths));
    m_options = m_read;
    for (int i = 0; i < m_ticks.count(); ++i) {
        m_ticks[i]->setChecked(m_read.*flags[i]);
    }
    m_ui->Combo_defaultPOV->setCurrentIndex(m_read.POVhat
                                            - int(rangeOf(&DefaultOptions::POVhat).least));
}

Expected<void, FileError> DefaultsPage::save() const
{
    return SaveDefaultOptions(m_options, m_read, settingsFilesOf(m_context.paths));
}

void DefaultsPage::collect()
{
    for (int i = 0; i < m_ticks.count(); ++i) {
        m_options.*flags[i] = m_ticks[i]->isChecked();
    }
    m_options.POVhat =
        m_ui->Combo_defaultPOV->currentIndex() + int(rangeOf(&DefaultOptions::POVhat).least);
    m_context.settings.of<DefaultOptions>().DownloadMode = m_options.DownloadMode;
}

} // namespace zeph
