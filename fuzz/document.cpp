// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What a document's bytes go through when a file is opened and saved.

#include "text/insert_blocks.h"
#include "text/text_lines.h"
#include "text/use_statements.h"

#include <cstdlib>

using namespace zeph;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto text = documentText(bytes);
    if (!text) {
        if (bytes.at(text.error()) != '\0') {
            abort();
        }
        return 0;
    }
    QByteArray expected = bytes;
    expected.replace("\r\n", "\n").replace('\r', '\n').replace("\n", "\r\n");
    if (documentBytes(*text) != expected) {
        abort();
    }
    if (const auto reference = lastMdefReference(*text)) {
        (void)macroNameFor(*reference, u"a.tmj");
    }
    (void)readUseStatements(*text);
    if (const auto stamp = modifiedStamp(*text, QDateTime(QDate(2024, 3, 5), QTime(9, 7)))) {
        if (stamp->start < 0 || stamp->start + stamp->length > text->size()) {
            abort();
        }
    }
    const int lines = int(text->count(u'\n')) + 1;
    if (!lineRange(*text, lines) || lineRange(*text, lines + 1)) {
        abort();
    }
    return 0;
}
