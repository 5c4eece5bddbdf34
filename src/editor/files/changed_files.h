// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "editor/files/file_saving.h"
#include "editor/files/known_files.h"
#include "platform/context.h"
#include "platform/dialogs.h"

#include <QObject>

namespace zeph {

class EditorView;
class FileOpening;

/// Asks what becomes of a document whose file another program has changed: when the window gets the
/// focus, and before a save.
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
    /// Asks until there is an answer to what the file holds now. True when the user keeps the text
    /// of the Editor.
    bool ask(Document &document, const QByteArray &other);
    void keepOurs(Document &document, const QByteArray &other);

    Context m_context;
    Parts m_parts;
    KnownFiles m_known;
    bool m_asks = false;
    bool m_willCheck = false;
};

/// The question what becomes of a document whose file another program has changed.
Box changedFileBox(const Document &document);

} // namespace zeph
