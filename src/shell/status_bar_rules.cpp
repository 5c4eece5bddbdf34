// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/status_bar_rules.h"

namespace zeph {

namespace {

constexpr int beerSpotFrom = 6000;
constexpr int beerSpotTo = 6200;
constexpr int leftEnd = 320;

} // namespace

StatusHover statusBarHover(int xTwips, const StatusPanelEdges &edges, bool selectorOn,
                           const QString &callsign)
{
    if (xTwips >= beerSpotFrom && xTwips <= beerSpotTo) {
        return { u"Hey "_s + callsign
                     + u", what say you and I give up on this and go and grab a beer?"_s,
                 false };
    }
    if (xTwips >= edges.panel2 && xTwips < edges.panel3) {
        if (selectorOn) {
            return { {}, true };
        }
        return { u" Cougar mode selector is off. Left click to activate and change buttons mode"_s,
                 false };
    }
    return { u"Hi there "_s + callsign + u", I'm the status bar"_s, false };
}

StatusPress statusBarPress(int xTwips, bool rightButton)
{
    if (xTwips >= leftEnd) {
        return StatusPress::None;
    }
    return rightButton ? StatusPress::Compile : StatusPress::ColourAndSave;
}

} // namespace zeph
