// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/coloured_copies.h"

#include "documents/document.h"
#include "platform/core/rtf.h"

namespace zeph {

namespace {

/// The look in whose font and weight most characters of a text are: that of plain text in a copy
/// that does not say it.
CharFormat mostUsedLook(const RichText &text)
{
    QHash<CharFormat, qsizetype> counts;
    CharFormat most;
    for (const CharRun &run : text.characters) {
        CharFormat font = run.format;
        font.italic = font.underline = false;
        font.colour.reset();
        counts[font] += run.length;
        most = counts[font] > counts.value(most) ? font : most;
    }
    return most;
}

} // namespace

std::optional<RichText> ColouredCopies::load(const QString &name, const QString &plainText,
                                             const CharFormat &font) const
{
    const QString path = existingPath(pathOf(name));
    if (path.isEmpty()) {
        return std::nullopt;
    }
    const auto bytes = readWholeFile(path);
    if (!bytes) {
        return std::nullopt;
    }
    auto copy = readRtfWithLosses(*bytes);
    if (!copy || copy->text.text != plainText) {
        return std::nullopt;
    }
    const CharFormat plain = copy->plain.value_or(mostUsedLook(copy->text));
    for (CharRun &run : copy->text.characters) {
        if (run.format.family == plain.family && run.format.pointSize == plain.pointSize) {
            run.format.family = font.family;
            run.format.pointSize = font.pointSize;
        }
        if (run.format.bold == plain.bold) {
            run.format.bold = font.bold;
        }
    }
    copy->text.normalise();
    return std::move(copy->text);
}

Expected<void, FileError> ColouredCopies::SaveColouredText(Document &document) const
{
    DocumentStates &states = document.states();
    RtfWriter writer;
    writer.setPlain(document.plain());
    const DocumentState present = states.present();
    for (size_t i = 0; i < states.pieceCount(present); ++i) {
        writer.add(states.piece(present, i));
    }
    auto written = writeFileAtomically(pathOf(document.name()), writer.take());
    if (written) {
        document.tellLooksWritten();
    }
    return written;
}

} // namespace zeph
