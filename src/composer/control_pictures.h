// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"

#include <QStringList>

class QComboBox;
class QMenu;

namespace zeph {

class ControlsPicture;

/// The object names of the menus that the pictures open.
struct ControlMenuNames {
    QStringView hatMenu;
    QStringView hatDirections; ///< entry i is NAME_i
    QStringView hatCorners;
    QStringView triggerMenu;
    QStringView triggerStages;
};

/// The pictures of stick and throttle in a window, and what a click on one of their controls does:
/// it opens a menu where there is a choice, and writes the control's statement into the joystick
/// file or goes to the one that is there.
class ControlPictures : public QObject
{
    Q_OBJECT
public:
    struct Widgets {
        ControlsPicture *stick;
        ControlsPicture *throttle;
        QComboBox *handles;
    };

    /// While alwaysInsert is true, no click looks for a statement that is there. The window owns
    /// this object; all else must outlive it.
    ControlPictures(const ComposerParts &parts, const Widgets &widgets, const bool &alwaysInsert,
                    const ControlMenuNames &names, QWidget *window);

    /// Lists the handles and shows the one in use.
    void GetHandles();
    /// Shows the handle in use if another window has chosen one meanwhile.
    void followHandle();
    /// The one control of the hot spot that is pointed at and has no statement yet; else empty.
    const QString &pointed() const { return m_pointed; }

Q_SIGNALS:
    /// The pointer or the focus has moved to another hot spot, which has these statements; empty
    /// when it is on none.
    void told(const QString &text);

private:
    void makeMenus(const ControlMenuNames &names, QWidget *window);
    /// Shows the handle of that name. An error says why it is not shown.
    Expected<void, QString> showHandle(const QString &name);
    void ChangeHandle();
    void clicked(const ControlsPicture &picture, const QString &id);
    void tell(ControlsPicture &picture, const QString &id);
    void insertControl(const QString &control);
    bool goToStatement(const QString &statement);

    ComposerParts m_parts;
    Widgets m_widgets;
    const bool &m_alwaysInsert;
    QMenu *m_hatMenu = nullptr;
    QMenu *m_triggerMenu = nullptr;
    bool m_triggerHasStages = true;
    /// The hot spot that was told last.
    struct {
        ControlsPicture *picture = nullptr;
        QString id;
    } m_told;
    QString m_pointed;
};

} // namespace zeph
