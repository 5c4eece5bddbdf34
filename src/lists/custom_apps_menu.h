// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lists/custom_apps.h"
#include "platform/context.h"

#include <QObject>

namespace zeph {

class Editor;

/// The custom applications on the Apps menu; the toolbar's buttons follow its entries.
class CustomAppsMenu : public QObject
{
    Q_OBJECT
public:
    /// Reads the applications.
    CustomAppsMenu(const Context &context, Editor &editor);

    const CustomApps &apps() const { return m_apps; }
    /// Takes other applications and shows them on the menu and the toolbar, with pictures of their
    /// own; save() keeps them.
    void set(const CustomApps &apps);
    void save();

private:
    void mnuCustomApp_Click(int place);
    void show(int place);

    Context m_context;
    Editor &m_editor;
    CustomApps m_apps;
    /// How an entry looks whose application has no name or no picture.
    std::array<QString, std::tuple_size_v<CustomApps>> m_plainCaptions;
    QIcon m_plainPicture;
};

} // namespace zeph
