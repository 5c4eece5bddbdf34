// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/generators.h"
#include "platform/context.h"

#include <QWidget>

namespace zeph {

class ComposerEditor;
class StatementInserter;

/// What a page of the Composer works with. All of it must outlive the page.
struct ComposerParts {
    Context context;
    Documents &documents;
    StatementInserter &inserter;
    ComposerEditor &editor;
};

/// A page of the Composer: a form of its own, whose fields make statements. The frame shows what
/// the page would insert, and fills it from a statement of the file.
class ComposerPage : public QWidget
{
    Q_OBJECT
public:
    ComposerPage(const ComposerParts &parts, QWidget *parent) : QWidget(parent), m_parts(parts) { }

    /// What the Insert button of the tab in front would insert now. No value where that tab has no
    /// such button.
    virtual std::optional<Generated> current() const { return {}; }
    /// Whether that is a piece of a statement, which goes to the caret of the selected document. A
    /// statement goes into the joystick file.
    virtual bool isPiece() const { return false; }
    /// Fills the fields from a statement of the joystick file, given without its comment, and turns
    /// to the tab that makes such statements. False, with the fields as they were, when the page
    /// makes none like it.
    virtual bool read(const QString &statement) = 0;
    /// The page has come to the front: moves the focus to its first control.
    virtual void enter() = 0;
    /// The window has become active: shows what may have changed meanwhile, such as the delay.
    virtual void windowActivated() { }

Q_SIGNALS:
    /// What current() gives has changed.
    void changed();
    /// The place of the help is wanted to which its index leads from this word.
    void helpWanted(const QString &word);
    /// The window with the flags that the joystick file leaves free is wanted.
    void flagsWanted();

protected:
    ComposerParts m_parts;
};

} // namespace zeph
