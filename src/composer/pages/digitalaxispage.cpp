// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/digitalaxispage.h"

#include "composer/pages/bandeditor.h"
#include "composer/pages/page_fields.h"
#include "composer/statement_inserter.h"
#include "ui_digitalaxispage.h"

#include <QKeyEvent>
#include <QSignalBlocker>

namespace zeph {

namespace {

/// Which controls of the arrays a tab has; -1 where it has none.
struct TypeTab {
    int count;
    int firstKey;
    int keys;
    /// The key box that has the second direction.
    int secondDirection;
    int forceMacros;
};

// The keys of types 5 and 6 belong to their bands.
constexpr TypeTab typeTabs[language::lastAxisType] = {
    { 0, 0, 3, 1, 0 },  { 1, 3, 1, -1, 1 },   { -1, 4, 3, 6, -1 },
    { 2, 7, 3, 9, -1 }, { -1, 10, 0, -1, 2 }, { -1, 11, 0, -1, 3 },
};

constexpr int lastUnbanded = 4;

} // namespace

DigitalAxisPage::DigitalAxisPage(const ComposerParts &parts, QWidget *parent)
    : ComposerPage(parts, parent), m_ui(std::make_unique<Ui::DigitalAxisPage>())
{
    m_ui->setupUi(this);
    m_axes = { this, u"Combo_DigitalAxis"_s };
    m_inserts = { this, u"CMD_DigitalAxis"_s };
    m_forceMacros = { this, u"CheckForceMacros"_s };
    m_counts = { this, u"TXT_DigitalAxis"_s };
    m_keys = { this, u"RTB_digitalAxis"_s };
    m_keyLabels = { this, u"LabelKey"_s };
    fillList(*m_ui->ComboSlashList, digitalSlashes);
    for (int index = 0; index < m_axes.count(); ++index) {
        fillList(*m_axes[index], digitalAxes);
        DigitalDirections(index);
        if (const int count = typeTabs[index].count; count >= 0)
            fitToNumber(*m_counts[count]);
    }
    connectControls();
    m_ui->SSTab3->setCurrentIndex(0);
    showTab(0);
}

DigitalAxisPage::~DigitalAxisPage() = default;

void DigitalAxisPage::connectControls()
{
    m_axes.connect(this, &QComboBox::currentIndexChanged, [this](int index) { showAxis(index); });
    m_inserts.connect(this, &QPushButton::clicked, [this](int index) {
        guarded(m_parts.context.dialogs, [this, index] { insert(index); })();
    });
    connect(m_ui->SSTab3, &QTabWidget::currentChanged, this, &DigitalAxisPage::showTab);
    connectBands(*m_ui->bands5, 4);
    connectBands(*m_ui->bands6, 5);
    whenEdited(*this, this, [this] { Q_EMIT changed(); });
}

void DigitalAxisPage::connectBands(BandEditor &editor, int index)
{
    const auto follow = [this, &editor, index] {
        QCheckBox &force = *m_forceMacros[typeTabs[index].forceMacros];
        const bool isApplied = editor.bands().isApplied();
        m_inserts[index]->setEnabled(isApplied);
        force.setEnabled(isApplied);
        if (!isApplied)
            force.setChecked(false);
        Q_EMIT changed();
    };
    connect(&editor, &BandEditor::changed, this, follow);
    connect(&editor, &BandEditor::refused, this,
            [this](const Refusal &refusal) { m_parts.inserter.refuse(refusal); });
    follow();
}

BandEditor *DigitalAxisPage::bandsOf(int type) const
{
    return type == 5 ? m_ui->bands5 : type == 6 ? m_ui->bands6 : nullptr;
}

void DigitalAxisPage::DigitalDirections(int index)
{
    const DirectionLabels labels = directionLabels(index + 1, m_axes[index]->currentText());
    const TypeTab &tab = typeTabs[index];
    if (BandEditor *bands = bandsOf(index + 1)) {
        bands->setDirections(labels);
    } else if (!labels.first.isEmpty()) {
        m_keyLabels[tab.firstKey]->setText(labels.first);
        if (tab.secondDirection >= 0)
            m_keyLabels[tab.secondDirection]->setText(labels.second);
    }
}

void DigitalAxisPage::Type5DisplayData()
{
    m_ui->bands5->DisplayData();
}

void DigitalAxisPage::Type6DisplayData()
{
    m_ui->bands6->DisplayData();
}

void DigitalAxisPage::showAxis(int index)
{
    DigitalDirections(index);
    if (index == m_ui->SSTab3->currentIndex())
        m_ui->CheckUMDIOdigital->setText(withoutAxisCaption(m_axes[index]->currentText()));
}

void DigitalAxisPage::showTab(int index)
{
    showAxis(index);
    for (QPushButton *button : m_inserts)
        button->setDefault(index < lastUnbanded && button == m_inserts[index]);
    if (index < lastUnbanded)
        m_axes[index]->setFocus();
    Q_EMIT changed();
}

void DigitalAxisPage::enter()
{
    if (std::exchange(m_wasReadUnseen, false))
        return;
    m_ui->SSTab3->setCurrentIndex(0);
    m_axes[0]->setFocus();
}

DigitalAxisFields DigitalAxisPage::fieldsOf(int index) const
{
    const TypeTab &tab = typeTabs[index];
    DigitalAxisFields fields;
    fields.type = index + 1;
    fields.axis = m_axes[index]->currentText();
    fields.withoutAxis = m_ui->CheckUMDIOdigital->isChecked();
    fields.slash = m_ui->ComboSlashList->currentIndex();
    fields.forceMacros = tab.forceMacros >= 0 && m_forceMacros[tab.forceMacros]->isChecked();
    if (tab.count >= 0)
        fields.count = m_counts[tab.count]->text();
    for (int key = 0; key < tab.keys; ++key)
        fields.keys[size_t(key)] = m_keys[tab.firstKey + key]->text();
    if (const BandEditor *bands = bandsOf(fields.type))
        fields.bands = bands->bands();
    return fields;
}

void DigitalAxisPage::showFields(const DigitalAxisFields &fields)
{
    const int index = fields.type - 1;
    const TypeTab &tab = typeTabs[index];
    if (!fields.withoutAxis)
        m_axes[index]->setCurrentText(fields.axis);
    m_ui->CheckUMDIOdigital->setChecked(fields.withoutAxis);
    m_ui->ComboSlashList->setCurrentIndex(fields.slash);
    if (BandEditor *bands = bandsOf(fields.type))
        bands->setBands(fields.bands);
    if (tab.forceMacros >= 0)
        m_forceMacros[tab.forceMacros]->setChecked(fields.forceMacros);
    if (tab.count >= 0)
        m_counts[tab.count]->setText(fields.count);
    for (int key = 0; key < tab.keys; ++key)
        m_keys[tab.firstKey + key]->setText(fields.keys[size_t(key)]);
    m_ui->SSTab3->setCurrentIndex(index);
}

std::optional<Generated> DigitalAxisPage::current() const
{
    return generateDigitalAxis(fieldsOf(m_ui->SSTab3->currentIndex()));
}

bool DigitalAxisPage::read(const QString &statement)
{
    const auto fields = readDigitalAxis(statement);
    if (!fields)
        return false;
    {
        // One change, not one a field.
        const QSignalBlocker quiet(this);
        showFields(*fields);
    }
    m_wasReadUnseen = !isVisible();
    Q_EMIT changed();
    return true;
}

void DigitalAxisPage::insert(int index)
{
    m_parts.inserter.insertComposed(generateDigitalAxis(fieldsOf(index)));
}

void DigitalAxisPage::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && !event->modifiers().testFlag(Qt::ControlModifier);
    QPushButton &button = *m_inserts[m_ui->SSTab3->currentIndex()];
    if (isEnter && button.isDefault())
        button.click();
    else
        ComposerPage::keyPressEvent(event);
}

} // namespace zeph
