// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/use_directives.h"

#include "documents/documents.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"

namespace zeph {

UseDirectives::UseDirectives(const Context &context, Documents &documents)
    : m_context(context), m_joystick(documents.joystick())
{
    connect(&m_joystick, &Document::replaced, this, [this](Document::How how) {
        if (how == Document::How::Fresh) {
            forgetFiles();
        } else if (how != Document::How::Undone) {
            GetUSEZephstatements();
        }
    });
    connect(&m_joystick, &Document::written, this, [this](Document::Save save) {
        if (save == Document::Save::Asked) {
            GetUSEZephstatements();
        }
    });
}

void UseDirectives::GetUSEstatements()
{
    const QString text = m_joystick.text();
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
    // The viewers open these at their next use. A joystick file that names none does not change
    // them.
    if (!m_imageFilePath.isEmpty()) {
        m_context.settings.of<SharedSettings>().ImageFilePath = m_imageFilePath;
    }
    if (!m_textFilePath.isEmpty()) {
        m_context.settings.of<SharedSettings>().TextFilePath = m_textFilePath;
    }
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
    QString path = existingPath(folderOf(m_joystick.path()) + name);
    if (path.isEmpty() || !fileExists(path)) {
        name.clear();
        return {};
    }
    return path;
}

} // namespace zeph
