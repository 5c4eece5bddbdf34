// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/zephpage.h"

#include "ui_zephpage.h"

namespace zeph {

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

} // namespace zeph
