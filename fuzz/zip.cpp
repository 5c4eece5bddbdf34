// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Any bytes as a zip: reading ends, and no entry that may become a file leads outside.

#include "platform/core/zip_names.h"
#include "platform/zip/zip_archive.h"

#include <QDir>

#include <cstdint>
#include <cstdlib>

using namespace zeph;

namespace {

constexpr qint64 mostBytes = 4'000'000;
constexpr int mostEntries = 1000;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void checkName(const QString &name)
{
    const auto path = safeEntryName(name);
    if (!path) {
        return;
    }
    require(!path->isEmpty() && !path->contains(u'\\') && !path->contains(u':'));
    require(QDir::cleanPath(u"/target/"_s + *path) == u"/target/"_s + *path);
    require(safeEntryName(*path) == *path);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    checkName(zipNameText(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size))));
    auto zip = ZipReader::openBytes(QByteArrayView(data, qsizetype(size)));
    if (!zip) {
        return 0;
    }
    for (int i = 0; i < mostEntries; ++i) {
        const auto entry = zip->next();
        if (!entry || !*entry) {
            break;
        }
        checkName((*entry)->name);
        (void)zip->read([](qint64 soFar) { return soFar < mostBytes; });
    }
    return 0;
}
