// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/file_new.h"

#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"

#include <QAction>
#include <QMenu>

namespace zeph {

FileNew::FileNew(const Context &context, EditorView &view, MenuActions &actions,
                 FileOpening &opening)
    : m_context(context), m_view(view), m_opening(opening)
{
    connectMenus(actions);
}

void FileNew::connectMenus(MenuActions &on)
{
    on.connectTo(u"mnuFileNewJoystick", [this] { mnuFileNewJoystick_Click(); });
    on.connectTo(u"mnuFileNewMacro", [this] { mnuFileNewMacro_Click(); });
    on.connectTo(u"mnuFileNewBoth", [this] { mnuFileNewBoth_Click(); });
    on.connectTo(u"mnuFileClose", [this] { mnuFileClose_Click(); });
    on.connectTo(u"mnuFileCloseBoth", [this] { mnuFileCloseBoth_Click(); });
    QObject::connect(on.menu(u"mnuFile"), &QMenu::aboutToShow, &on, [this, &on] {
        rewriteUntitled();
        on.action(u"mnuFileClose")
            ->setText(u"C&lose "_s + captionOf(m_view.documents().selected().caption()));
    });
}

bool FileNew::freshen(DocumentKind kind)
{
    if (!m_opening.mayReplace(
            kind, u" has changed and isn't saved. Do you want to save it first?"_s, kind)) {
        return false;
    }
    Document &document = m_view.documents().of(kind);
    document.setText(QString());
    m_view.applyLook();
    m_view.documents().renameFresh(kind);
    document.tellReplaced(Document::How::Fresh);
    m_view.documents().select(kind);
    m_context.status.setLine(1);
    return true;
}

void FileNew::mnuFileNewJoystick_Click()
{
    if (freshen(DocumentKind::Joystick)) {
        m_context.status.setText(u"New joystick file created"_s);
    }
}

void FileNew::mnuFileNewMacro_Click()
{
    if (freshen(DocumentKind::Macro)) {
        m_context.status.setText(u"New macro file created"_s);
    }
}

void FileNew::mnuFileNewBoth_Click()
{
    if (m_view.documents().refuseSent(DocumentKind::Joystick)) {
        return;
    }
    mnuFileNewJoystick_Click();
    mnuFileNewMacro_Click();
    m_context.status.setText(u"Done .... now what?"_s);
}

void FileNew::mnuFileClose_Click()
{
    if (m_view.documents().selected().kind() == DocumentKind::Joystick) {
        mnuFileNewJoystick_Click();
    } else {
        mnuFileNewMacro_Click();
    }
}

void FileNew::mnuFileCloseBoth_Click()
{
    mnuFileNewBoth_Click();
}

void FileNew::rewriteUntitled()
{
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        if (isUntitled(m_view.documents().of(kind).name())) {
            m_view.documents().renameFresh(kind);
        }
    }
    m_view.UpdateSavedIcon();
}

void FileNew::HardwareHasChanged()
{
    rewriteUntitled();
    m_view.updateCaptions();
}

namespace {

bool askFor(Document &document, EditorView &view, FileSaving &saving, Dialogs &dialogs)
{
    if (!document.isModified()) {
        return true;
    }
    const QString why = u" has changed and isn't saved. Do you want to save it before exiting?"_s;
    switch (dialogs.box(saveQuestion(document, why))) {
    case BoxButton::Yes:
        view.documents().select(document.kind());
        saving.mnuFileSave_Click();
        if (document.isModified()) {
            dialogs.tell(u"Ooops!"_s, document.name() + u" wasn't saved. Exit program aborted."_s,
                         BoxIcon::Exclamation);
            return false;
        }
        return true;
    case BoxButton::No:
        return true;
    default:
        return false;
    }
}

} // namespace

bool askBeforeExit(EditorView &view, FileSaving &saving, Dialogs &dialogs)
{
    return askFor(view.documents().macro(), view, saving, dialogs)
        && askFor(view.documents().joystick(), view, saving, dialogs);
}

} // namespace zeph
