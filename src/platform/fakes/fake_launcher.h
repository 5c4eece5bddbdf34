// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/paths.h"
#include "platform/process_launcher.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace zeph {

/// A launcher for tests: records what would start and can play the started program's part.
class FakeLauncher : public ProcessLauncher
{
public:
    QList<Launch> launches;
    QStringList opened;
    /// Called at each start; its answer is given back. Success when not set.
    std::function<Expected<void, QString>(const Launch &)> onStart;

    /// Paths are looked up on the disk; names alone are there.
    bool finds(const QString &program) const override
    {
        return nameOf(program) == program || fileExists(program);
    }
    Expected<void, QString> start(const Launch &launch) override
    {
        launches.append(launch);
        return onStart ? onStart(launch) : Expected<void, QString>();
    }
    Expected<void, QString> openWithDesktop(const QString &pathOrUrl) override
    {
        opened.append(pathOrUrl);
        return {};
    }
};

} // namespace zeph
