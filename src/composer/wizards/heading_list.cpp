// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/heading_list.h"

#include "composer/statement_inserter.h"
#include "composer/wizards/macro_lines.h"
#include "platform/dialogs.h"
#include "text/insert_blocks.h"

#include <QShortcut>

namespace zeph {

HeadingList::HeadingList(const ComposerParts &parts, QWidget *parent)
    : QListWidget(parent), m_parts(parts)
{
    setObjectName(u"List1"_s);
    setAccessibleName(u"Macro headings"_s);
    setToolTip(u"A double click or Enter writes the heading into the macro file, at the caret"_s);
    AddHeadingsToList();
    const auto insert = guarded(parts.context.dialogs, [this](auto &&...) { insertHeading(); });
    connect(this, &QListWidget::itemDoubleClicked, this, insert);
    // The key would press the window's default button too.
    for (const int key : { Qt::Key_Return, Qt::Key_Enter }) {
        auto *enter = new QShortcut(QKeySequence(key), this);
        enter->setContext(Qt::WidgetShortcut);
        connect(enter, &QShortcut::activated, this, insert);
    }
}

void HeadingList::AddHeadingsToList()
{
    addItems(linesOfListFile(m_parts.context.paths.inApp(u"DefaultMacroHeadings.txt")));
}

void HeadingList::selectList()
{
    if (currentRow() < 0) {
        setCurrentRow(0);
    }
    setFocus(Qt::OtherFocusReason);
}

void HeadingList::insertHeading()
{
    if (const QListWidgetItem *heading = currentItem()) {
        m_parts.inserter.insertIntoMacroFile(headingLines(heading->text()), false);
    }
}

} // namespace zeph
