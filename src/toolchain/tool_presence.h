// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>

namespace zeph {

class MenuActions;

/// Keeps the menus true to what is installed: an entry whose program is missing says so, and is
/// greyed unless it opens a box about that; it comes back when the program appears. Tells the
/// status line while the tools in use are the stand-ins.
class ToolPresence : public QObject
{
public:
    /// The actions own this object.
    ToolPresence(const Context &context, MenuActions &actions);

    /// Looks at the disk again. The folders of the programs are watched, so that this is needed
    /// only where a file system tells no changes.
    void refresh();

private:
    struct Seen {
        QDateTime changed;
        qint64 size = 0;
        bool isStandIn = false;
    };

    void watch();
    bool isStandIn(const QString &program);

    Context m_context;
    MenuActions &m_actions;
    QFileSystemWatcher m_watcher;
    QTimer m_soon;
    QHash<QString, Seen> m_seen;
};

} // namespace zeph
