// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A layout sheet as a value: what is drawn, saved, printed and exported.

#include "platform/core/rich_text.h"

#include <vector>

namespace zeph {

enum class SheetKind { Joystick, Throttle, Custom };

/// A text box of a sheet. Places and sizes are pixels of the sheet, whatever the screen's scale.
struct LayoutTextBox {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    bool Visible = true;
    bool Locked = false; ///< the mouse neither moves nor sizes it
    RichText text;

    friend bool operator==(const LayoutTextBox &, const LayoutTextBox &) = default;
};

/// A picture of a sheet, shown at its natural size.
struct SheetPicture {
    float Left = 0;
    float Top = 0;
    bool Visible = true;
    bool Locked = true;
    QString path; ///< as the layout file has it; empty for none

    friend bool operator==(const SheetPicture &, const SheetPicture &) = default;
};

struct Sheet {
    SheetKind kind = SheetKind::Joystick;
    int width = 0; ///< in pixels
    int height = 0;
    std::vector<SheetPicture> pictures; ///< one, or four on the custom sheet
    std::vector<LayoutTextBox> boxes;

    friend bool operator==(const Sheet &, const Sheet &) = default;
};

/// Pixels of the smallest box that the mouse makes.
constexpr int leastBoxWidth = 40;
constexpr int leastBoxHeight = 20;

} // namespace zeph
