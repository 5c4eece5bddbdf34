// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/mousepage.h"

#include "composer/composer_editor.h"
#include "composer/pages/page_fields.h"
#include "composer/statement_inserter.h"
#include "platform/dialogs.h"
#include "text/mouse_types.h"
#include "ui_mousepage.h"

#include <QAction>
#include <QSignalBlocker>

namespace zeph {

namespace {

/// The tabs of SSTab4.
enum MouseTab { TypeTab, AxisTab, ButtonTab, MoveTab, ZeroTab, AdvancedTab };

/// Where a button of CMD_MouseButton is.
MouseTab tabOf(MouseCommand command)
{
    using enum MouseCommand;
    if (command == MoveX || command == MoveY) {
        return MoveTab;
    }
    return command == ZeroMouse ? ZeroTab : ButtonTab;
}

} // namespace

MousePage::MousePage(const ComposerParts &parts, QWidget *parent)
    : ComposerPage(parts, parent), m_ui(std::make_unique<Ui::MousePage>())
{
    m_ui->setupUi(this);
    m_typeOptions = OptionBoxes(this, OptionPage::MouseType);
    m_axisOptions = OptionBoxes(this, OptionPage::AxisAsMouse);
    fillLists();
    for (const QComboBox *box : { m_ui->ComboAnalogueAxes_8, m_ui->ComboMouseAxes }) {
        connect(box, &QComboBox::currentTextChanged, this,
                &MousePage::DisableChecksForUSeAxisAsMouse);
    }
    connect(m_ui->MouseList, &QListWidget::currentRowChanged, this, &MousePage::showButtonsOfType);
    connect(m_ui->CHK_Mouse_0, &QCheckBox::toggled, m_ui->TXT_Mouse_2, &QWidget::setEnabled);
    connectButtons();
    whenEdited(*this, this, [this] { Q_EMIT changed(); });
    connect(m_ui->MouseList, &QListWidget::currentRowChanged, this, &ComposerPage::changed);
    connect(m_ui->SSTab4, &QTabWidget::currentChanged, this, &ComposerPage::changed);
}

MousePage::~MousePage() = default;

void MousePage::fillLists()
{
    for (const MouseType &type : mouseTypes) {
        m_ui->MouseList->addItem(type.name.toString());
    }
    m_ui->MouseList->setCurrentRow(0);
    m_ui->MouseList->setMaximumHeight(m_ui->MouseList->sizeHintForRow(0) * m_ui->MouseList->count()
                                      + 2 * m_ui->MouseList->frameWidth());
    showButtonsOfType();
    for (int scale = firstScale; scale <= lastScale; ++scale) {
        m_ui->ComboScaleValue->addItem(QString::number(scale));
    }
    fillList(*m_ui->ComboAnalogueAxes_8, mouseDrivers);
    AxisAsMouseFields fields;
    fields.axis = mouseDrivers[0].toString();
    showFields(settled(fields));
}

void MousePage::connectButtons()
{
    Dialogs &dialogs = m_parts.context.dialogs;
    const QPushButton *insertButtons[] = { m_ui->Command9_0, m_ui->Command9_1 };
    for (int i = 0; i < int(std::size(insertButtons)); ++i) {
        connect(insertButtons[i], &QPushButton::clicked, this,
                guarded(dialogs, [this, i](bool) { Command9_Click(i); }));
    }
    for (int i = 0; i < mouseCommandCount; ++i) {
        auto *button = findChild<QPushButton *>(u"CMD_MouseButton_%1"_s.arg(i));
        connect(button, &QPushButton::clicked, this,
                guarded(dialogs, [this, i](bool) { CMD_MouseButton_Click(MouseCommand(i)); }));
    }
    for (QWidget *move : { m_ui->CMD_MouseButton_5, m_ui->CMD_MouseButton_6 }) {
        move->installEventFilter(this);
    }
    connect(m_ui->CMD_MouseWizard, &QPushButton::clicked, this,
            guarded(dialogs, [this](bool) { CMD_MouseWizard_Click(); }));
}

std::optional<Generated> MousePage::current() const
{
    switch (m_ui->SSTab4->currentIndex()) {
    case TypeTab:
        return mouseTypeStatement(typeFields());
    case AxisTab:
        return axisAsMouse(axisFields());
    case ButtonTab:
        return mouseCommand(MouseCommand::ButtonStatement, commandFields());
    case MoveTab:
        return mouseCommand(m_move, commandFields());
    case ZeroTab:
        return mouseCommand(MouseCommand::ZeroMouse, commandFields());
    default:
        return {};
    }
}

bool MousePage::isPiece() const
{
    return m_ui->SSTab4->currentIndex() == MoveTab;
}

bool MousePage::read(const QString &statement)
{
    if (const auto type = readMouseType(statement)) {
        m_ui->SSTab4->setCurrentIndex(TypeTab);
        showFields(*type);
        return true;
    }
    if (const auto axis = readAxisAsMouse(statement)) {
        m_ui->SSTab4->setCurrentIndex(AxisTab);
        showFields(*axis);
        return true;
    }
    // The other buttons' words are pieces of a statement.
    using enum MouseCommand;
    if (const auto command = readMouseCommand(statement);
        command && (command->command == ButtonStatement || command->command == ZeroMouse)) {
        m_ui->SSTab4->setCurrentIndex(tabOf(command->command));
        showFields(*command);
        return true;
    }
    return false;
}

void MousePage::enter()
{
    QWidget *const first[] = {
        m_ui->MouseList,         m_ui->ComboAnalogueAxes_8, m_ui->CMD_MouseButton_0,
        m_ui->TXT_DigitalAxis_8, m_ui->CMD_MouseButton_7,   m_ui->CMD_MouseWizard,
    };
    first[m_ui->SSTab4->currentIndex()]->setFocus();
}

void MousePage::windowActivated()
{
    const QAction *wizard = m_parts.editor.action(u"mnuMouseWizard");
    m_ui->CMD_MouseWizard->setEnabled(wizard->isEnabled());
}

MouseTypeFields MousePage::typeFields() const
{
    const QListWidgetItem *type = m_ui->MouseList->currentItem();
    return { type ? type->text() : QString(), m_typeOptions.ticked() };
}

AxisAsMouseFields MousePage::axisFields() const
{
    return { m_ui->ComboAnalogueAxes_8->currentText(),
             m_ui->ComboMouseAxes->currentText(),
             m_ui->ComboScaleValue->currentIndex() + firstScale,
             m_ui->TXT_Mouse_1->text(),
             m_ui->CHK_Mouse_0->isChecked(),
             m_ui->TXT_Mouse_2->text(),
             m_axisOptions.ticked() };
}

MouseCommandFields MousePage::commandFields() const
{
    return { m_ui->OptionMousebuttonStatement_1->isChecked() ? 1 : 0,
             m_ui->TXT_DigitalAxis_8->text() };
}

void MousePage::showFields(const MouseTypeFields &fields)
{
    for (const QListWidgetItem *each : m_ui->MouseList->findItems(fields.type, Qt::MatchExactly)) {
        m_ui->MouseList->setCurrentRow(m_ui->MouseList->row(each));
    }
    m_typeOptions.tick(fields.options);
}

void MousePage::showFields(const AxisAsMouseFields &fields)
{
    m_ui->ComboAnalogueAxes_8->setCurrentText(fields.axis);
    DisableChecksForUSeAxisAsMouse();
    m_ui->ComboMouseAxes->setCurrentText(fields.mouseAxis);
    m_ui->ComboScaleValue->setCurrentIndex(fields.scale - firstScale);
    m_ui->TXT_Mouse_1->setText(fields.increment);
    m_ui->CHK_Mouse_0->setChecked(fields.hasStart);
    if (fields.hasStart) {
        m_ui->TXT_Mouse_2->setText(fields.start);
    }
    m_axisOptions.tick(fields.options);
}

void MousePage::showFields(const ReadMouseCommand &command)
{
    if (command.command == MouseCommand::ButtonStatement) {
        const bool both = command.fields.statement == 1;
        (both ? m_ui->OptionMousebuttonStatement_1 : m_ui->OptionMousebuttonStatement_0)
            ->setChecked(true);
    }
}

void MousePage::showButtonsOfType()
{
    const auto [left, right] = buttonsOfMouseType(typeFields().type);
    m_ui->label5->setText(u"Left mouse button: %1\nRight mouse button: %2"_s.arg(left, right));
}

void MousePage::DisableChecksForUSeAxisAsMouse()
{
    const AxisAsMouseFields now = settled(axisFields());
    {
        const QSignalBlocker blocker(m_ui->ComboMouseAxes);
        fillList(*m_ui->ComboMouseAxes, mouseAxesFor(now.axis));
        m_ui->ComboMouseAxes->setCurrentText(now.mouseAxis);
    }
    const UseOptions options = axisAsMouseOptions(now.axis, now.mouseAxis);
    m_axisOptions.enableOnly(options);
    m_ui->LabelNoButton->setEnabled(options.testFlag(UseOption::NoButton));
}

void MousePage::Command9_Click(int index)
{
    if (m_parts.documents.refuseProtected()) {
        return;
    }
    if (index == TypeTab) {
        m_parts.inserter.insertComposed(mouseTypeStatement(typeFields()));
        return;
    }
    const AxisAsMouseFields fields = axisFields();
    const Generated statement = axisAsMouse(fields);
    m_parts.inserter.insertComposed(statement);
    if (!statement) {
        const bool lacksStart = fields.hasStart && fields.start.isEmpty();
        askFor(lacksStart && !fields.increment.isEmpty() ? *m_ui->TXT_Mouse_2 : *m_ui->TXT_Mouse_1);
    }
}

void MousePage::CMD_MouseButton_Click(MouseCommand command)
{
    if (m_parts.documents.refuseProtected()) {
        return;
    }
    const Generated statement = mouseCommand(command, commandFields());
    if (!statement) {
        m_parts.inserter.refuse(statement.error());
        askFor(*m_ui->TXT_DigitalAxis_8);
    } else if (statement->startsLine) {
        m_parts.inserter.insertComposed(statement);
    } else {
        if (goesToJoystick(command)) {
            m_parts.documents.select(DocumentKind::Joystick);
        }
        m_parts.inserter.insertIntoSelected(statement);
    }
}

bool MousePage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        m_move = watched == m_ui->CMD_MouseButton_6 ? MouseCommand::MoveY : MouseCommand::MoveX;
        Q_EMIT changed();
    }
    return ComposerPage::eventFilter(watched, event);
}

void MousePage::CMD_MouseWizard_Click()
{
    m_parts.editor.action(u"mnuMouseWizard")->trigger();
}

} // namespace zeph
