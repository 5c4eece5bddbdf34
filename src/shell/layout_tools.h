// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/window/sheet_window.h"

#include <QObject>

namespace zeph {

class Editor;

/// Registers the three layout editors under their menu entries and lets them work together; runs
/// the conversion of the selected text to mark-up.
class LayoutTools : public QObject
{
    Q_OBJECT
public:
    /// What the sheets need of the outside world.
    struct Outside {
        Printers &printers;
        const Screen &screen;
    };

    /// The Editor owns this object.
    LayoutTools(const Context &context, ToolWindows &windows, Editor &editor,
                const Outside &outside);

    void mnuExportToUBB_Click();

Q_SIGNALS:
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

private:
    template <class Window> void add(QStringView entry, const SheetSources &sources);
    void transfer(SheetKind from, bool all);

    Context m_context;
    ToolWindows &m_windows;
    Editor &m_editor;
};

} // namespace zeph
