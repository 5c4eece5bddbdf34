// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/colour_scheme.h"
#include "platform/core/rich_text.h"

#include <QStringList>

class QTextDocument;

namespace zeph {

/// The examples in a text that was read from HTML: what was in PRE, lines that follow each other as
/// one example with '\n' between them.
QStringList examplesIn(const QTextDocument &document);

/// Gives the examples the colours that typing gives them, on the background of the Editor's texts.
void paintExamples(QTextDocument &document, const ColourScheme &scheme, const CharFormat &plain,
                   ColorRef background);

} // namespace zeph
