// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The two toolbars and the shortcut pictures as tables: what each button does and tells.

#include "platform/core/base.h"

#include <span>

namespace zeph {

/// Whether a tooltip ends with the shortcut of the button's menu entry.
enum class ToolButtonKey { KeyTold, KeyUntold };

/// What a button does and tells.
struct ToolButtonLook {
    /// Without the shortcut.
    const char16_t *tooltip = u"";
    /// Longer description for the status bar.
    const char16_t *status = u"";
    /// The menu entry that it runs with the joystick tab selected.
    const char16_t *action = u"";
    /// The one that it runs with the macro tab selected; empty when it is the same.
    const char16_t *macroAction = u"";
    ToolButtonKey key = ToolButtonKey::KeyTold;
};

/// The setting that chooses between a button's two looks.
enum class ToolButtonChoice { None, OpenBoth, SaveBoth, DirectXKeyTester };

struct ToolButtonRow {
    /// 1-based place; the places that no row has are separators.
    int place;
    const char16_t *icon;
    ToolButtonLook look;
    ToolButtonChoice choice = ToolButtonChoice::None;
    /// The look while the choice's setting is off.
    ToolButtonLook other = {};
};

std::span<const ToolButtonRow> toolbar1Table();
std::span<const ToolButtonRow> toolbar2Table();
/// The three shortcut pictures; the places count from 0.
std::span<const ToolButtonRow> shortcutTable();

/// The settings that choose.
struct ToolbarChoices {
    bool openBoth = true;
    bool saveBoth = false;
    bool directXKeyTester = false;
};

const ToolButtonLook &lookOf(const ToolButtonRow &row, const ToolbarChoices &choices);
/// The words of the look and the shortcut of its entry, unless the look is KeyUntold. If that entry
/// has no shortcut, the one of the row's other look is told.
QString tooltipOf(const ToolButtonRow &row, const ToolbarChoices &choices);
QString actionOf(const ToolButtonLook &look, bool macroSelected);

/// What the status bar says over a toolbar's empty part.
QString toolbarGreeting(bool appsToolbar, const QString &callsign);

} // namespace zeph
