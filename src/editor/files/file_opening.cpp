// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/file_opening.h"

#include "documents/coloured_copies.h"
#include "documents/document_settings.h"
#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "documents/highlighting.h"
#include "editor/editor_settings.h"
#include "editor/files/file_saving.h"
#include "menus/menu_actions.h"
#include "platform/input/keyboard.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "text/text_lines.h"
#include "text/use_statements.h"

#include <QAction>

#include <algorithm>

namespace zeph {

namespace {

const QString beforeJoystick = u" has changed and isn't saved. Do you want to save it before "
                               "opening a different joystick file?"_s;
const QString beforeMacro = u" has changed and isn't saved. Do you want to save it before opening "
                            "a different macro file?"_s;

bool isAmong(const QStringList &paths, const Document &document)
{
    const QString mine = existingPath(document.path());
    return std::any_of(paths.begin(), paths.end(), [&mine](const QString &path) {
        return nameOf(path).compare(nameOf(mine), Qt::CaseInsensitive) == 0
            && isSameFile(path, mine);
    });
}

const QString joystickNotOpened = u"Joystick file not opened"_s;
const QString macroNotOpened = u"Macro file not opened"_s;

} // namespace

FileOpening::FileOpening(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts), m_keyboardLayout(context.keyboard.layoutName())
{
    connectMenus();
}

void FileOpening::connectMenus()
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuFileOpen", [this] { mnuFileOpen_Click(); });
    on.connectTo(u"mnuFileJoystickLoad", [this] { mnuFileJoystickLoad_Click(); });
    on.connectTo(u"MnuFileMacroLoad", [this] { MnuFileMacroLoad_Click(); });
    on.connectTo(u"mnuJoyPopUpSingleFile", [this] {
        OpenSingleFileOnly = m_parts.actions.action(u"mnuJoyPopUpSingleFile")->isChecked();
        m_context.settings.of<EditorSettings>().OpenSingleFileOnly = OpenSingleFileOnly;
    });
}

void FileOpening::restoreKeyboard()
{
    // Some text controls change the layout by themselves when they load another character set.
    if (m_context.settings.of<DocumentSettings>().ForeignLanguageKBInputFix
        && m_context.keyboard.layoutName() != m_keyboardLayout) {
        m_context.keyboard.loadLayout(m_keyboardLayout);
    }
}

bool FileOpening::mayReplace(DocumentKind kind, const QString &why, DocumentKind wanted)
{
    if (m_parts.view.documents().refuseSent(kind)) {
        return false;
    }
    Document &document = m_parts.view.documents().of(kind);
    if (!document.isModified()) {
        return true;
    }
    switch (m_context.dialogs.box(saveQuestion(document, why))) {
    case BoxButton::Yes:
        m_parts.view.documents().select(kind);
        m_parts.saving.mnuFileSave_Click();
        if (document.isModified()) {
            m_context.dialogs.box(wontContinueBox(document, wanted));
            return false;
        }
        return true;
    case BoxButton::No:
        return true;
    default:
        return false;
    }
}

std::optional<QString> FileOpening::ask(const QString &title, const QString &filter,
                                        DocumentKind kind)
{
    const Document &document = m_parts.view.documents().of(kind);
    const Document &other = m_parts.view.documents().other(document);
    const QString name = document.name() == freshName(kind)
        ? baseWithDot(other.name()) + extensionOf(kind)
        : document.name();
    return m_context.dialogs.openFile(
        { title, filter, extensionOf(kind), m_context.paths.filesFolder(), name });
}

void FileOpening::mnuFileJoystickLoad_Click(const std::optional<QString> &fileToOpen)
{
    if (!mayReplace(DocumentKind::Joystick, beforeJoystick, DocumentKind::Joystick)) {
        return;
    }
    m_parts.view.documents().select(DocumentKind::Joystick);
    const auto path = fileToOpen
        ? fileToOpen
        : ask(u"Select the joystick file to open ..."_s,
              u"Joystick file (*.tmj)|*.tmj|Original TM files (*.f22,*.b50,*.adv) "
              "|*.f22;*.b50;*.adv"_s,
              DocumentKind::Joystick);
    if (path) {
        m_context.status.setText(u"Opening joystick file"_s);
        if (loadOrTell(DocumentKind::Joystick, *path)) {
            m_context.status.setText(u"Finished"_s);
        }
    }
}

