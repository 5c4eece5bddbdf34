// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Any bytes as what a sheet sends to the custom sheet, as a list and as a single place: an error
// with its line, or places that are written and read again as the same bytes.

#include "layouts/files/layout_file.h"

#include <cstdint>
#include <cstdlib>

using namespace zeph;

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void requireError(const LayoutError &error)
{
    require(error.line > 0 && !error.reason.isEmpty() && error.reason.size() < 300);
}

void tryList(QByteArrayView bytes)
{
    const auto places = readTransferList(bytes, u"a"_s);
    if (!places) {
        requireError(places.error());
        return;
    }
    const QByteArray written = writeTransferList(*places);
    const auto again = readTransferList(written, u"a"_s);
    require(again && again->size() == places->size() && writeTransferList(*again) == written);
}

void tryPlace(QByteArrayView bytes)
{
    const auto place = readTransferPlace(bytes, u"a"_s);
    if (!place) {
        requireError(place.error());
        return;
    }
    const QByteArray written = writeTransferPlace(*place);
    const auto again = readTransferPlace(written, u"a"_s);
    require(again && writeTransferPlace(*again) == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    tryList(bytes);
    tryPlace(bytes);
    return 0;
}
