// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Any bytes as a layout's positions, the sheet's kind first: an error with its line, or a sheet
// that is written and read again as the same bytes.

#include "layouts/files/layout_file.h"

#include <cstdint>
#include <cstdlib>

using namespace zeph;

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const auto kind = SheetKind(data[0] % 3);
    const QByteArrayView bytes(reinterpret_cast<const char *>(data + 1), qsizetype(size) - 1);
    const auto sheet = readPositions(kind, bytes, u"a"_s);
    if (!sheet) {
        require(sheet.error().line > 0 && sheet.error().line <= 50);
        require(!sheet.error().reason.isEmpty() && sheet.error().reason.size() < 300);
        return 0;
    }
    require(int(sheet->boxes.size()) == sheetKind(kind).boxes);
    const auto written = writePositions(*sheet, u"a"_s);
    require(written.has_value());
    const auto again = readPositions(kind, *written, u"a"_s);
    require(again.has_value() && writePositions(*again, u"a"_s) == *written);
    return 0;
}
