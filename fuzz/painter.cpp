// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The painter over any text: its runs cover it, and short ones are as one pass after another paints
// them.

#include "text/painter.h"
#include "platform/core/text1252.h"
#include "tests/text/painter_twin.h"

#include <cstdlib>

using namespace zeph;

namespace {

constexpr ColourScheme scheme = {
    .plain = 1, .btn = 2, .slash = 3, .raw = 4, .miscellaneous = 5, .rem = 6
};
constexpr qsizetype longestForTwin = 400;

std::vector<ColorRef> told(QStringView text, int table)
{
    test::PainterTwin twin(text, scheme);
    switch (table) {
    case 0:
        twin.joystick(false);
        break;
    case 1:
        twin.joystick(true);
        break;
    case 2:
        twin.macro();
        break;
    default:
        twin.remOnly();
    }
    return twin.colours();
}

void check(bool good)
{
    if (!good) {
        abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text =
        fromText1252(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const std::span<const PaintPass> tables[] = { joystickPasses(), typingPasses(), macroPasses(),
                                                  remPasses() };
    for (int i = 0; i < 4; ++i) {
        const auto runs = paint(text, tables[i], scheme);
        qsizetype covered = 0;
        for (size_t run = 0; run < runs.size(); ++run) {
            check(runs[run].length > 0);
            check(run == 0 || runs[run].colour != runs[run - 1].colour);
            covered += runs[run].length;
        }
        check(covered == text.size());
        check(text.size() > longestForTwin || test::perCharacter(runs) == told(text, i));
    }
    return 0;
}
