// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Coloured text as mark-up for forums (UBB) and web pages (HTML).

#include "platform/core/rich_text.h"

namespace zeph {

/// In the order of the CodeType options.
enum class CodeType { UBB, HTML };

struct MarkupOptions {
    CodeType type = CodeType::UBB;
    bool codeTags = false; ///< CheckCodeTag: [CODE] around all of it; UBB alone has these tags
    bool escape = false; ///< CheckEscape: "<", ">" and "&" as entities
};

/// The text with a tag for each stretch of one colour. Blanks and line ends have no colour of their
/// own and end no stretch. Line ends are '\n' in the result too. The text is a normal value; its
/// characters without a colour have the plain one.
QString markup(const RichText &text, const MarkupOptions &options, ColorRef plain = 0);

} // namespace zeph
