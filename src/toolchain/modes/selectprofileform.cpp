// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/selectprofileform.h"

#include "settings/settings.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/toolchain_settings.h"
#include "ui_selectprofileform.h"

namespace zeph {

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
