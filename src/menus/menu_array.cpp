// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "menus/menu_array.h"

#include "platform/handlers.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace zeph {

MenuArray::MenuArray(Dialogs &dialogs, QMenu &menu, QAction *before, const QString &name,
                     Handler handler)
    : QObject(&menu), m_dialogs(dialogs), m_menu(menu), m_before(before), m_name(name),
      m_handler(std::move(handler))
{
}

void MenuArray::setCaptions(const QStringList &captions)
{
    while (m_entries.size() < captions.size()) {
        grow();
    }
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        const QString caption = captions.value(i);
        m_entries[i]->setText(captionOf(caption));
        m_entries[i]->setVisible(!caption.isEmpty());
    }
}

void MenuArray::grow()
{
    const int place = int(m_entries.size()) + 1;
    auto *entry = new QAction(&m_menu);
    entry->setObjectName(m_name + u'_' + QString::number(place));
    connect(entry, &QAction::triggered, this,
            guarded(m_dialogs, [this, place](bool) { m_handler(place); }));
    m_menu.insertAction(m_before, entry);
    m_entries.append(entry);
}

QString captionOf(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

} // namespace zeph
