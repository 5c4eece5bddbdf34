// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

class QMimeData;

namespace zeph {

/// What a document takes of the clipboard: rich text in the document's font, size and weight, with
/// its own colours; plain text in the plain format.
RichText pastedText(const QMimeData &data, const CharFormat &plain);
/// The clipboard's plain text in the plain format.
RichText pastedSimpleText(const QMimeData &data, const CharFormat &plain);

} // namespace zeph
