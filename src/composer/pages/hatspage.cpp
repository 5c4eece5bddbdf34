// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/hatspage.h"

#include "composer/pages/page_fields.h"
#include "composer/statement_inserter.h"
#include "platform/dialogs.h"
#include "ui_hatspage.h"

namespace zeph {

namespace {

/// The tabs of SSTabHats.
enum HatTab { RoleTab, CornersTab };

} // namespace

HatsPage::HatsPage(const ComposerParts &parts, QWidget *parent)
    : ComposerPage(parts, parent), m_ui(std::make_unique<Ui::HatsPage>())
{
    m_ui->setupUi(this);
    m_options = OptionBoxes(this, OptionPage::Hat);
    fillList(*m_ui->ComboHatAs, hatNames);
    fillList(*m_ui->ComboHatUSE, hatRoles);
    fillList(*m_ui->ComboHatForcedCorners, hatsWithCorners);
    SetupHatUSE();
    for (const QComboBox *box : { m_ui->ComboHatAs, m_ui->ComboHatUSE }) {
        connect(box, &QComboBox::currentTextChanged, this, &HatsPage::SetupHatUSE);
    }
    for (const QPushButton *insert : { m_ui->CMDHatViewInsert_0, m_ui->CMDHatViewInsert_1 }) {
        connect(insert, &QPushButton::clicked, this,
                guarded(parts.context.dialogs, [this](bool) { CMDHatViewInsert_Click(); }));
    }
    whenEdited(*this, this, [this] { Q_EMIT changed(); });
    connect(m_ui->SSTabHats, &QTabWidget::currentChanged, this, &ComposerPage::changed);
}

HatsPage::~HatsPage() = default;

std::optional<Generated> HatsPage::current() const
{
    return m_ui->SSTabHats->currentIndex() == RoleTab
        ? hatStatement(fields())
        : forcedCorners(m_ui->ComboHatForcedCorners->currentText());
}

bool HatsPage::read(const QString &statement)
{
    if (const auto role = readHatStatement(statement)) {
        m_ui->SSTabHats->setCurrentIndex(RoleTab);
        showFields(*role);
        return true;
    }
    if (const auto hat = readForcedCorners(statement)) {
        m_ui->SSTabHats->setCurrentIndex(CornersTab);
        m_ui->ComboHatForcedCorners->setCurrentText(*hat);
        return true;
    }
    return false;
}

void HatsPage::enter()
{
    const bool isRole = m_ui->SSTabHats->currentIndex() == RoleTab;
    (isRole ? m_ui->ComboHatAs : m_ui->ComboHatForcedCorners)->setFocus();
}

HatFields HatsPage::fields() const
{
    return { m_ui->ComboHatAs->currentText(), m_ui->ComboHatUSE->currentText(),
             m_ui->TXT_hatrate->text(), m_options.ticked() };
}

void HatsPage::showFields(const HatFields &fields)
{
    m_ui->ComboHatAs->setCurrentText(fields.hat);
    m_ui->ComboHatUSE->setCurrentText(fields.role);
    if (takesRate(fields.role)) {
        m_ui->TXT_hatrate->setText(fields.rate);
    }
    m_options.tick(fields.options);
}

void HatsPage::SetupHatUSE()
{
    const QString role = m_ui->ComboHatUSE->currentText();
    m_ui->LabelHatRate->setEnabled(takesRate(role));
    m_ui->TXT_hatrate->setEnabled(takesRate(role));
    m_options.enableOnly(hatOptions(m_ui->ComboHatAs->currentText(), role));
}

void HatsPage::CMDHatViewInsert_Click()
{
    const Generated statement = *current();
    m_parts.inserter.insertComposed(statement);
    if (!statement) {
        askFor(*m_ui->TXT_hatrate);
    }
}

} // namespace zeph
