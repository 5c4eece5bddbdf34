// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace zeph {

/// One tab of Preferences. It shows the settings when it is created. They change when the window
/// closes, except for lists that other windows and menus show at once.
class PreferencesPage : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Writes every field into its setting or list. Called once, when the window closes. Refuses
    /// nothing: a bad value is replaced.
    virtual void collect() = 0;
};

} // namespace zeph
