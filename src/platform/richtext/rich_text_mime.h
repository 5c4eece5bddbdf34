// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Text on the clipboard and in drag and drop: plain, and as RTF.

#include "platform/core/rich_text.h"

#include <QMimeData>

#include <optional>

class QMimeData;

namespace zeph {

/// A text offered twice: as plain text, and as RTF, which is written only when somebody asks.
class RichTextMime : public QMimeData
{
public:
    explicit RichTextMime(RichText text);

    QStringList formats() const override;
    bool hasFormat(const QString &type) const override;

protected:
    QVariant retrieveData(const QString &type, QMetaType preferred) const override;

private:
    RichText m_text;
};

/// Whether there is text in any form.
bool holdsText(const QMimeData *data);
/// The plain text with '\n' for line ends and without NUL, which no text file may hold.
QString plainTextOf(const QMimeData &data);
/// The rich text; no value when there is none, or none that can be read.
std::optional<RichText> richTextOf(const QMimeData &data);

/// What a document takes of the clipboard: rich text in the document's font, size and weight, with
/// its own colours; plain text in the plain format.
RichText pastedText(const QMimeData &data, const CharFormat &plain);
/// The clipboard's plain text in the plain format.
RichText pastedSimpleText(const QMimeData &data, const CharFormat &plain);

} // namespace zeph
