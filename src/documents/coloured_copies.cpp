// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/coloured_copies.h"

#include "documents/document.h"
#include "platform/core/rtf.h"

namespace zeph {

namespace {

/// The look in whose font and weight most characters of a text are: that of plain text in a copy
/// that does not say it.
CharFormat mostUsedLook(const LookRuns &text)
{
    LookNumbers fonts;
    std::vector<quint32> fontOf; // of each look
    for (CharFormat font : text.looks) {
        font.italic = font.underline = false;
        font.colour.reset();
        fontOf.push_back(fonts.numberOf(font));
    }
    std::vector<qsizetype> counts(text.looks.size());
    for (const LookRun &run : text.runs) {
        counts[fontOf[run.format]] += run.length;
    }
    const auto most = std::ranges::max_element(counts);
    return counts.empty() ? CharFormat() : fonts.look(quint32(most - counts.begin()));
}

} // namespace

std::optional<NumberedRichText> ColouredCopies::load(const QString &name, const QString &plainText,
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
    const CharFormat plain = copy->plain ? *copy->plain : mostUsedLook(copy->text.characters);
    for (CharFormat &look : copy->text.characters.looks) {
        if (look.family == plain.family && look.pointSize == plain.pointSize) {
            look.family = font.family;
            look.pointSize = font.pointSize;
        }
        if (look.bold == plain.bold) {
            look.bold = font.bold;
        }
    }
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
