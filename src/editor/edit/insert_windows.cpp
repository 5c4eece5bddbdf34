// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/insert_windows.h"

#include "editor/editor_settings.h"
#include "settings/shared_settings.h"
#include "text/insert_blocks.h"
#include "ui_heading.h"
#include "ui_singletextform.h"
#include "ui_title.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace zeph {

Title::Title(const TitleFields &preset, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::Title>())
{
    m_ui->setupUi(this);
    m_ui->Text1->setText(preset.fileName);
    m_ui->Text2->setText(preset.game);
    m_ui->Text3->setText(preset.person);
    m_ui->Text4->setText(preset.lastModified);
    m_ui->Text5->setText(preset.controllers);
    m_ui->RichTextBox1->setPlainText(preset.comments);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &Title::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &Title::reject);
}

Title::~Title() = default;

TitleFields Title::fields() const
{
    return { .fileName = m_ui->Text1->text().trimmed(),
             .game = m_ui->Text2->text().trimmed(),
             .person = personsNameOr(m_ui->Text3->text()),
             .lastModified = m_ui->Text4->text().trimmed(),
             .controllers = m_ui->Text5->text().trimmed(),
             .comments = m_ui->RichTextBox1->toPlainText() };
}

Heading::Heading(const QStringList &headings, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::Heading>())
{
    m_ui->setupUi(this);
    // The completer would turn a typed heading into a list entry that begins alike.
    m_ui->Combo1->setCompleter(nullptr);
    // The toolkit creates the inner field without a name.
    m_ui->Combo1->lineEdit()->setObjectName(u"Combo1Edit"_s);
    m_ui->Combo1->lineEdit()->setAccessibleName(m_ui->Combo1->accessibleName());
    m_ui->Combo1->addItems(headings);
    m_ui->Combo1->setCurrentIndex(-1);
    m_ui->Combo1->clearEditText();
    connect(m_ui->Combo1, &QComboBox::editTextChanged, this, &Heading::showText);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &Heading::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &Heading::reject);
    showText();
}

Heading::~Heading() = default;

QString Heading::text() const
{
    return m_ui->Combo1->currentText().trimmed();
}

void Heading::showText()
{
    const QString heading = text();
    m_ui->cmdOK->setEnabled(!heading.isEmpty());
    const bool tooShort = !heading.isEmpty() && heading.size() < shortestHeading;
    m_ui->lblHint->setText(tooShort ? u"One character is too short: the macro list won't see it."_s
                                    : u"In a macro file it groups the macros below it."_s);
}

SingleTextForm::SingleTextForm(bool addCarriageReturn, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::SingleTextForm>())
{
    m_ui->setupUi(this);
    m_ui->CheckAddCR->setChecked(addCarriageReturn);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &SingleTextForm::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &SingleTextForm::reject);
}

SingleTextForm::~SingleTextForm() = default;

QString SingleTextForm::text() const
{
    return m_ui->RichTextBox1->text();
}

bool SingleTextForm::addsCarriageReturn() const
{
    return m_ui->CheckAddCR->isChecked();
}

namespace {

constexpr int columns = 2;

} // namespace

SlashWindow::SlashWindow(const EditorSettings &settings, QWidget *parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      m_settings(settings)
{
    setObjectName(u"SlashWindow"_s);
    setWindowTitle(u"Slash Modifiers"_s);
    makeButtons();
    m_buttons = ControlArray<QPushButton>(this, u"Command1"_s);
    m_buttons.connect(this, &QPushButton::clicked, [this](int index) { Q_EMIT chosen(index); });
    applySettings();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void SlashWindow::makeButtons()
{
    auto *grid = new QGridLayout(this);
    int index = 0;
    for (const language::Word &word : language::insertWords) {
        auto *button = new QPushButton(this);
        button->setObjectName(u"Command1_"_s + QString::number(index));
        button->setToolTip(QString::fromUtf16(word.tip));
        button->setAccessibleDescription(button->toolTip());
        button->setAutoDefault(false);
        grid->addWidget(button, index / columns, index % columns);
        ++index;
    }
}

void SlashWindow::applySettings()
{
    for (int i = 0; i < m_buttons.count(); ++i) {
        m_buttons[i]->setText(
            insertText(language::insertWords[size_t(i)], m_settings.DefaultDLYvalue));
    }
}

void SlashWindow::showEvent(QShowEvent *event)
{
    applySettings();
    QDialog::showEvent(event);
}

} // namespace zeph
