// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/file_saving.h"

#include "documents/coloured_copies.h"
#include "documents/editor_view.h"
#include "editor/editor_settings.h"
#include "menus/menu_actions.h"
#include "platform/clock.h"
#include "platform/core/file_io.h"
#include "platform/core/text1252.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "text/insert_blocks.h"
#include "text/text_lines.h"

namespace zeph {

FileSaving::FileSaving(const Context &context, EditorView &view, MenuActions &actions,
                       ColouredCopies &copies)
    : m_context(context), m_view(view), m_copies(copies), m_backups(context)
{
    actions.connectTo(u"mnuFileSave", [this] { mnuFileSave_Click(); });
    actions.connectTo(u"mnuFileSaveAs", [this] { mnuFileSaveAs_Click(); });
    actions.connectTo(u"mnuFileSaveBoth", [this] { mnuFileSaveBoth_Click(); });
}

void FileSaving::mnuFileSave_Click()
{
    Document &document = m_view.documents().selected();
    if (isUntitled(document.name())) {
        mnuFileSaveAs_Click();
        return;
    }
    if (isReadOnlyFile(document.path())) {
        m_context.dialogs.tell(readOnlyTitle.toString(),
                               document.path()
                                   + u" is read only. You'll need to save it elsewhere using the "
                                     "Save As routine. I'll run this for you now."_s,
                               BoxIcon::Exclamation);
        mnuFileSaveAs_Click();
        return;
    }
    if (!SaveText(document)) {
        noticeLoss(document);
    }
}

void FileSaving::mnuFileSaveAs_Click()
{
    Document &document = m_view.documents().selected();
    const auto chosen = m_context.dialogs.saveFile(
        { u"Save file as ..."_s, fileFilter(document.kind()), extensionOf(document.kind()),
          m_context.paths.filesFolder(), proposedName(document) });
    if (!chosen) {
        return;
    }
    // A file whose name differs only in case is overwritten instead of making a second one: the
    // tools that read them cannot tell the two apart.
    const QString existing = existingPath(*chosen);
    const QString path = existing.isEmpty() ? *chosen : existing;
    if (!mayOverwrite(m_context.dialogs, path)) {
        return;
    }
    const QString oldPath = document.path();
    document.rename(path);
    if (!SaveText(document)) {
        // The text still belongs to the file that it came from.
        document.rename(oldPath);
        document.updateState();
        m_view.UpdateSavedIcon();
    }
}

void FileSaving::mnuFileSaveBoth_Click()
{
    const DocumentKind selected = m_view.documents().selected().kind();
    m_view.documents().select(DocumentKind::Joystick);
    mnuFileSave_Click();
    m_view.documents().select(DocumentKind::Macro);
    mnuFileSave_Click();
    m_view.documents().select(selected);
}

QString FileSaving::proposedName(const Document &document)
{
    const Document &other = m_view.documents().other(document);
    if (isUntitled(document.name()) && !isUntitled(other.name())) {
        return baseWithDot(other.name()) + extensionOf(document.kind());
    }
    return document.name();
}

bool FileSaving::SaveText(Document &document)
{
    if (!encodable(document, Stranger::Show) || (m_guard && !m_guard->maySave(document))) {
        return false;
    }
    // What is on its way to the Cougar stays as it is.
    if (m_context.settings.of<EditorSettings>().UpdateModified && !document.isLocked()) {
        ModifyDate(document);
    }
    return write(document, Document::Save::Asked);
}

/// Without its file a text is unsaved, even when it is brought back to what the file held.
void FileSaving::noticeLoss(Document &document)
{
    if (!fileExists(document.path())) {
        document.setState(Document::Modified);
    }
}

bool FileSaving::settleChange(Document &document)
{
    if (m_guard && m_guard->hasChanged(document)) {
        m_guard->maySave(document);
        return !m_guard->hasChanged(document);
    }
    return true;
}

void FileSaving::AutoSaveText(Document &document)
{
    if (isReadOnlyFile(document.path())) {
        tellUnsaved(document, { document.path(), u"the file is read only."_s });
        return;
    }
    if (m_guard && m_guard->hasChanged(document)) {
        m_context.status.setText(document.path()
                                 + u" wasn't saved, because another program has changed it. Your "
                                   "text is safe in the recovery file until you save it."_s);
        return;
    }
    if (encodable(document, Stranger::TellOnly) && keepStrangersFile(document)
        && !write(document, Document::Save::Automatic)) {
        noticeLoss(document);
    }
}

/// Writes the text, its backup and its coloured copy, then tells the document. A failure to write
/// the text is told in a box and gives false, the others are told on the status line.
bool FileSaving::write(Document &document, Document::Save save)
{
    document.tellAboutToBeWritten();
    const QByteArray bytes = documentBytes(document.text());
    if (const auto done = writeFileAtomically(document.path(), bytes); !done) {
        tellUnsaved(document, done.error());
        return false;
    }
    QString status = document.path() + u" saved successfully."_s;
    if (const auto kept = m_backups.SaveJoystickBackup(document); !kept) {
        status += u" Its backup wasn't: "_s + kept.error().reason;
    }
    if (const auto copied = m_copies.SaveColouredText(document); !copied) {
        status += u" Its coloured copy wasn't: "_s + copied.error().reason;
    }
    m_context.status.setText(status);
    m_view.documents().markOverwritten(document);
    document.tellWritten(bytes, save);
    return true;
}

void FileSaving::tellUnsaved(Document &document, const FileError &error)
{
    document.tellNotWritten();
    tellNotSaved(m_context.dialogs, error);
}

/// An unnamed text is saved under its fresh name, where an unnamed text of an earlier run, or of a
/// document closed in this run, may still be. Nobody was asked about overwriting that one, so it is
/// moved to the backups. False, and told, when it cannot be moved.
bool FileSaving::keepStrangersFile(const Document &document)
{
    if (!isUntitled(document.name()) || !fileExists(document.path())) {
        return true;
    }
    const auto bytes = readWholeFile(document.path());
    if (bytes && !document.onDisk().isNull() && document.onDisk() == *bytes) {
        return true;
    }
    const auto aside = bytes
        ? m_backups.keepAside(document.caption(), *bytes, m_context.clock.now())
        : Expected<QString, FileError>(Unexpected<FileError>(bytes.error()));
    if (!aside) {
        m_context.status.setText(document.path()
                                 + u" wasn't saved, because another text stands there: "_s
                                 + aside.error().path + u": "_s + aside.error().reason);
    }
    return aside.has_value();
}

bool FileSaving::encodable(Document &document, Stranger show)
{
    const QString text = document.text();
    const qsizetype stranger = firstNot1252(text);
    if (stranger < 0) {
        return true;
    }
    const qsizetype line = QStringView(text).left(stranger).count(u'\n') + 1;
    // A character above U+FFFF is two units, which are readable only together.
    const qsizetype units = text[stranger].isHighSurrogate() && stranger + 1 < text.size() ? 2 : 1;
    document.tellNotWritten();
    m_context.dialogs.tell(
        u"There's a letter in there that I can't write"_s,
        document.path() + u" wasn't saved: the character \""_s + text.mid(stranger, units)
            + u"\" in line "_s + QString::number(line)
            + u" doesn't exist in the Windows-1252 alphabet, which is all that the Thrustmaster "
              "software reads. "_s
            + (show == Stranger::Show ? u"I've selected it for you, so change it and save again."_s
                                      : u"Please change it."_s),
        BoxIcon::Exclamation);
    if (show == Stranger::Show) {
        m_view.documents().select(document.kind());
        document.select(int(stranger), int(units));
    }
    return false;
}

void FileSaving::ModifyDate(Document &document)
{
    const auto stamp = modifiedStamp(document.text(), m_context.clock.now());
    if (!stamp) {
        return;
    }
    const EditorView::KeptPlace place(m_view, document);
    const int anchor = int(movedByStamp(*stamp, document.cursor().anchor()));
    const int caret = int(movedByStamp(*stamp, document.cursor().position()));
    document.replace(int(stamp->start), int(stamp->length), stamp->text);
    document.setCaret(anchor, caret);
    document.history().storeShown();
}

} // namespace zeph
