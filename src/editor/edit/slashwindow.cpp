// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/slashwindow.h"

#include "editor/editor_settings.h"
#include "text/insert_blocks.h"

#include <QGridLayout>
#include <QPushButton>

namespace zeph {

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
