// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/button_definition.h"

#include "documents/editor_view.h"
#include "language/words.h"
#include "platform/core/text_search.h"

#include <algorithm>

namespace zeph {

namespace {

using language::operator""_w;

/// The words that end a definition, in the order in which they are searched for.
constexpr QStringView keywords = u"BTN RNG ANT MDEF JSX JSY PORTB USE RATE SWAPTG THR RDDR"_w;
constexpr QStringView portHead = u"PortB";
constexpr qsizetype portPrefix = 4;

} // namespace

std::optional<LineRange> buttonDefinition(QStringView text, const QString &head)
{
    const qsizetype start = findText(text, head, 0, SearchWholeWord);
    if (start < 0) {
        return std::nullopt;
    }
    qsizetype end = text.size();
    for (const QStringView keyword : keywords.split(u' ')) {
        const qsizetype next = findText(text, keyword, start + head.size(), SearchWholeWord);
        end = next < 0 ? end : std::min(end, next);
    }
    LineRange range{ start, end - start };
    if (head.startsWith(portHead)) {
        range.start = std::max<qsizetype>(start - portPrefix, 0);
        range.length = std::min(range.length + head.size(), text.size() - range.start);
    }
    return range;
}

bool ExtractButtonDefinition(EditorView &view, const QString &head)
{
    Document &joystick = view.documents().joystick();
    const QString text = joystick.text();
    if (text.isEmpty()) {
        return false;
    }
    view.documents().select(DocumentKind::Joystick);
    const auto range = buttonDefinition(text, head);
    if (!range) {
        return false;
    }
    joystick.select(int(range->start), int(range->length));
    view.ResetFocusToEditor();
    return true;
}

} // namespace zeph
