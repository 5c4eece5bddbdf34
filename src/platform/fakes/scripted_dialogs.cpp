// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/fakes/scripted_dialogs.h"

#include <QScopeGuard>

#include <algorithm>

namespace zeph {

namespace {

BoxButton safestButton(const Box &box)
{
    for (const BoxButton button : { BoxButton::Cancel, BoxButton::No, BoxButton::Ok }) {
        if (box.buttons.contains(button)) {
            return button;
        }
    }
    return box.buttons.value(0, BoxButton::Cancel);
}

} // namespace

void ScriptedDialogs::answer(const QString &title, BoxButton button)
{
    m_preparedBoxes.push_back({ title, button });
}

void ScriptedDialogs::answerFile(std::optional<QString> path)
{
    m_preparedFiles.push_back(std::move(path));
}

void ScriptedDialogs::answerFolder(std::optional<QString> path)
{
    m_preparedFolders.push_back(std::move(path));
}

void ScriptedDialogs::answerColour(std::optional<ColorRef> colour)
{
    m_preparedColours.push_back(colour);
}

void ScriptedDialogs::answerFont(std::optional<CharFormat> font)
{
    m_preparedFonts.push_back(std::move(font));
}

void ScriptedDialogs::answerList(std::optional<qsizetype> index)
{
    m_preparedLists.push_back(index);
}

QStringList ScriptedDialogs::unexpected() const
{
    QStringList all = m_unexpected;
    for (const PreparedBox &prepared : m_preparedBoxes) {
        all.append(u"never shown: box \"%1\""_s.arg(prepared.title));
    }
    const auto addLeft = [&all](size_t count, const QString &what) {
        if (count > 0) {
            all.append(u"never shown: %1 (%2)"_s.arg(what).arg(count));
        }
    };
    addLeft(m_preparedFiles.size(), u"file dialog"_s);
    addLeft(m_preparedFolders.size(), u"folder dialog"_s);
    addLeft(m_preparedColours.size(), u"colour dialog"_s);
    addLeft(m_preparedFonts.size(), u"font dialog"_s);
    addLeft(m_preparedLists.size(), u"list dialog"_s);
    return all;
}

BoxButton ScriptedDialogs::box(const Box &box)
{
    m_boxes.append(box);
    if (box.ticked) {
        box.ticked(tick);
    }
    if (!box.buttons.contains(box.defaultButton)) {
        m_unexpected.append(
            u"box \"%1\" has a default button that it does not show"_s.arg(box.title));
    }
    const auto prepared = std::ranges::find(m_preparedBoxes, box.title, &PreparedBox::title);
    if (prepared == m_preparedBoxes.end()) {
        m_unexpected.append(u"box \"%1\": %2"_s.arg(box.title, box.text));
        return safestButton(box);
    }
    const BoxButton button = prepared->button;
    m_preparedBoxes.erase(prepared);
    if (!box.buttons.contains(button)) {
        m_unexpected.append(u"box \"%1\" does not offer the prepared answer"_s.arg(box.title));
        return safestButton(box);
    }
    return button;
}

template <class T>
std::optional<T> ScriptedDialogs::next(std::deque<std::optional<T>> &prepared, const QString &what)
{
    if (prepared.empty()) {
        m_unexpected.append(what);
        return std::nullopt;
    }
    const auto taken = qScopeGuard([&prepared] { prepared.pop_front(); });
    return prepared.front();
}

std::optional<QString> ScriptedDialogs::openFile(const FileRequest &request)
{
    m_files.append(request);
    return next(m_preparedFiles, u"open dialog \"%1\""_s.arg(request.title));
}

std::optional<QString> ScriptedDialogs::saveFile(const FileRequest &request)
{
    m_files.append(request);
    return next(m_preparedFiles, u"save dialog \"%1\""_s.arg(request.title));
}

std::optional<QString> ScriptedDialogs::chooseFolder(const QString &title, const QString &start)
{
    m_folders.append(start);
    m_folderTitles.append(title);
    return next(m_preparedFolders, u"folder dialog \"%1\""_s.arg(title));
}

std::optional<ColorRef> ScriptedDialogs::chooseColour(ColorRef)
{
    return next(m_preparedColours, u"colour dialog"_s);
}

std::optional<CharFormat> ScriptedDialogs::chooseFont(const CharFormat &)
{
    return next(m_preparedFonts, u"font dialog"_s);
}

std::optional<qsizetype> ScriptedDialogs::chooseFromList(const QString &title,
                                                         const QStringList &lines)
{
    const auto index = next(m_preparedLists, u"list dialog \"%1\""_s.arg(title));
    if (index && (*index < 0 || *index >= lines.size())) {
        m_unexpected.append(u"list dialog \"%1\" does not offer line %2"_s.arg(title).arg(*index));
        return std::nullopt;
    }
    return index;
}

} // namespace zeph
