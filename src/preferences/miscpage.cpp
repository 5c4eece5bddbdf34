// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/miscpage.h"

#include "preferences/preferences_rules.h"
#include "toolchain/toolchain_settings.h"
#include "ui_miscpage.h"

#include <QLineEdit>

namespace zeph {

MiscPage::MiscPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_ui(std::make_unique<Ui::MiscPage>())
{
    m_ui->setupUi(this);
    m_ui->GamesCaption->addItems(gamesCaptions());
    m_ui->GamesCaption->lineEdit()->setObjectName(u"GamesCaptionText"_s);
    m_ui->GamesCaption->lineEdit()->setAccessibleName(m_ui->GamesCaption->accessibleName());
    // Pilots count from 1, the setting from 0.
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

} // namespace zeph
