// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/start_checks.h"

namespace zeph {

namespace {

constexpr int drawnForDpi = 96;

} // namespace

std::optional<Box> smallFontsWarning(int logicalDpi)
{
    if (logicalDpi == drawnForDpi) {
        return std::nullopt;
    }
    return Box{
        .title = u"WARNING: Small fonts not detected!"_s,
        .text = u"WARNING: I've just had a quick check to see what your Display Font Size is set "
                "to, and I've noticed that your settings are not the default 'Small Fonts' size. "
                "Nothing will break, but some of my windows may look a bit odd. Please see the "
                "help file topic: 'Small Fonts, big problems' under the Miscellaneous heading for "
                "more information."_s,
        .icon = BoxIcon::Exclamation,
    };
}

Box tooManyWindowsBox()
{
    return { .title = u"Exiting now ..."_s,
             .text = u"Sorry, you've got too many windows open. Far too many !!!"_s,
             .icon = BoxIcon::Stop };
}

} // namespace zeph
