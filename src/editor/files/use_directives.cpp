// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/use_directives.h"

#include "documents/editor_view.h"
#include "settings/global_settings.h"

namespace zeph {

UseDirectives::UseDirectives(const Context &context, EditorView &view)
    : m_context(context), m_view(view)
{
}

void UseDirectives::GetUSEstatements()
{
    const QString text = m_view.documents().joystick().text();
    if (!text.isEmpty()) {
        m_statements = readUseStatements(text);
    }
}

void UseDirectives::GetUSEZephstatements()
{
    m_statements = {};
    GetUSEstatements();
    m_imageFilePath = found(m_statements.ZephGraphic);
    m_textFilePath = found(m_statements.ZephReadme);
    // The viewers show these next; a file that names none leaves them what they had.
    if (!m_imageFilePath.isEmpty()) {
        m_context.settings.ImageFilePath = m_imageFilePath;
    }
    if (!m_textFilePath.isEmpty()) {
        m_context.settings.TextFilePath = m_textFilePath;
    }
    m_view.documents().joystick().select(0, 0);
    Q_EMIT filesChanged();
}

void UseDirectives::forgetFiles()
{
    m_statements = {};
    m_imageFilePath.clear();
    m_textFilePath.clear();
    Q_EMIT filesChanged();
}

QString UseDirectives::found(QString &name) const
{
    if (name.isEmpty()) {
        return {};
    }
    QString path = existingPath(folderOf(m_view.documents().joystick().path()) + name);
    if (path.isEmpty() || !fileExists(path)) {
        name.clear();
        return {};
    }
    return path;
}

} // namespace zeph
