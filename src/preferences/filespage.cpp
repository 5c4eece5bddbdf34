// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/filespage.h"

#include "platform/dialogs.h"
#include "ui_filespage.h"

namespace zeph {

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
        // The compiler's path follows by itself.
        m_context.paths.hotasFolder = withClosingSeparator(nativeSeparators(*folder));
        m_ui->HotasFolder->setText(m_context.paths.hotasFolder);
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

} // namespace zeph
