// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/heading.h"

#include "text/insert_blocks.h"
#include "ui_heading.h"

#include <QLineEdit>
#include <QPushButton>

namespace zeph {

Heading::Heading(const QStringList &headings, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::Heading>())
{
    m_ui->setupUi(this);
    // A heading is what was typed, not an entry of the list that begins alike.
    m_ui->Combo1->setCompleter(nullptr);
    // The toolkit makes the box's field itself, and gives it no name.
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

} // namespace zeph
