// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layoutsize.h"

#include "layouts/files/layouts_settings.h"
#include "platform/printers.h"
#include "ui_layoutsize.h"

#include <QPrinter>

#include <cmath>

namespace zeph {

int layoutPixels(const QString &text)
{
    return int(rangeOf(&LayoutsSettings::DefImageX).nearest(std::trunc(leadingNumber(text))));
}

std::optional<QSize> paperPixels(Printers &printers)
{
    constexpr int pixelsPerInch = 96;
    return printers.count() == 0
        ? std::nullopt
        : std::optional(printers.printer().pageLayout().fullRectPixels(pixelsPerInch).size());
}

Expected<void, FileError> keepLayoutSize(Settings &settings, const SettingsFiles &files,
                                         const LayoutSizeChoice &choice)
{
    auto &values = settings.of<LayoutsSettings>();
    // What a layout that was opened has switched off is off for this run alone, so only a change is
    // stored.
    if (choice.repositions != values.repositions()) {
        values.RepositionOnSizeChange = choice.repositions;
        values.isRepositionOff = false;
    }
    if (choice.isDefault) {
        values.DefImageX = choice.size.width();
        values.DefImageY = choice.size.height();
    }
    return saveGroup(settings.group<LayoutsSettings>(), files, [&](const SettingKey &key) {
        // A size that nobody chose is not stored: it goes with the printer's paper.
        const bool isSize = key.key == rowOf(&LayoutsSettings::DefImageX).key
            || key.key == rowOf(&LayoutsSettings::DefImageY).key;
        return !isSize || choice.isDefault;
    });
}

LayoutSize::LayoutSize(const LayoutSizeChoice &shown, const std::optional<QSize> &optimum,
                       QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::LayoutSize>())
{
    m_ui->setupUi(this);
    showSize(shown.size);
    m_ui->CheckDefault->setChecked(shown.isDefault);
    m_ui->CheckReposition->setChecked(shown.repositions);
    m_ui->cmdOptimum->setVisible(optimum.has_value());
    connect(m_ui->cmdOptimum, &QPushButton::clicked, this,
            [this, optimum] { showSize(optimum.value_or(QSize())); });
    connect(m_ui->Swap, &QPushButton::clicked, this, [this] {
        const QString width = m_ui->TextWidth->text();
        m_ui->TextWidth->setText(m_ui->TextHeight->text());
        m_ui->TextHeight->setText(width);
    });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &LayoutSize::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &LayoutSize::reject);
    m_ui->TextWidth->selectAll();
}

LayoutSize::~LayoutSize() = default;

LayoutSizeChoice LayoutSize::choice() const
{
    return { QSize(layoutPixels(m_ui->TextWidth->text()), layoutPixels(m_ui->TextHeight->text())),
             m_ui->CheckDefault->isChecked(), m_ui->CheckReposition->isChecked() };
}

void LayoutSize::showSize(const QSize &size)
{
    m_ui->TextWidth->setText(QString::number(size.width()));
    m_ui->TextHeight->setText(QString::number(size.height()));
}

} // namespace zeph
