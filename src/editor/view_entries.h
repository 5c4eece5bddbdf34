// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace zeph {

class EditorView;
class MacroList;
class MenuActions;

/// The entries of the View menu that lead the keyboard from one part of the Editor to another: to
/// either file, to the other one, and to the macro list and back; and those that zoom both files.
class ViewEntries : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        MacroList &list;
    };
    explicit ViewEntries(const Parts &parts);

private:
    void goToMacrosOrBack();
    void showTicks();

    Parts m_parts;
};

} // namespace zeph
