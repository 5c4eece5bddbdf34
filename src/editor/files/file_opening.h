// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"

#include <QObject>

namespace zeph {

class ColouredCopies;
class EditorView;
class FileSaving;
class Highlighting;
class MenuActions;

/// Opens files: from the dialog, from the lists and at the start. Where a path is given, no dialog
/// is shown.
class FileOpening : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        ColouredCopies &copies;
        Highlighting &highlighting;
        FileSaving &saving;
    };
    FileOpening(const Context &context, const Parts &parts);

    void mnuFileJoystickLoad_Click(const std::optional<QString> &fileToOpen = {});
    void MnuFileMacroLoad_Click(const std::optional<QString> &fileToOpen = {});
    /// Opens a joystick file and the macro file that belongs to it, or the other way round.
    void mnuFileOpen_Click(const std::optional<QString> &fileToOpen = {});

    /// Opens a file of the recent lists or the command line, without its partner if the user wants
    /// single files.
    void OpenPreviouslySavedFiles(const QString &fileToOpen);
    /// Opens that one file, into the document that its extension belongs to.
    void OpenFavouriteFile(const QString &fileToOpen);
    /// Opens each of the files of the last run that still exists. True when any was opened.
    bool OpenRestoredStatus(const QString &joystickFile, const QString &macroFile);

    /// Shows a recovered text as the text of the file at this path, in the state modified.
    void showRecovered(DocumentKind kind, const QString &path, const QString &text);

    /// Loads a document's file again in place of its text. A failure is told.
    void loadAgain(DocumentKind kind);
    /// Offers to reload each document whose file is among these just overwritten ones. A document
    /// that is not reloaded counts as modified.
    void offerToReload(const QStringList &overwritten);

    /// While one lives, Zeph itself overwrites files that may be open, and offerToReload() follows.
    class Overwriting
    {
    public:
        explicit Overwriting(FileOpening &opening) : m_opening(opening)
        {
            ++m_opening.m_overwriting;
        }
        ~Overwriting() { --m_opening.m_overwriting; }
        Overwriting(const Overwriting &) = delete;
        Overwriting &operator=(const Overwriting &) = delete;

    private:
        FileOpening &m_opening;
    };
    bool isOverwriting() const { return m_overwriting > 0; }

    /// Whether a file from a list is opened without its partner.
    bool OpenSingleFileOnly = false;

    /// Asks about unsaved changes before a document is replaced, and saves on Yes. `why` ends the
    /// question; `wanted` is the kind of file that would be opened, for the box after a failed
    /// save. False: the document must not be replaced.
    bool mayReplace(DocumentKind kind, const QString &why, DocumentKind wanted);

Q_SIGNALS:
    /// A joystick file and its macro file have been opened together.
    void pairLoaded();
    /// The user keeps a document's text although its file holds another one.
    void keptInSpiteOfDisk(DocumentKind kind);

private:
    void connectMenus();
    bool load(DocumentKind kind, const QString &path);
    /// As load(); a failure is also shown on the status line.
    bool loadOrTell(DocumentKind kind, const QString &path);
    void show(Document &document, const QString &path, const QString &text);
    std::optional<QString> ask(const QString &title, const QString &filter, DocumentKind kind);
    void openJoystickOf(const QString &macroPath);
    void openMacroOf(const QString &joystickPath);
    QString macroPathFor(const QString &joystickPath);
    void restoreKeyboard();

    Context m_context;
    Parts m_parts;
    QString m_keyboardLayout;
    int m_overwriting = 0;
};

} // namespace zeph
