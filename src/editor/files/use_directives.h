// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "text/use_statements.h"

#include <QObject>

namespace zeph {

class Document;
class Documents;

/// What the joystick file's USE lines tell Zeph: picture, readme and profile.
class UseDirectives : public QObject
{
    Q_OBJECT
public:
    UseDirectives(const Context &context, Documents &documents);

    /// Reads the directives of the joystick text as it is now. An empty text changes nothing.
    void GetUSEstatements();
    /// Reads them and finds the named files in the joystick file's folder. Called after each load
    /// and after each save that the user asked for.
    void GetUSEZephstatements();

    const UseStatements &statements() const { return m_statements; }
    /// Full paths; empty when the joystick file names none or the named one does not exist.
    const QString &imageFilePath() const { return m_imageFilePath; }
    const QString &textFilePath() const { return m_textFilePath; }

Q_SIGNALS:
    /// The picture or the readme may have changed or gone.
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
