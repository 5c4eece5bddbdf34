// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/formresetoptions.h"

#include "settings/settings.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/toolchain_settings.h"
#include "ui_formresetoptions.h"

namespace zeph {

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

} // namespace zeph
