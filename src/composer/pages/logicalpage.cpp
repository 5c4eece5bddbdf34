// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/logicalpage.h"

#include "composer/composer_editor.h"
#include "composer/pages/page_fields.h"
#include "composer/pages/statementline.h"
#include "composer/statement_inserter.h"
#include "documents/editor_texts.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "ui_logicalpage.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace zeph {

namespace {

/// What a button of CMDCompare does, by index.
constexpr QStringView compareTips[] = {
    u"Both have to be on",
    u"One of the two, or both, have to be on",
    u"The reverse of what follows",
    u"Begins what belongs together",
    u"Ends what belongs together",
    u"Begins a statement that says what happens when a flag comes on: BTN X1 ...",
    u"Begins a statement that says when a flag is on: DEF X1 ...",
    u"The sign *",
};
static_assert(std::size(compareTips) == std::size(compareWords));

/// The button CMDFlagInsert that opens the help.
constexpr int helpButton = 9;

/// Command13, by index.
enum Command13 { InsertAll, InsertSelected, ReadBack };

} // namespace

LogicalPage::LogicalPage(const ComposerParts &parts, QWidget *parent)
    : ComposerPage(parts, parent), m_ui(std::make_unique<Ui::LogicalPage>())
{
    m_ui->setupUi(this);
    FillLogicLists();
    makeWordButtons();
    makeLines();
    connectButtons();
}

LogicalPage::~LogicalPage() = default;

void LogicalPage::FillLogicLists()
{
    fillList(*m_ui->FlagList_0, flagNames());
    fillList(*m_ui->FlagList_1, flagHats);
    fillList(*m_ui->FlagList_2, flagButtons);
    fillList(*m_ui->FlagList_3, flagTimers);
    fillList(*m_ui->FlagList_4, flagNames());
    fillList(*m_ui->FlagList_5, flagHatPositions);
}

QPushButton *LogicalPage::addWordButton(QBoxLayout &row, const QString &name, QStringView word,
                                        const QString &tip)
{
    auto *button = new QPushButton(word.toString(), this);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAccessibleDescription(tip);
    row.addWidget(button);
    connect(button, &QPushButton::clicked, this,
            guarded(m_parts.context.dialogs, [this, word](bool) { append(word); }));
    return button;
}

void LogicalPage::makeWordButtons()
{
    QWidget *last = m_ui->SSTab7;
    const auto add = [this, &last](QBoxLayout &row, const QString &name, QStringView word,
                                   const QString &tip) {
        QPushButton *button = addWordButton(row, name, word, tip);
        setTabOrder(last, button);
        last = button;
    };
    for (size_t i = 0; i < std::size(compareWords); ++i) {
        add(*m_ui->rowCompare, u"CMDCompare_%1"_s.arg(i), compareWords[i],
            compareTips[i].toString());
    }
    for (size_t i = 0; i < std::size(slashButtons); ++i) {
        const auto &row = language::rowOf(slashButtons[i]);
        add(*m_ui->rowSlash, u"CMDFlagSlash_%1"_s.arg(i), slashButtons[i],
            QStringView(row.tip).toString());
    }
}

void LogicalPage::makeLines()
{
    auto *group = new QButtonGroup(this);
    for (int first = 0; first < LogicWorkbench::lineCount; first += LogicWorkbench::linesPerTab) {
        auto *sheet = new QWidget(m_ui->SSTabFlags);
        auto *grid = new QGridLayout(sheet);
        grid->setContentsMargins(6, 4, 6, 4);
        grid->setVerticalSpacing(2);
        const int last = first + LogicWorkbench::linesPerTab - 1;
        for (int index = first; index <= last; ++index) {
            makeLine(index, sheet);
        }
        const int number = m_ui->SSTabFlags->count() + 1;
        m_ui->SSTabFlags->addTab(
            sheet, number == 1 ? u"Logical statements: 1"_s : QString::number(number));
        m_ui->SSTabFlags->setTabToolTip(number - 1,
                                        u"Lines %1 to %2"_s.arg(first + 1).arg(last + 1));
    }
    m_lines = ControlArray<StatementLine>(this, u"RichTexFlag"_s);
    m_options = ControlArray<QRadioButton>(this, u"OptionFlag"_s);
    for (int index = 0; index < m_options.count(); ++index) {
        group->addButton(m_options[index], index);
    }
    m_options[0]->setChecked(true);
    connect(group, &QButtonGroup::idToggled, this, [this](int index, bool on) {
        if (on) {
            select(index);
        }
    });
    connect(m_ui->SSTabFlags, &QTabWidget::currentChanged, this, [this](int tab) {
        // Words must not go into a line that nobody sees.
        if (WhichLogicText() / LogicWorkbench::linesPerTab != tab) {
            m_options[tab * LogicWorkbench::linesPerTab]->setChecked(true);
        }
    });
}

