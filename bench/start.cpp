// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The installed program from its start to a window that can be used: a process is started, and
// ends itself as soon as its message panel greets. Needs `cmake --install` into the build's
// portable folder first.

#include "platform/core/base.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace zeph;

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytes);
    }
}

void StartToUsableWindow(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString script = folder.filePath(u"script"_s);
    write(script, "text Panel_1 Ready!\nkill\n");
    write(QStringLiteral(ZEPH_PORTABLE) + u"/Zeph.ini"_s,
          "[FileLocations]\r\nFirstTimeUsed=3\r\nShowTips=0\r\n[Unsupported]\r\nTurnOffFontCheck="
          "1\r\n");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(ZEPH_DRIVER_PLUGINS));
    environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"zephdriver"_s);
    environment.insert(u"ZEPH_SCRIPT"_s, script);
    environment.insert(u"ZEPH_SCRIPT_LOG"_s, folder.filePath(u"log"_s));
    for (auto _ : state) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(ZEPH_PORTABLE) + u"/zeph"_s, QStringList());
        if (!program.waitForFinished() || program.exitCode() != 9) {
            state.SkipWithError("the program did not come up");
            break;
        }
    }
}

BENCHMARK(StartToUsableWindow)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(20);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
