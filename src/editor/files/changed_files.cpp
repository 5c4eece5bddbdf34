// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/changed_files.h"

#include "documents/editor_view.h"
#include "editor/files/both_texts.h"
#include "editor/files/file_opening.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "text/text_lines.h"

#include <QApplication>
#include <QEvent>
#include <QFileInfo>
#include <QScopedValueRollback>

namespace zeph {

namespace {

/// A file system may tell the same time for two writes that follow each other at once.
constexpr qint64 settledMs = 2000;

} // namespace

Box changedFileBox(const Document &document)
{
    const QString loss = document.isModified()
        ? u" What you've changed since you last saved it would be gone if I loaded it anew."_s
        : QString();
    Box box{ .title = document.name() + u" has changed on the disk"_s,
             .text = u"Another program has changed "_s + document.path()
                 + u" since you opened or saved it here. Shall I load it anew, or keep our text? "
                   "If you keep ours, your next save overwrites the other one."_s
                 + loss,
             .icon = BoxIcon::Question,
             .buttons = { BoxButton::Yes, BoxButton::No, BoxButton::Other, BoxButton::Cancel },
             .defaultButton = BoxButton::Other };
    box.captions = { u"&Load it anew"_s, u"&Keep ours"_s, u"&See both"_s, u"Not now"_s };
    return box;
}

ChangedFiles::ChangedFiles(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts)
{
    parts.view.documents().forEach([this](Document &each) {
        connect(&each, &Document::replaced, this, [this, &each](Document::How how) {
            if (how != Document::How::Undone) {
                know(each);
            }
        });
        connect(&each, &Document::written, this, [this, &each] { know(each); });
    });
    connect(&parts.opening, &FileOpening::keptInSpiteOfDisk, this, [this](DocumentKind kind) {
        Document &document = m_parts.view.documents().of(kind);
        if (hasChanged(document)) {
            keepOurs(document);
        }
    });
    parts.view.installEventFilter(this);
}

void ChangedFiles::know(const Document &document)
{
    File &file = fileOf(document);
    file = File();
    file.path = document.path();
    file.bytes = document.onDisk();
    if (document.isRecovered()) {
        // The user was told of the file when the text was offered.
        file.bytes = readWholeFile(file.path).value_or(QByteArray());
    }
}

bool ChangedFiles::hasChanged(const Document &document)
{
    File &file = fileOf(document);
    const QFileInfo now(document.path());
    // What stands under a fresh name is nobody's choice; an autosave moves it out of the way.
    if (file.bytes.isNull() || file.path != document.path() || isUntitled(document.name())
        || !now.isFile()) {
        return false;
    }
    const QDateTime time = now.lastModified();
    if (file.size == now.size() && file.time == time) {
        return false;
    }
    const auto bytes = readWholeFile(file.path);
    if (!bytes || *bytes == file.bytes) {
        const bool isSettled = time.msecsTo(QDateTime::currentDateTime()) > settledMs;
        if (bytes && isSettled) {
            file.size = now.size();
            file.time = time;
        }
        return false;
    }
    file.found = *bytes;
    return true;
}

bool ChangedFiles::maySave(Document &document)
{
    if (!hasChanged(document) || ask(document)) {
        return true;
    }
    if (document.isModified()) {
        m_context.status.setText(document.name() + u" isn't saved"_s);
    }
    return false;
}

void ChangedFiles::check()
{
    m_willCheck = false;
    // A box or a window that is open here is the user's business first; its end brings the focus
    // back.
    if (m_asks || m_parts.opening.isOverwriting() || QApplication::activeModalWidget()) {
        return;
    }
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        Document &document = m_parts.view.documents().of(kind);
        const bool isOnItsWay = document.isLocked()
            && !(kind == DocumentKind::Macro && m_parts.view.documents().isProtected());
        if (!isOnItsWay && hasChanged(document)
            && fileOf(document).found != fileOf(document).asked) {
            ask(document);
        }
    }
}

bool ChangedFiles::ask(Document &document)
{
    const QScopedValueRollback asks(m_asks, true);
    for (;;) {
        File &file = fileOf(document);
        file.asked = file.found;
        switch (m_context.dialogs.box(changedFileBox(document))) {
        case BoxButton::Yes:
            // What is on its way to the Cougar stays until it is there.
            if (!m_parts.view.documents().refuseSent(document.kind())) {
                m_parts.opening.loadAgain(document.kind());
            }
            return false;
        case BoxButton::No:
            keepOurs(document);
            return true;
        case BoxButton::Other: {
            BothTexts texts(document.name(), document.text(),
                            documentText(file.found).value_or(QString::fromLatin1(file.found)),
                            m_parts.view.window());
            texts.exec();
            break;
        }
        default:
            return false;
        }
        if (!hasChanged(document)) {
            // Meanwhile the other program has taken its change back.
            return true;
        }
    }
}

void ChangedFiles::keepOurs(Document &document)
{
    File &file = fileOf(document);
    file.bytes = file.found;
    const bool isTheSame = documentText(file.found) == document.text();
    if (isTheSame) {
        document.tellWritten(file.found, Document::Save::Automatic);
    } else {
        document.setState(Document::Modified);
    }
}

bool ChangedFiles::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && !std::exchange(m_willCheck, true)) {
        // Not from within the activation: a box there would take the focus away at once.
        QMetaObject::invokeMethod(this, guarded(m_context.dialogs, [this] { check(); }),
                                  Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zeph
