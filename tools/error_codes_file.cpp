// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Writes "Error codes.rtf" while Zeph is built.

#include "language/error_codes.h"
#include "platform/core/file_io.h"
#include "platform/core/rtf.h"

#include <cstdio>

int main(int count, char **arguments)
{
    using namespace zeph;
    if (count != 2) {
        std::fputs("Usage: error_codes_file PATH\n", stderr);
        return 2;
    }
    const auto written = writeFileAtomically(QString::fromLocal8Bit(arguments[1]),
                                             writeRtf(language::errorCodesText()));
    if (!written) {
        std::fputs(qPrintable(written.error().reason + u'\n'), stderr);
        return 1;
    }
    return 0;
}
