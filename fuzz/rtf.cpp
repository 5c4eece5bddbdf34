// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Any bytes are read without harm; what could be read is written and read again as the same value.

#include "platform/core/rtf.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView input(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto text = zeph::readRtf(input);
    if (!text) {
        return 0;
    }
    zeph::RichText normal = *text;
    normal.normalise();
    if (normal != *text) {
        std::abort();
    }
    const auto again = zeph::readRtf(zeph::writeRtf(*text));
    if (!again || *again != *text) {
        std::abort();
    }
    return 0;
}
