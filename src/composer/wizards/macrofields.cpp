// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/macrofields.h"

#include "composer/composer_settings.h"
#include "composer/statement_inserter.h"
#include "composer/wizards/macro_lines.h"
#include "documents/documents.h"
#include "platform/dialogs.h"
#include "settings/settings.h"
#include "text/insert_blocks.h"
#include "text/macro_table.h"
#include "ui_macrofields.h"

#include <QCompleter>
#include <QFontDatabase>

#include <chrono>

namespace zeph {

using namespace std::chrono_literals;

namespace {

/// Long enough that typing in a long macro file does not wait for the search for a name.
constexpr auto pause = 150ms;
/// The room for them is always there, so that the window does not jump.
constexpr int warningLines = 2;

} // namespace

MacroFields::MacroFields(const ComposerParts &parts, const QString &keysName, QWidget *parent)
    : QWidget(parent), m_parts(parts), m_ui(std::make_unique<Ui::MacroFields>())
{
    m_ui->setupUi(this);
    m_ui->Keys->setObjectName(keysName);
    m_ui->Label1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    fillNames();
    connect(m_ui->ComboMacros, &QComboBox::editTextChanged, this, &MacroFields::CreateMacro);
    connect(m_ui->Keys, &QLineEdit::textChanged, this, &MacroFields::CreateMacro);
    connect(m_ui->Command1_4, &QPushButton::clicked, this,
            guarded(parts.context.dialogs, [this](bool) { insertMacro(); }));
    connect(m_ui->Command1_5, &QPushButton::clicked, this, &MacroFields::clearText);
    connect(m_ui->Command1_6, &QPushButton::clicked, this, &MacroFields::tumboWanted);
    m_ui->LabelWarning->setMinimumHeight(warningLines
                                         * m_ui->LabelWarning->fontMetrics().lineSpacing());
    m_soon.setSingleShot(true);
    m_soon.setInterval(pause);
    connect(&m_soon, &QTimer::timeout, this, &MacroFields::showWarning);
    // The file may get the name that the field holds.
    const auto warnSoon = [this] {
        m_soon.start();
    };
    connect(&parts.documents.macro(), &Document::edited, this, warnSoon);
    connect(&parts.documents.macro(), &Document::replaced, this, warnSoon);
    CreateMacro();
}

MacroFields::~MacroFields() = default;

QComboBox &MacroFields::nameField() const
{
    return *m_ui->ComboMacros;
}

QPushButton &MacroFields::insertButton() const
{
    return *m_ui->Command1_4;
}

void MacroFields::fillNames()
{
    QComboBox &names = nameField();
    names.addItems(linesOfListFile(m_parts.context.paths.inApp(u"DefaultMacros.txt")));
    names.setCurrentIndex(-1);
    // The toolkit creates the inner field without a name.
    names.lineEdit()->setObjectName(u"ComboMacrosEdit"_s);
    names.lineEdit()->setAccessibleName(names.accessibleName());
    // Completed within the field, a typed name would turn into a longer one of the list.
    names.completer()->setCompletionMode(QCompleter::PopupCompletion);
    names.completer()->setFilterMode(Qt::MatchContains);
}

void MacroFields::CreateMacro()
{
    QLineEdit &field = *nameField().lineEdit();
    const QString name = withoutRefused(field.text());
    if (name != field.text()) {
        const int caret = field.cursorPosition();
        const QSignalBlocker once(m_ui->ComboMacros);
        field.setText(name);
        field.setCursorPosition(caret);
    }
    const QString line = previewOf(name, m_ui->Keys->text());
    m_ui->Label1->setText(line);
    m_ui->Label1->setToolTip(line);
    m_ui->Command1_4->setEnabled(!line.isEmpty());
    showWarning();
}

void MacroFields::showWarning()
{
    m_soon.stop();
    const QString name = nameField().currentText();
    m_ui->LabelWarning->setText(
        name.isEmpty() ? QString() : warningAbout(name, m_parts.documents.macro().text()));
}

void MacroFields::insertMacro()
{
    const QString line = previewOf(nameField().currentText(), m_ui->Keys->text());
    const bool addsLineEnd = m_parts.context.settings.of<ComposerSettings>().CompTabsAddCr;
    if (!line.isEmpty() && m_parts.inserter.insertIntoMacroFile(line, addsLineEnd)) {
        clearText();
    }
}

void MacroFields::clearText()
{
    nameField().setCurrentIndex(-1);
    nameField().clearEditText();
    m_ui->Keys->clear();
    nameField().setFocus(Qt::OtherFocusReason);
}

void MacroFields::setKeys(const QString &keys)
{
    // A macro is one line.
    m_ui->Keys->setText(QString(keys).replace(u'\n', u' '));
}

} // namespace zeph
