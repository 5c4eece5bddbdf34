// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Any bytes as a picture's file: whole only when they are of a kind, and the same bytes with more
// after them stay so.

#include "platform/core/picture_bytes.h"

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
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QSize claimed = claimedSize(bytes);
    require(claimed.width() >= 0 || !claimed.isValid());
    if (isWholePicture(bytes)) {
        require(pictureKind(bytes) != PictureKind::None);
        require(isWholePicture(bytes + "more"));
    }
    return 0;
}
