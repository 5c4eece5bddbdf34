// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the mouse over the main window's status bar means. Distances are in twips from the bar's
// left end.

#include "platform/core/base.h"

namespace zeph {

/// What panel 1 shows for the mouse's place.
struct StatusHover {
    /// The text for panel 1; empty where the Cougar's mode is shown instead.
    QString text;
    bool wantsModeTooltip = false;
};

/// Left edges of panels 2 and 3.
struct StatusPanelEdges {
    int panel2 = 0;
    int panel3 = 0;
};

StatusHover statusBarHover(int xTwips, const StatusPanelEdges &edges, bool selectorOn,
                           const QString &callsign);

enum class StatusPress { None, ColourAndSave, Compile };

/// What a press means: the bar's left end colours and saves with the left button, compiles with the
/// right one.
StatusPress statusBarPress(int xTwips, bool rightButton);

} // namespace zeph
