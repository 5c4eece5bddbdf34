// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/title.h"

#include "settings/shared_settings.h"
#include "ui_title.h"

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

} // namespace zeph
