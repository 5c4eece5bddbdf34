// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/changed_files.h"

#include "documents/editor_view.h"
#include "editor/files/both_texts.h"
#include "editor/files/file_opening.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "text/text_lines.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>

namespace zeph {

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
    : m_context(context), m_parts(parts), m_known(parts.view.documents())
{
    connect(&parts.opening, &FileOpening::keptInSpiteOfDisk, this, [this](DocumentKind kind) {
        Document &document = m_parts.view.documents().of(kind);
        if (const auto other = m_known.changeOf(document)) {
            keepOurs(document, *other);
        }
    });
    parts.view.installEventFilter(this);
}

bool ChangedFiles::hasChanged(const Document &document)
{
    return m_known.changeOf(document).has_value();
}

bool ChangedFiles::maySave(Document &document)
{
    const auto other = m_known.changeOf(document);
    if (!other || ask(document, *other)) {
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
        const auto other = isOnItsWay ? std::nullopt : m_known.changeOf(document);
        if (other && !m_known.wasTold(document, *other)) {
            ask(document, *other);
        }
    }
}

bool ChangedFiles::ask(Document &document, const QByteArray &other)
{
    const QScopedValueRollback asks(m_asks, true);
    std::optional<QByteArray> found = other;
    // Without a change the other program has taken its own back meanwhile.
    for (; found; found = m_known.changeOf(document)) {
        m_known.noteTold(document, *found);
        switch (m_context.dialogs.box(changedFileBox(document))) {
        case BoxButton::Yes:
            // What is on its way to the Cougar stays until it is there.
            if (!m_parts.view.documents().refuseSent(document.kind())) {
                m_parts.opening.loadAgain(document.kind());
            }
            return false;
        case BoxButton::No:
            keepOurs(document, *found);
            return true;
        case BoxButton::Other: {
            BothTexts texts(document.name(), document.text(),
                            documentText(*found).value_or(QString::fromLatin1(*found)),
                            m_parts.view.window());
            texts.exec();
            break;
        }
        default:
            return false;
        }
    }
    return true;
}

void ChangedFiles::keepOurs(Document &document, const QByteArray &other)
{
    m_known.accept(document, other);
    if (documentText(other) == document.text()) {
        document.tellWritten(other, Document::Save::Automatic);
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