void FileOpening::MnuFileMacroLoad_Click(const std::optional<QString> &fileToOpen)
{
    if (!mayReplace(DocumentKind::Macro, beforeMacro, DocumentKind::Macro)) {
        return;
    }
    m_parts.view.documents().select(DocumentKind::Macro);
    const auto path = fileToOpen ? fileToOpen
                                 : ask(u"Select the macro file to open ..."_s,
                                       u"Macro file (*.tmm)|*.tmm|Original TM macro files "
                                       "(*.m22,*.m50,*.mdf) |*.m22;*.m50;*.mdf"_s,
                                       DocumentKind::Macro);
    if (!path) {
        return;
    }
    m_context.status.setText(u"Opening file"_s);
    if (loadOrTell(DocumentKind::Macro, *path)) {
        m_context.status.setText(u"Finished"_s);
    }
}

void FileOpening::mnuFileOpen_Click(const std::optional<QString> &fileToOpen)
{
    // Both refusals name the macro file here.
    if (!mayReplace(DocumentKind::Joystick, beforeJoystick, DocumentKind::Macro)
        || !mayReplace(DocumentKind::Macro, beforeMacro, DocumentKind::Macro)) {
        return;
    }
    m_context.status.setText(u"Opening joystick and its macro file ..."_s);
    const auto path = fileToOpen
        ? fileToOpen
        : m_context.dialogs.openFile(
            { .title = u"Select the joystick file and I'll open it and its macro file"_s,
              .filter = u"Thrustmaster files |*.tmj;*.tmm|Joystick file (*.tmj)|*.tmj|Macro file "
                        "(*.tmm)|*.tmm|Original TM files |*.f22;*.b50;*.adv;*.m22;*.m50;*.mdf"_s,
              .defaultExtension = extensionOf(DocumentKind::Joystick),
              .folder = m_context.paths.filesFolder() });
    if (!path) {
        m_context.status.setText(u"Files not opened"_s);
        return;
    }
    if (isMacroExtension(lastThree(*path))) {
        openJoystickOf(*path);
    } else if (isJoystickExtension(lastThree(*path))) {
        openMacroOf(*path);
    } else {
        m_context.status.setText(u"Files not opened"_s);
    }
}

void FileOpening::openJoystickOf(const QString &macroPath)
{
    if (!loadOrTell(DocumentKind::Macro, macroPath)) {
        return;
    }
    m_context.status.setText(u"Finished opening up macro file and extracting macros from it"_s);
    const QString name = nameOf(macroPath);
    const QString joystickPath =
        existingPath(folderOf(macroPath) + baseWithDot(name) + joystickExtensionFor(name));
    if (!fileExists(joystickPath)) {
        m_context.status.setText(joystickNotOpened);
        return;
    }
    loadOrTell(DocumentKind::Joystick, joystickPath);
}

void FileOpening::openMacroOf(const QString &joystickPath)
{
    EditorView &view = m_parts.view;
    if (!loadOrTell(DocumentKind::Joystick, joystickPath)) {
        return;
    }
    m_context.status.setText(u"Looking for associated macro file"_s);
    const QString macroPath = macroPathFor(joystickPath);
    if (macroPath.isEmpty()) {
        m_context.status.setText(macroNotOpened);
        view.documents().select(DocumentKind::Joystick);
        return;
    }
    if (!loadOrTell(DocumentKind::Macro, macroPath)) {
        view.documents().select(DocumentKind::Joystick);
        return;
    }
    view.documents().select(DocumentKind::Joystick);
    m_context.status.setText(u"Done"_s);
    Q_EMIT pairLoaded();
}

QString FileOpening::macroPathFor(const QString &joystickPath)
{
    const QString folder = folderOf(joystickPath);
    const QString name = nameOf(joystickPath);
    const QString text = m_parts.view.documents().joystick().text();
    if (const auto reference = lastMdefReference(text)) {
        QString named = existingPath(folder + macroNameFor(*reference, name));
        if (fileExists(named)) {
            return named;
        }
    }
    const QString sameName = existingPath(folder + baseWithDot(name) + macroExtensionFor(name));
    return fileExists(sameName) ? sameName : QString();
}

