// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "text/use_statements.h"

#include <QObject>

namespace zeph {

class Document;
class Documents;

/// What the current joystick file says to Zeph itself: its picture, its readme, its profile.
class UseDirectives : public QObject
{
    Q_OBJECT
public:
    UseDirectives(const Context &context, Documents &documents);

    /// Reads the directives of the joystick text as it stands; nothing of an empty text.
    void GetUSEstatements();
    /// Reads them and looks for the named files in the joystick file's folder; done after each load
    /// and each save that the user asked for.
    void GetUSEZephstatements();

    const UseStatements &statements() const { return m_statements; }
    /// Full paths; empty when the file names none, or one that does not exist.
    const QString &imageFilePath() const { return m_imageFilePath; }
    const QString &textFilePath() const { return m_textFilePath; }

Q_SIGNALS:
    /// The picture or the readme is another one now, or gone.
    void filesChanged();

private:
    void forgetFiles();
    QString found(QString &name) const;

    Context m_context;
    Document &m_joystick;
    UseStatements m_statements;
    QString m_imageFilePath;
    QString m_textFilePath;
};

} // namespace zeph
