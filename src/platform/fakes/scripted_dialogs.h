// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <variant>

namespace zeph {

/// Dialogs for tests: records what was told and gives prepared answers. A box that nobody prepared,
/// or an answer that is not on offer, is recorded as unexpected and answered with the safest
/// button.
class ScriptedDialogs : public Dialogs
{
public:
    /// Prepares the answer to the next box with that title.
    void answer(const QString &title, BoxButton button);
    /// Prepares the next file, folder, colour, font or list dialog; no value is Cancel.
    void answerFile(std::optional<QString> path);
    void answerFolder(std::optional<QString> path);
    void answerColour(std::optional<ColorRef> colour);
    void answerFont(std::optional<CharFormat> font);
    void answerList(std::optional<qsizetype> index);

    /// The state in which every tick of a box is left.
    bool tick = false;

    const QList<Box> &boxes() const { return m_boxes; }
    const QList<FileRequest> &files() const { return m_files; }
    /// Where folder dialogs started, and their titles.
    const QStringList &folders() const { return m_folders; }
    const QStringList &folderTitles() const { return m_folderTitles; }
    /// What was shown without being prepared, or prepared and not shown: empty in a good test.
    QStringList unexpected() const;

    BoxButton box(const Box &box) override;
    std::optional<QString> openFile(const FileRequest &request) override;
    std::optional<QString> saveFile(const FileRequest &request) override;
    std::optional<QString> chooseFolder(const QString &title, const QString &start) override;
    std::optional<ColorRef> chooseColour(ColorRef start) override;
    std::optional<CharFormat> chooseFont(const CharFormat &start) override;
    std::optional<qsizetype> chooseFromList(const QString &title,
                                            const QStringList &lines) override;

private:
    struct PreparedBox {
        QString title;
        BoxButton button;
    };

    template <class T>
    std::optional<T> next(std::deque<std::optional<T>> &prepared, const QString &what);

    QList<Box> m_boxes;
    QList<FileRequest> m_files;
    QStringList m_folders;
    QStringList m_folderTitles;
    QStringList m_unexpected;
    std::deque<PreparedBox> m_preparedBoxes;
    std::deque<std::optional<QString>> m_preparedFiles;
    std::deque<std::optional<QString>> m_preparedFolders;
    std::deque<std::optional<ColorRef>> m_preparedColours;
    std::deque<std::optional<CharFormat>> m_preparedFonts;
    std::deque<std::optional<qsizetype>> m_preparedLists;
};

} // namespace zeph