bool FileOpening::loadOrTell(DocumentKind kind, const QString &path)
{
    // Repaints before the long work, so that the dialog is gone and the status shows.
    m_context.status.setTextNow(m_context.status.text());
    const bool done = load(kind, path);
    if (!done) {
        m_context.status.setText(kind == DocumentKind::Joystick ? joystickNotOpened
                                                                : macroNotOpened);
    }
    return done;
}

bool FileOpening::load(DocumentKind kind, const QString &wantedPath)
{
    const QString found = existingPath(wantedPath);
    const QString path = found.isEmpty() ? wantedPath : found;
    const auto bytes = readWholeFile(path);
    if (!bytes) {
        m_context.dialogs.tell(u"I couldn't open that file buddy"_s,
                               bytes.error().path + u" wasn't opened. The system says: "_s
                                   + bytes.error().reason,
                               BoxIcon::Stop);
        return false;
    }
    const auto text = documentText(*bytes);
    if (!text) {
        m_context.dialogs.tell(
            u"That's no text file buddy"_s,
            path + u" wasn't opened, because it holds a NUL byte (at offset "_s
                + QString::number(text.error())
                + u"), and no joystick or macro file ever does. Are you sure it's the right one?"_s,
            BoxIcon::Stop);
        return false;
    }
    Document &document = m_parts.view.documents().of(kind);
    show(document, path, *text);
    document.tellReplaced(Document::How::Loaded, *bytes);
    return true;
}

void FileOpening::showRecovered(DocumentKind kind, const QString &path, const QString &text)
{
    Document &document = m_parts.view.documents().of(kind);
    show(document, path, text);
    document.tellReplaced(Document::How::Recovered);
}

/// Gives the document this path and text and selects it. The colours are those of the coloured
/// copy; without a fitting copy the text is coloured anew.
void FileOpening::show(Document &document, const QString &path, const QString &text)
{
    document.rename(path);
    const CharFormat plain = m_parts.view.documents().plainFormat(document.kind());
    const auto coloured = m_parts.copies.load(document.name(), text, plain);
    restoreKeyboard();
    if (coloured) {
        document.setRichText(*coloured);
    } else {
        document.setText(text);
        m_parts.highlighting.reformat(document);
        m_parts.highlighting.applyColour(document);
    }
    m_parts.view.documents().select(document.kind());
}

void FileOpening::offerToReload(const QStringList &overwritten)
{
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        Document &document = m_parts.view.documents().of(kind);
        if (isUntitled(document.name()) || !isAmong(overwritten, document)) {
            continue;
        }
        if (!m_parts.view.documents().refuseSent(kind)
            && m_context.dialogs.box(reloadBox(document)) == BoxButton::Yes) {
            loadAgain(kind);
        } else {
            document.setState(Document::Modified);
            Q_EMIT keptInSpiteOfDisk(kind);
        }
    }
}

void FileOpening::loadAgain(DocumentKind kind)
{
    Documents &documents = m_parts.view.documents();
    const DocumentKind before = documents.selected().kind();
    if (!loadOrTell(kind, documents.of(kind).path())) {
        documents.of(kind).setState(Document::Modified);
    }
    documents.select(before);
}

void FileOpening::OpenPreviouslySavedFiles(const QString &fileToOpen)
{
    if (!OpenSingleFileOnly) {
        mnuFileOpen_Click(fileToOpen);
    } else if (QStringView(u"tmmm22m50mdf").contains(lastThree(fileToOpen))) {
        MnuFileMacroLoad_Click(fileToOpen);
    } else {
        mnuFileJoystickLoad_Click(fileToOpen);
    }
}

void FileOpening::OpenFavouriteFile(const QString &fileToOpen)
{
    if (kindOfName(fileToOpen) == DocumentKind::Macro) {
        MnuFileMacroLoad_Click(fileToOpen);
    } else {
        mnuFileJoystickLoad_Click(fileToOpen);
    }
}

bool FileOpening::OpenRestoredStatus(const QString &joystickFile, const QString &macroFile)
{
    bool any = false;
    if (!joystickFile.isEmpty() && fileExists(joystickFile)) {
        OpenFavouriteFile(joystickFile);
        any = true;
    }
    if (!macroFile.isEmpty() && fileExists(macroFile)) {
        OpenFavouriteFile(macroFile);
        any = true;
    }
    return any;
}

} // namespace zeph
