// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace zeph {

/// One tab of Preferences. It shows the settings when it is made; nothing of them changes while the
/// window is open, but for the lists whose own windows and menus act at once too.
class PreferencesPage : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Takes every field back into the settings or lists that it showed, by the fields' rules. It
    /// is called once, when the window closes, and refuses nothing: a bad value is replaced.
    virtual void collect() = 0;
};

} // namespace zeph
