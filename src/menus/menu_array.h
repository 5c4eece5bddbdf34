// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>

class QAction;
class QMenu;

namespace zeph {

class Dialogs;

/// The entries NAME_1 … NAME_n of a list of the user's, in a menu before one of its entries (or at
/// its end). An entry stays when the list changes, since the change may come from its own click.
class MenuArray : public QObject
{
    Q_OBJECT
public:
    /// The handler receives the 1-based place.
    using Handler = std::function<void(int)>;
    MenuArray(Dialogs &dialogs, QMenu &menu, QAction *before, const QString &name, Handler handler);

    /// Shows one entry a caption, as the user wrote it; a caption that is empty shows none.
    void setCaptions(const QStringList &captions);

private:
    void grow();

    Dialogs &m_dialogs;
    QMenu &m_menu;
    QAction *m_before;
    QString m_name;
    Handler m_handler;
    QList<QAction *> m_entries;
};

/// A text as a caption that shows it unchanged: an ampersand in it marks no letter.
QString captionOf(QString text);

} // namespace zeph
