// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macrorenameform.h"

#include "platform/dialogs.h"
#include "text/macro_table.h"
#include "ui_macrorenameform.h"

namespace zeph {

namespace {

Box refusalBox(NameFault fault, const QString &name)
{
    if (fault == NameFault::Same) {
        return { u"What?!"_s, u"The macronames are the same buddy!"_s, BoxIcon::Information };
    }
    return { u"I can't use that name buddy"_s, inWords(fault, name), BoxIcon::Exclamation };
}

} // namespace

MacroRenameForm::MacroRenameForm(Dialogs &dialogs, const Names &names, QWidget *parent)
    : QDialog(parent), m_dialogs(dialogs), m_taken(names.macros + names.alsoTaken),
      m_ui(std::make_unique<Ui::MacroRenameForm>())
{
    m_ui->setupUi(this);
    connect(m_ui->Text1, &QLineEdit::textEdited, this, [this](const QString &typed) {
        const int caret = m_ui->Text1->cursorPosition();
        m_ui->Text1->setText(withoutRefused(typed));
        m_ui->Text1->setCursorPosition(caret);
    });
    connect(m_ui->Text1, &QLineEdit::textChanged, this, &MacroRenameForm::updateRename);
    connect(m_ui->List1, &QListWidget::itemSelectionChanged, this, &MacroRenameForm::showChosen);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &MacroRenameForm::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &MacroRenameForm::reject);
    GetAllMacros(names);
    updateRename();
}

MacroRenameForm::~MacroRenameForm() = default;

void MacroRenameForm::GetAllMacros(const Names &names)
{
    m_ui->List1->addItems(names.macros);
    if (names.chosen.isEmpty()) {
        return;
    }
    // Macro names do not depend on case.
    const auto chosen = m_ui->List1->findItems(names.chosen, Qt::MatchFixedString);
    if (!chosen.isEmpty()) {
        m_ui->List1->setCurrentItem(chosen.first());
        m_ui->Text1->setFocus();
    }
}

void MacroRenameForm::showChosen()
{
    // What the user has typed already stays.
    if (newName() == m_filledIn) {
        m_filledIn = oldName();
        m_ui->Text1->setText(m_filledIn);
        m_ui->Text1->selectAll();
    }
    updateRename();
}

void MacroRenameForm::updateRename()
{
    m_ui->cmdOK->setEnabled(!oldName().isEmpty() && !newName().isEmpty());
}

QString MacroRenameForm::oldName() const
{
    // Not the list's current entry: the toolkit makes the first one current when the list gets the
    // focus, without anybody having chosen it.
    const QList<QListWidgetItem *> chosen = m_ui->List1->selectedItems();
    return chosen.isEmpty() ? QString() : chosen.first()->text();
}

QString MacroRenameForm::newName() const
{
    return m_ui->Text1->text();
}

bool MacroRenameForm::wantsAutoSave() const
{
    return m_ui->CheckAutoSave->isChecked();
}

void MacroRenameForm::accept()
{
    const NameFault fault = faultOfNewName(oldName(), newName(), m_taken);
    if (fault == NameFault::None) {
        QDialog::accept();
        return;
    }
    m_dialogs.box(refusalBox(fault, newName()));
    m_ui->Text1->setFocus();
    m_ui->Text1->selectAll();
}

} // namespace zeph
