// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QObject>

class QWidget;

namespace zeph {

class Keyboard;
struct DocumentSettings;

/// Keeps the keyboard layout of one window: some text controls change it by themselves on the way,
/// and with ForeignLanguageKBInputFix on the layout that the window came up with is put back when a
/// text box of it gets the focus.
class ForeignKeyBSupport : public QObject
{
    Q_OBJECT
public:
    /// Watches the text boxes that the window holds now. The window owns this object.
    ForeignKeyBSupport(Keyboard &keyboard, const DocumentSettings &settings, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Keyboard &m_keyboard;
    const DocumentSettings &m_settings;
    QString m_layout;
};

} // namespace zeph
