// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/context.h"
#include "shell/custom_apps.h"

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
    void save();

private:
    void mnuCustomApp_Click(int place);
    void show(int place);

    Context m_context;
    Editor &m_editor;
    CustomApps m_apps;
};

} // namespace zeph
