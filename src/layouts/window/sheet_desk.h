// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/files/layouts_settings.h"
#include "layouts/window/sheet_model.h"
#include "platform/context.h"

#include <functional>
#include <initializer_list>

class QMainWindow;

namespace zeph {

class MenuActions;
class SheetView;

/// Font and colour of characters that have none.
CharFormat plainOf(const LayoutsSettings &settings);

/// What the parts of a sheet's window share. The window owns all of it.
struct SheetDesk {
    Context context;
    SheetKind kind;
    SheetModel &model;
    SheetView &view;
    MenuActions &actions;
    QMainWindow &window;

    /// Tells on the window's status bar and on the main window's.
    void say(const QString &text) const;
    LayoutsSettings &settings() const;
    /// Writes these settings.
    void keep(std::initializer_list<SettingRef> settings) const;
    CharFormat plain() const;

    /// Changes the selected box as one step; nothing without one.
    void changeSelected(const std::function<void(LayoutTextBox &)> &change) const;
    /// Changes all boxes that are shown as one step.
    void changeShown(const std::function<void(LayoutTextBox &)> &change) const;
};

} // namespace zeph
