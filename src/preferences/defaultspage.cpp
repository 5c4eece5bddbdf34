// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/defaultspage.h"

#include "settings/settings.h"
#include "toolchain/default_options.h"
#include "ui_defaultspage.h"

namespace zeph {

namespace {

/// The flags, in the order of the ticks CHK_Default_0 to CHK_Default_7.
constexpr bool DefaultOptions::*flags[] = {
    &DefaultOptions::POVUD,        &DefaultOptions::MicrostickMouse, &DefaultOptions::MicrostickUD,
    &DefaultOptions::TG1enabled,   &DefaultOptions::S2enabled,       &DefaultOptions::RCSType,
    &DefaultOptions::MDEFrequired, &DefaultOptions::DownloadMode,
};

} // namespace

DefaultsPage::DefaultsPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context),
      m_read(GetDefaultOptions(settingsFilesOf(context.paths))), m_options(m_read),
      m_ui(std::make_unique<Ui::DefaultsPage>())
{
    m_ui->setupUi(this);
    m_ticks = ControlArray<QCheckBox>(this, u"CHK_Default"_s);
    for (int i = 0; i < m_ticks.count(); ++i) {
        m_ticks[i]->setChecked(m_read.*flags[i]);
    }
    const SettingRange hats = rangeOf(&DefaultOptions::POVhat);
    for (int hat = int(hats.least); hat <= int(hats.most); ++hat) {
        m_ui->Combo_defaultPOV->addItem(u"Hat "_s + QString::number(hat));
    }
    m_ui->Combo_defaultPOV->setCurrentIndex(m_read.POVhat - int(hats.least));
}

DefaultsPage::~DefaultsPage() = default;

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
