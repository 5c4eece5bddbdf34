// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace zeph {

class Documents;
class MenuActions;
class UseDirectives;
struct EditorSettings;

/// Keeps the Editor's own conditions of menu entries (EditorWhen) up to date.
class EntryConditions : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        Documents &documents;
        MenuActions &actions;
        UseDirectives &useDirectives;
    };
    EntryConditions(const Parts &parts, const EditorSettings &settings);

    /// Works out the conditions that depend on the selected document, the clipboard and the
    /// settings. A change of the settings is the only one that has to be told by this call.
    void update();

private:
    Parts m_parts;
    const EditorSettings &m_settings;
};

} // namespace zeph
