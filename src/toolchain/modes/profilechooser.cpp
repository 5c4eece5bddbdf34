// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/profilechooser.h"

#include "settings/settings.h"
#include "text/profile_files.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/tool_messages.h"
#include "toolchain/toolchain_settings.h"
#include "ui_formresetoptions.h"
#include "ui_profilechooser.h"
#include "ui_selectprofileform.h"

namespace zeph {

ProfileChooser::ProfileChooser(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ProfileChooser>())
{
    m_ui->setupUi(this);
    setFocusProxy(m_ui->List_Profiles);
    connect(m_ui->List_Profiles, &QListWidget::currentTextChanged, this,
            &ProfileChooser::profileChanged);
    connect(m_ui->List_Profiles, &QListWidget::itemDoubleClicked, this, &ProfileChooser::activated);
}

ProfileChooser::~ProfileChooser() = default;

bool ProfileChooser::UpdateProfiles(const QString &folder, Dialogs &dialogs)
{
    const QStringList names = profileNames(folder);
    m_ui->List_Profiles->clear();
    m_ui->List_Profiles->addItems(names);
    if (names.isEmpty()) {
        dialogs.box(noProfilesBox(folder));
    }
    return !names.isEmpty();
}

void ProfileChooser::select(const QString &name, bool manualCalibration)
{
    const auto found = m_ui->List_Profiles->findItems(name, Qt::MatchFixedString);
    m_ui->List_Profiles->setCurrentItem(found.value(0));
    (manualCalibration ? m_ui->Option_Calibrate_1 : m_ui->Option_Calibrate_0)->setChecked(true);
}

QString ProfileChooser::profile() const
{
    const QListWidgetItem *item = m_ui->List_Profiles->currentItem();
    return item ? item->text() : QString();
}

bool ProfileChooser::manualCalibration() const
{
    return m_ui->Option_Calibrate_1->isChecked();
}

FormResetOptions::FormResetOptions(const Context &context, QWidget *parent)
    : QDialog(parent), m_context(context), m_ui(std::make_unique<Ui::FormResetOptions>())
{
    m_ui->setupUi(this);
    connect(m_ui->Profiles, &ProfileChooser::profileChanged, m_ui->CMD_OK,
            [this](const QString &name) { m_ui->CMD_OK->setEnabled(!name.isEmpty()); });
    connect(m_ui->Profiles, &ProfileChooser::activated, m_ui->CMD_OK, &QPushButton::click);
    connect(m_ui->CMD_OK, &QPushButton::clicked, this, &FormResetOptions::accept);
    connect(m_ui->CMD_Cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_ui->Profiles->setFocus();
}

FormResetOptions::~FormResetOptions() = default;

bool FormResetOptions::UpdateProfiles()
{
    return m_ui->Profiles->UpdateProfiles(profilesFolder(m_context.paths), m_context.dialogs);
}

void FormResetOptions::ShowResetValues()
{
    const auto &settings = m_context.settings.of<ToolchainSettings>();
    m_ui->Profiles->select(settings.ResetProfile, settings.ResetCalibrate);
}

void FormResetOptions::accept()
{
    auto &settings = m_context.settings.of<ToolchainSettings>();
    settings.ResetProfile = m_ui->Profiles->profile();
    settings.ResetCalibrate = m_ui->Profiles->manualCalibration();
    settings.UseResetProfile = true;
    QDialog::accept();
}

SelectProfileForm::SelectProfileForm(const Context &context, QWidget *parent)
    : QDialog(parent), m_context(context), m_ui(std::make_unique<Ui::SelectProfileForm>())
{
    m_ui->setupUi(this);
    connect(m_ui->Profiles, &ProfileChooser::profileChanged, m_ui->CMD_Download,
            [this](const QString &name) { m_ui->CMD_Download->setEnabled(!name.isEmpty()); });
    connect(m_ui->Profiles, &ProfileChooser::activated, m_ui->CMD_Download, &QPushButton::click);
    connect(m_ui->CMD_Download, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->CMD_Cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_ui->Profiles->setFocus();
}

SelectProfileForm::~SelectProfileForm() = default;

bool SelectProfileForm::UpdateProfiles()
{
    const bool found =
        m_ui->Profiles->UpdateProfiles(profilesFolder(m_context.paths), m_context.dialogs);
    const auto &settings = m_context.settings.of<ToolchainSettings>();
    m_ui->Profiles->select(settings.ResetProfile, settings.ResetCalibrate);
    return found;
}

QString SelectProfileForm::profile() const
{
    return m_ui->Profiles->profile();
}

CalibrationRequest SelectProfileForm::calibration() const
{
    return m_ui->Profiles->manualCalibration() ? CalibrationRequest::Manual
                                               : CalibrationRequest::Auto;
}

} // namespace zeph