void LogicalPage::makeLine(int index, QWidget *sheet)
{
    const QString number = QString::number(index + 1);
    auto *option = new QRadioButton(number, sheet);
    option->setObjectName(u"OptionFlag_%1"_s.arg(index));
    option->setToolTip(u"The buttons write into this line"_s);
    option->setAccessibleName(u"The buttons write into line "_s + number);
    auto *line = new StatementLine(sheet);
    line->setObjectName(u"RichTexFlag_%1"_s.arg(index));
    line->setAccessibleName(u"Logical statement "_s + number);
    auto *grid = static_cast<QGridLayout *>(sheet->layout());
    const int row = index % LogicWorkbench::linesPerTab;
    grid->addWidget(option, row, 0);
    grid->addWidget(line, row, 1);
    connect(line, &StatementLine::entered, option, [option] { option->setChecked(true); });
    connect(line, &StatementLine::stepWanted, this,
            [this, index](int step) { goToLine(index + step); });
    connect(line, &StatementLine::textChanged, this, [this, index] { lineEdited(index); });
}

void LogicalPage::connectButtons()
{
    Dialogs &dialogs = m_parts.context.dialogs;
    for (int i = 0; i <= helpButton; ++i) {
        if (auto *button = findChild<QPushButton *>(u"CMDFlagInsert_%1"_s.arg(i))) {
            connect(button, &QPushButton::clicked, this,
                    guarded(dialogs, [this, i](bool) { CMDFlagInsert_Click(i); }));
        }
    }
    QWidget *last = m_lines[m_lines.count() - 1];
    QPushButton *const below[] = { m_ui->Command13_0, m_ui->Command13_1, m_ui->Command13_2,
                                   m_ui->CMD_ShowFlags, m_ui->CMDFlagInsert_9 };
    for (QPushButton *button : below) {
        setTabOrder(last, button);
        last = button;
    }
    for (int i = InsertAll; i <= ReadBack; ++i) {
        connect(below[i], &QPushButton::clicked, this,
                guarded(dialogs, [this, i](bool) { Command13_Click(i); }));
    }
    connect(m_ui->CMD_ShowFlags, &QPushButton::clicked, this, &LogicalPage::flagsWanted);
}

std::optional<Generated> LogicalPage::current() const
{
    if (const std::optional<Statement> line = m_workbench.selectedLine()) {
        return Generated(*line);
    }
    return {};
}

bool LogicalPage::read(const QString &statement)
{
    const std::optional<QString> read = readLogicLine(statement);
    if (!read) {
        return false;
    }
    // What is on the workbench stays there as long as a line is free.
    const int into = freeLine();
    m_workbench.setLine(into, *read);
    showLines();
    m_options[into]->setChecked(true);
    Q_EMIT changed();
    return true;
}

int LogicalPage::freeLine() const
{
    const int selected = WhichLogicText();
    if (m_workbench.line(selected).isEmpty()) {
        return selected;
    }
    for (int i = 0; i < LogicWorkbench::lineCount; ++i) {
        if (m_workbench.line(i).isEmpty()) {
            return i;
        }
    }
    return selected;
}

