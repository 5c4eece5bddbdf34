// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/miscpage.h"

#include "preferences/preferences_rules.h"
#include "ui_miscpage.h"

#include <QLineEdit>

namespace zeph {

namespace {

/// As many as the platform's joystick service can number.
constexpr int joysticks = 16;

} // namespace

MiscPage::MiscPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_ui(std::make_unique<Ui::MiscPage>())
{
    m_ui->setupUi(this);
    for (const QStringView caption : gamesCaptions()) {
        m_ui->GamesCaption->addItem(caption.toString());
    }
    m_ui->GamesCaption->lineEdit()->setObjectName(u"GamesCaptionText"_s);
    m_ui->GamesCaption->lineEdit()->setAccessibleName(m_ui->GamesCaption->accessibleName());
    // Pilots count from 1, the setting from 0.
    for (int number = 1; number <= joysticks; ++number) {
        m_ui->JoyIDnumber->addItem(QString::number(number));
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
