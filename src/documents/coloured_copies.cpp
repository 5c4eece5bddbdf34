// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/coloured_copies.h"

#include "documents/document.h"
#include "platform/core/rtf.h"

namespace zeph {

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
    auto copy = readRtf(*bytes);
    if (!copy || copy->text != plainText) {
        return std::nullopt;
    }
    for (CharRun &run : copy->characters) {
        run.format.family = font.family;
        run.format.pointSize = font.pointSize;
        run.format.bold = font.bold;
    }
    copy->normalise();
    return *copy;
}

Expected<void, FileError> ColouredCopies::SaveColouredText(Document &document) const
{
    DocumentStates &states = document.states();
    RtfWriter writer;
    const DocumentState present = states.present();
    for (size_t i = 0; i < states.pieceCount(present); ++i) {
        writer.add(states.piece(present, i));
    }
    return writeFileAtomically(pathOf(document.name()), writer.take());
}

} // namespace zeph
