// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Any bytes as a handle file: a handle whose parts can be used, or an error in words.

#include "cougar/handle_file.h"
#include "platform/core/text1252.h"

#include <cstdlib>

using namespace zeph;

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto handle = handleFileFrom(
        fromText1252(QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size))));
    if (!handle) {
        require(handle.error().startsWith(u"Line ") && handle.error().endsWith(u'.'));
        return 0;
    }
    require(!handle->picture.isEmpty() && !handle->picture.contains(u'/')
            && !handle->picture.contains(u'\\'));
    require(handle->spots.size() <= 9);
    for (const HotSpot &each : handle->spots) {
        require(each.place.width() >= 0 && each.place.height() >= 0);
        require(!spokenName(each.id).isEmpty());
    }
    return 0;
}