void LogicalPage::enter()
{
    m_lines[WhichLogicText()]->setFocus();
}

void LogicalPage::windowActivated()
{
    m_ui->TxtFlag_4->setText(QString::number(m_parts.editor.DefaultDLYvalue()));
    const auto &colours = m_parts.context.settings.of<ColourSettings>();
    const ColourScheme scheme = colourScheme(colours, DocumentKind::Joystick);
    const CharFormat plain = plainFormat(colours, DocumentKind::Joystick);
    for (StatementLine *line : m_lines) {
        line->setColours(scheme, plain, documentBackground(colours, DocumentKind::Joystick));
    }
}

void LogicalPage::showLines()
{
    for (int i = 0; i < m_lines.count(); ++i) {
        m_lines[i]->setLine(m_workbench.line(i));
    }
}

void LogicalPage::select(int index)
{
    m_workbench.select(index);
    // The line with the caret is the selected one; a page that comes to the front restores it.
    if (qobject_cast<StatementLine *>(focusWidget())) {
        m_lines[index]->setFocus();
    }
    m_ui->SSTabFlags->setCurrentIndex(index / LogicWorkbench::linesPerTab);
    Q_EMIT changed();
}

void LogicalPage::goToLine(int index)
{
    if (index >= 0 && index < m_lines.count()) {
        m_options[index]->setChecked(true);
        m_lines[index]->setFocus();
    }
}

void LogicalPage::lineEdited(int index)
{
    const QString text = m_lines[index]->toPlainText();
    if (text == m_workbench.line(index)) {
        return;
    }
    m_workbench.setLine(index, text);
    if (index == WhichLogicText()) {
        Q_EMIT changed();
    }
}

void LogicalPage::append(QStringView word)
{
    StatementLine &line = *m_lines[WhichLogicText()];
    const QString before = m_workbench.line(WhichLogicText());
    line.addToEnd(withWord(before, word).sliced(before.size()));
}

FlagFields LogicalPage::fields() const
{
    FlagFields fields;
    for (size_t i = 0; i < fields.lists.size(); ++i) {
        fields.lists[i] = findChild<QComboBox *>(u"FlagList_%1"_s.arg(i))->currentText();
        fields.values[i] = findChild<QLineEdit *>(u"TxtFlag_%1"_s.arg(i))->text();
    }
    return fields;
}

void LogicalPage::CMDFlagInsert_Click(int index)
{
    if (index == helpButton) {
        Q_EMIT helpWanted(u"logic"_s);
    } else {
        append(flagTerm(index, fields()));
    }
}

void LogicalPage::insertIntoJoystick(const std::optional<Statement> &statement)
{
    if (!statement || m_parts.documents.refuseProtected()) {
        return;
    }
    // The text ends with line ends of its own, whatever the settings want after a statement.
    m_parts.documents.select(DocumentKind::Joystick);
    if (m_parts.documents.insert(*statement)) {
        m_parts.editor.ResetFocusToEditor();
    }
}

void LogicalPage::readBack()
{
    const QString text = m_parts.documents.joystick().text();
    if (text.isEmpty()) {
        return;
    }
    const QString path = m_parts.context.paths.tempFolder() + u"logic.txt"_s;
    if (const auto written = writeFileAtomically(path, documentBytes(text)); !written) {
        m_parts.context.status.setText(
            u" I couldn't write %1: %2"_s.arg(path, written.error().reason));
    }
    const std::optional<Refusal> nothing = m_workbench.readBack(text);
    showLines();
    m_options[0]->setChecked(true);
    m_ui->SSTabFlags->setCurrentIndex(0);
    Q_EMIT changed();
    if (nothing) {
        m_parts.inserter.refuse(*nothing);
    }
}

void LogicalPage::Command13_Click(int index)
{
    switch (index) {
    case InsertAll:
        insertIntoJoystick(m_workbench.allLines());
        break;
    case InsertSelected:
        insertIntoJoystick(m_workbench.selectedLine());
        break;
    default:
        readBack();
    }
}

} // namespace zeph
