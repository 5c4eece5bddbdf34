// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/document_text.h"

#include "platform/core/text1252.h"

namespace zeph {

Expected<QString, qsizetype> documentText(const QByteArray &bytes)
{
    const qsizetype nul = bytes.indexOf('\0');
    if (nul >= 0) {
        return Unexpected<qsizetype>(nul);
    }
    QString text = fromText1252(bytes);
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text;
}

QByteArray documentBytes(QStringView text)
{
    QByteArray bytes = toText1252(text);
    bytes.replace("\n", "\r\n");
    return bytes;
}

} // namespace zeph
