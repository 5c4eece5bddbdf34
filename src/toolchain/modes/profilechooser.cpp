// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/profilechooser.h"

#include "toolchain/modes/profiles.h"
#include "toolchain/tool_messages.h"
#include "ui_profilechooser.h"

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

} // namespace zeph
