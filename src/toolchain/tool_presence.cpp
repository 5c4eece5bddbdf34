// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/tool_presence.h"

#include "menus/menu_actions.h"
#include "platform/core/paths.h"
#include "platform/core/stand_in.h"
#include "platform/process_launcher.h"
#include "platform/status_line.h"
#include "toolchain/external_tools.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>

namespace zeph {

namespace {

/// A tool writes HOTAS.ini in several steps; the disk is looked at once after them.
constexpr int soonMs = 100;

} // namespace

ToolPresence::ToolPresence(const Context &context, MenuActions &actions)
    : QObject(&actions), m_context(context), m_actions(actions)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(soonMs);
    connect(&m_soon, &QTimer::timeout, this, [this] { refresh(); });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_soon,
            qOverload<>(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_soon, qOverload<>(&QTimer::start));
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this] { refresh(); });
    for (QMenu *menu : actions.menuBar()) {
        connect(menu, &QMenu::aboutToShow, this, [this] { refresh(); });
    }
    refresh();
}

void ToolPresence::refresh()
{
    watch();
    for (const EntryProgram &each : entryPrograms(m_context.paths)) {
        if (m_actions.has(each.entry)) {
            m_actions.setLack(each.entry, lackOf(each, m_context.launcher), each.tellsByItself);
        }
    }
    const Paths &paths = m_context.paths;
    m_context.status.setStandIns(isStandIn(paths.compiler()) || isStandIn(paths.config()));
}

void ToolPresence::watch()
{
    const Paths &paths = m_context.paths;
    QStringList wanted;
    // A folder tells what comes and goes, a file that it was written anew.
    for (const QString &path :
         { paths.appFolder, paths.hotasFolder, paths.compiler(), paths.config() }) {
        const QString found = QDir::cleanPath(existingPath(path));
        if (!found.isEmpty() && !wanted.contains(found)) {
            wanted.append(found);
        }
    }
    for (const QString &old : m_watcher.directories() + m_watcher.files()) {
        if (!wanted.removeOne(old)) {
            m_watcher.removePath(old);
        }
    }
    if (!wanted.isEmpty()) {
        m_watcher.addPaths(wanted);
    }
}

/// As the function of that name, which is asked only when the file has changed.
bool ToolPresence::isStandIn(const QString &program)
{
    const QFileInfo file(existingPath(program));
    Seen &seen = m_seen[program];
    if (seen.changed != file.lastModified() || seen.size != file.size()) {
        seen = { file.lastModified(), file.size(), zeph::isStandIn(program) };
    }
    return seen.isStandIn;
}

} // namespace zeph
