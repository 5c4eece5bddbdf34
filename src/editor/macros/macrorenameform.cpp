// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macrorenameform.h"

#include "platform/dialogs.h"
#include "text/macro_table.h"
#include "ui_macrorenameform.h"

namespace zeph {

MacroRenameForm::MacroRenameForm(Dialogs &dialogs, const QStringList &macros,
                                 const QString &selected, QWidget *parent)
    : QDialog(parent), m_dialogs(dialogs), m_ui(std::make_unique<Ui::MacroRenameForm>())
{
    m_ui->setupUi(this);
    connect(m_ui->Text1, &QLineEdit::textEdited, this, [this](const QString &typed) {
        const int caret = m_ui->Text1->cursorPosition();
        m_ui->Text1->setText(withoutRefused(typed));
        m_ui->Text1->setCursorPosition(caret);
    });
    connect(m_ui->Text1, &QLineEdit::textChanged, this, &MacroRenameForm::updateRename);
    connect(m_ui->List1, &QListWidget::currentRowChanged, this, &MacroRenameForm::updateRename);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &MacroRenameForm::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &MacroRenameForm::reject);
    GetAllMacros(macros, selected);
    updateRename();
}

MacroRenameForm::~MacroRenameForm() = default;

void MacroRenameForm::GetAllMacros(const QStringList &macros, const QString &selected)
{
    m_ui->List1->addItems(macros);
    // Macro names do not depend on case.
    const auto chosen = m_ui->List1->findItems(selected, Qt::MatchFixedString);
    if (!chosen.isEmpty()) {
        m_ui->List1->setCurrentItem(chosen.first());
    }
    if (!chosen.isEmpty()) {
        m_ui->Text1->setFocus();
    }
}

void MacroRenameForm::updateRename()
{
    m_ui->cmdOK->setEnabled(!oldName().isEmpty() && !newName().isEmpty());
}

QString MacroRenameForm::oldName() const
{
    const QListWidgetItem *chosen = m_ui->List1->currentItem();
    return chosen ? chosen->text() : QString();
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
    if (oldName().compare(newName(), Qt::CaseInsensitive) == 0) {
        m_dialogs.tell(u"What?!"_s, u"The macronames are the same buddy!"_s);
        return;
    }
    QDialog::accept();
}

} // namespace zeph
