// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/speedy.h"

#include "composer/editor_entries.h"
#include "composer/wizards/heading_list.h"
#include "composer/wizards/macrofields.h"
#include "documents/documents.h"
#include "platform/dialogs.h"
#include "platform/window_places.h"
#include "ui_speedy.h"

#include <QShortcut>

namespace zeph {

namespace {

constexpr int helpTopic = 2055;

} // namespace

Speedy::Speedy(const ComposerParts &parts, QWidget *parent)
    : QDialog(parent, Qt::Window), m_parts(parts), m_ui(std::make_unique<Ui::Speedy>())
{
    m_ui->setupUi(this);
    m_macro = new MacroFields(parts, u"TxtMacro"_s, m_ui->GroupMacro);
    m_ui->layoutMacro->insertWidget(0, m_macro);
    m_headings = new HeadingList(parts, m_ui->GroupHeadings);
    m_ui->layoutHeadings->insertWidget(0, m_headings);
    setTabOrder(m_headings, m_ui->Command1_2);
    connect(m_macro, &MacroFields::tumboWanted, this, &Speedy::tumboWanted);
    connectButtons();
    auto *help = new QShortcut(Qt::Key_F1, this);
    connect(help, &QShortcut::activated, this, [this] { Q_EMIT helpWanted(helpTopic); });
    m_macro->insertButton().setDefault(true);
    m_macro->nameField().setFocus(Qt::OtherFocusReason);
    adjustSize();
    if (parent) {
        openBeside(*this, *parent->window());
    }
}

Speedy::~Speedy() = default;

void Speedy::connectButtons()
{
    const auto run = [this](QPushButton *button, QStringView entry) {
        connect(button, &QPushButton::clicked, this,
                guarded(m_parts.context.dialogs, [this, entry](bool) {
                    m_parts.documents.select(DocumentKind::Macro);
                    runEntry(m_parts.editor, m_parts.context.status, entry);
                }));
    };
    run(m_ui->Command1_0, u"mnuInsertTitle");
    run(m_ui->Command1_1, u"mnuFileNewMacro");
    connect(m_ui->Command1_2, &QPushButton::clicked, m_headings, &HeadingList::selectList);
    run(m_ui->Command1_3, u"mnuInsertHeading");
    run(m_ui->Command1_7, u"mnuFileSave");
    run(m_ui->Command1_8, u"mnuEditUpdateMacros");
    connect(m_ui->CommandClose, &QPushButton::clicked, this, &Speedy::close);
}

void Speedy::setKeys(const QString &keys)
{
    m_macro->setKeys(keys);
}

} // namespace zeph
