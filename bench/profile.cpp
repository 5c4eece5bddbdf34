// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_settings.h"
#include "platform/core/profile_file.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "shell/settings/settings_moments.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

using namespace zeph;

namespace {

/// A settings store after some years of use: every key, then lists of files.
struct Store {
    QTemporaryDir folder;
    SettingsFiles files{ ProfileFile(folder.filePath(u"Zeph.ini"_s)),
                         ProfileFile(folder.filePath(u"HOTAS.ini"_s)),
                         ProfileFile(folder.filePath(u"Layouts.ini"_s)) };

    Store()
    {
        Settings settings;
        addAllSettings(settings);
        (void)saveGlobalSettings(settings, files);
        (void)SaveColourScheme(settings, files);
        QList<ProfileEntry> lists;
        for (int i = 1; i <= 200; ++i) {
            lists.append({ u"Favourites"_s, u"FavName%1"_s.arg(i),
                           u"C:\\Program Files\\HOTAS\\Files\\Falcon %1.tmj"_s.arg(i) });
        }
        (void)files.store.write(lists);
    }
};

void readAllSettings(benchmark::State &state)
{
    const Store store;
    for (auto _ : state) {
        Settings settings;
        addAllSettings(settings);
        benchmark::DoNotOptimize(readGlobalSettings(settings, store.files).size());
        benchmark::DoNotOptimize(readColours(settings, store.files).size());
    }
}
BENCHMARK(readAllSettings)->Unit(benchmark::kMicrosecond);

void saveAllSettings(benchmark::State &state)
{
    const Store store;
    Settings settings;
    addAllSettings(settings);
    for (auto _ : state) {
        settings.of<DocumentSettings>().UndoMax = settings.of<DocumentSettings>().UndoMax ^ 1;
        benchmark::DoNotOptimize(saveGlobalSettings(settings, store.files).has_value());
    }
}
BENCHMARK(saveAllSettings)->Unit(benchmark::kMicrosecond)->UseRealTime();

void saveAllSettingsUnchanged(benchmark::State &state)
{
    const Store store;
    Settings settings;
    addAllSettings(settings);
    for (auto _ : state) {
        benchmark::DoNotOptimize(saveGlobalSettings(settings, store.files).has_value());
    }
}
BENCHMARK(saveAllSettingsUnchanged)->Unit(benchmark::kMicrosecond)->UseRealTime();

void readOneKey(benchmark::State &state)
{
    const Store store;
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.files.store.text(u"Miscellaneous", u"PilotCallsign").size());
    }
}
BENCHMARK(readOneKey)->Unit(benchmark::kMicrosecond);

void writeOneKey(benchmark::State &state)
{
    const Store store;
    int number = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            store.files.store.write({ u"Miscellaneous"_s, u"UndoMax"_s, QString::number(++number) })
                .has_value());
    }
}
BENCHMARK(writeOneKey)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
