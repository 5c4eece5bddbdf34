// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/defaultspage.h"

#include "settings/global_settings.h"
#include "ui_defaultspage.h"

#include <algorithm>

namespace zeph {

namespace {

constexpr int hats = 4;

} // namespace

DefaultsPage::DefaultsPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context),
      m_read(GetDefaultOptions(ProfileFile(context.paths.hotasIni()))), m_options(m_read),
      m_ui(std::make_unique<Ui::DefaultsPage>())
{
    m_ui->setupUi(this);
    m_ticks = ControlArray<QCheckBox>(this, u"CHK_Default"_s);
    for (int i = 0; i < m_ticks.count(); ++i) {
        m_ticks[i]->setChecked(m_read.*defaultFlags[i] == 1);
    }
    for (int hat = 1; hat <= hats; ++hat) {
        m_ui->Combo_defaultPOV->addItem(u"Hat "_s + QString::number(hat));
    }
    m_ui->Combo_defaultPOV->setCurrentIndex(std::clamp<int>(m_read.POVhat, 1, hats) - 1);
}

DefaultsPage::~DefaultsPage() = default;

void DefaultsPage::collect()
{
    for (int i = 0; i < m_ticks.count(); ++i) {
        m_options.*defaultFlags[i] = m_ticks[i]->isChecked() ? 1 : 0;
    }
    m_options.POVhat = qint16(m_ui->Combo_defaultPOV->currentIndex() + 1);
    m_context.settings.DownloadMode = m_options.DownloadMode;
}

} // namespace zeph
