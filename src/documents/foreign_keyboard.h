// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QObject>

class QWidget;

namespace zeph {

class Keyboard;
struct DocumentSettings;

/// Keeps the keyboard layout of one window, since some text controls change it by themselves. While
/// ForeignLanguageKBInputFix is on, a text box of the window that gets the focus brings back the
/// layout that was set when this object was made.
class ForeignKeyBSupport : public QObject
{
    Q_OBJECT
public:
    /// Watches the text boxes that the window has now. The window owns this object.
    ForeignKeyBSupport(Keyboard &keyboard, const DocumentSettings &settings, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Keyboard &m_keyboard;
    const DocumentSettings &m_settings;
    QString m_layout;
};

} // namespace zeph
