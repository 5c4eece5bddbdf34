// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/customtweaker.h"

#include "layouts/files/layouts_settings.h"
#include "ui_customtweaker.h"

#include <array>
#include <utility>

namespace zeph {

namespace {

constexpr std::array<std::pair<QStringView, double LayoutsSettings::*>, 4> tweaks = { {
    { u"TBAdjustHeight", &LayoutsSettings::TBAdjustHeight },
    { u"TBAdjustWidth", &LayoutsSettings::TBAdjustWidth },
    { u"TxtTopAdjust", &LayoutsSettings::TxtTopAdjust },
    { u"TxtLeftAdjust", &LayoutsSettings::TxtLeftAdjust },
} };

} // namespace

CustomTweaker::CustomTweaker(const LayoutsSettings &settings, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CustomTweaker>())
{
    m_ui->setupUi(this);
    for (const auto &[name, member] : tweaks) {
        findChild<QLineEdit *>(name.toString())->setText(QString::number(settings.*member));
    }
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

CustomTweaker::~CustomTweaker() = default;

void CustomTweaker::store(LayoutsSettings &settings) const
{
    for (const auto &[name, member] : tweaks) {
        bool isNumber = false;
        const double typed =
            findChild<QLineEdit *>(name.toString())->text().trimmed().toDouble(&isNumber);
        if (isNumber) {
            settings.*member = typed;
        }
    }
}

} // namespace zeph
