// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "editor/files/file_saving.h"
#include "platform/context.h"
#include "platform/dialogs.h"

#include <QDateTime>
#include <QObject>

#include <array>

namespace zeph {

class EditorView;
class FileOpening;

/// Notices that another program has changed the file of a document: when the window gets the focus,
/// and before a save. What the last load or save left is told by the file's time and size, and
/// where these are others, by its content.
class ChangedFiles : public QObject, public OverwriteGuard
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        FileOpening &opening;
    };
    ChangedFiles(const Context &context, const Parts &parts);

    bool hasChanged(const Document &document) override;
    bool maySave(Document &document) override;
    /// Asks about each document whose file has changed since it was last asked about.
    void check();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What is known of a document's file.
    struct File {
        QString path;
        std::optional<QByteArray> bytes; ///< that may be overwritten; none: whatever it holds
        QByteArray found; ///< what it was found to hold instead
        std::optional<QByteArray> asked; ///< the user has seen the question about these
        qint64 size = -1; ///< with the time: bytes were there then
        QDateTime time;
    };

    void know(const Document &document);
    /// Asks until there is an answer. True when the user keeps the text of the Editor.
    bool ask(Document &document);
    void keepOurs(Document &document);
    File &fileOf(const Document &document) { return m_files[size_t(document.kind())]; }

    Context m_context;
    Parts m_parts;
    std::array<File, 2> m_files;
    bool m_asks = false;
    bool m_willCheck = false;
};

/// The question what becomes of a document whose file another program has changed.
Box changedFileBox(const Document &document);

} // namespace zeph
