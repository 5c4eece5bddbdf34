// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/statement_inserter.h"

#include <QObject>

namespace zeph {

class ComposerTools;
class Editor;
class ToolWindows;

/// The wizards, Speedy and the windows that teach: registers them under their menu entries and lets
/// those that ask for Tumbo have it.
class WizardTools : public QObject
{
    Q_OBJECT
public:
    /// The Editor owns this object.
    WizardTools(const Context &context, ToolWindows &windows, Editor &editor,
                ComposerTools &composer);

Q_SIGNALS:
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

private:
    /// Registers a window under an entry; make(parts, owner) makes it.
    template <class Window, class Make> void add(QStringView entry, Make make);
    template <class Lesson> void addLesson(QStringView entry);
    template <class Window> void feedFromTumbo(Window *window);

    ToolWindows &m_windows;
    Editor &m_editor;
    ComposerTools &m_composer;
    StatementInserter m_inserter;
    ComposerParts m_parts;
};

} // namespace zeph
