// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

namespace zeph {

/// What all of a selection has in common; no value where it is mixed.
struct CommonLook {
    std::optional<QString> family;
    std::optional<double> pointSize;
    std::optional<ColorRef> colour;
    bool bold = false; ///< these hold only where all of it has them
    bool italic = false;
    bool underline = false;
    bool bullets = false;
    std::optional<ParagraphAlignment> alignment;

    friend bool operator==(const CommonLook &, const CommonLook &) = default;
};

/// Of a text that is not empty.
CommonLook commonLook(const RichText &selection);
/// Of a place without characters: what is typed next.
CommonLook commonLook(const CharFormat &format, const ParagraphFormat &paragraph);

} // namespace zeph
