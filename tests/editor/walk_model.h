// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The Editor's two documents and the files on the disk as the rules say they have to be.

#include "platform/dialogs.h"
#include "tests/editor/walk_document.h"

#include <QDateTime>
#include <QMap>

namespace zeph::test {

/// Who answers what the model says will be asked.
class WalkPilot
{
public:
    virtual ~WalkPilot() = default;
    /// A box of that title comes.
    virtual BoxButton answer(const QString &title, const QList<BoxButton> &buttons) = 0;
    /// A dialog for a file comes, of one kind or of either; no value is Cancel.
    virtual std::optional<QString> fileFor(std::optional<DocumentKind> kind) = 0;
    /// The window with both texts comes.
    virtual void closeBothTexts() = 0;
};

class WalkModel
{
public:
    struct Settings {
        QString folder; ///< of the files, with its closing separator
        QDateTime now;
        bool undoClearOnSave = false;
        bool updateModified = true;
    };
    WalkModel(WalkPilot &pilot, WalkDocument joystick, WalkDocument macro);

    /// One of the two documents with its file.
    struct File {
        explicit File(WalkDocument text) : document(std::move(text)) { }

        QString name() const;

        WalkDocument document;
        QString path;
        /// The bytes that may be overwritten without a question, and where; none: whatever is
        /// there.
        std::optional<QByteArray> known;
        QString knownPath;
        /// The bytes of another program that the user was asked about.
        std::optional<QByteArray> asked;
    };

    File &of(DocumentKind kind) { return kind == DocumentKind::Joystick ? m_joystick : m_macro; }
    File &selected() { return of(m_selected); }
    WalkDocument &document() { return selected().document; }
    void select(DocumentKind kind) { m_selected = kind; }

    void fresh(DocumentKind kind);
    void freshBoth();
    /// Opens one file in place of a document; without a path the dialog is shown.
    void openOne(DocumentKind kind, std::optional<QString> path = {});
    /// Opens a file with its partner, chosen in the dialog.
    void openPair();
    void save();
    void saveAs();
    void saveBoth();
    void autosave();
    /// The window gets the focus.
    void check();
    void updateMacros();
    /// Colours a whole file; its coloured copy follows.
    void colour(DocumentKind kind);
    /// Gives a macro another name in both texts.
    void rename(const QString &oldName, const QString &newName);

    Settings settings;
    QMap<QString, QByteArray> files; ///< by path

private:
    bool mayReplace(DocumentKind kind);
    bool load(DocumentKind kind, const QString &path);
    void loadAgain(File &file);
    /// False when it is not written.
    bool saveText(File &file);
    void write(File &file, bool isAsked);
    bool tellStranger(File &file, bool shows);
    bool hasChanged(const File &file) const;
    bool keepsOurs(File &file);
    void know(File &file, std::optional<QByteArray> bytes);
    QString macroPathFor(const File &joystick);

    WalkPilot &m_pilot;
    File m_joystick;
    File m_macro;
    DocumentKind m_selected = DocumentKind::Joystick;
    QMap<QString, WalkText> m_copies; ///< the coloured ones, by name
};

} // namespace zeph::test
