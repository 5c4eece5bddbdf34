// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/openpage.h"

#include "editor/editor_settings.h"
#include "editor/files/backup_folder.h"
#include "platform/dialogs.h"
#include "preferences/preferences_rules.h"
#include "settings/settings.h"
#include "ui_openpage.h"

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
    // The field may have the focus still.
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

} // namespace zeph
