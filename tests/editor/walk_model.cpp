// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/editor/walk_model.h"

#include "platform/core/paths.h"
#include "platform/core/text1252.h"
#include "text/macro_search.h"
#include "text/text_lines.h"
#include "text/use_statements.h"

#include <QDir>

namespace zeph::test {

QString WalkModel::File::name() const
{
    return nameOf(path);
}

WalkModel::WalkModel(WalkPilot &pilot, WalkDocument joystick, WalkDocument macro)
    : m_pilot(pilot), m_joystick(std::move(joystick)), m_macro(std::move(macro))
{
}

bool WalkModel::mayReplace(DocumentKind kind)
{
    File &file = of(kind);
    if (file.document.state() != 1) {
        return true;
    }
    switch (m_pilot.answer(u" Save "_s + file.name() + u" now?"_s,
                           { BoxButton::Yes, BoxButton::No, BoxButton::Cancel })) {
    case BoxButton::Yes:
        select(kind);
        save();
        if (file.document.state() == 1) {
            m_pilot.answer(u"Hmmm...let me think..."_s, { BoxButton::Ok });
            return false;
        }
        return true;
    case BoxButton::No:
        return true;
    default:
        return false;
    }
}

void WalkModel::fresh(DocumentKind kind)
{
    if (!mayReplace(kind)) {
        return;
    }
    File &file = of(kind);
    file.path = settings.folder + freshName(kind);
    file.document.become({}, -1);
    know(file, {});
    select(kind);
}

void WalkModel::freshBoth()
{
    fresh(DocumentKind::Joystick);
    fresh(DocumentKind::Macro);
}

void WalkModel::openOne(DocumentKind kind, std::optional<QString> path)
{
    if (!mayReplace(kind)) {
        return;
    }
    select(kind);
    if (!path) {
        path = m_pilot.fileFor(kind);
    }
    if (path) {
        load(kind, *path);
    }
}

void WalkModel::openPair()
{
    if (!mayReplace(DocumentKind::Joystick) || !mayReplace(DocumentKind::Macro)) {
        return;
    }
    const auto path = m_pilot.fileFor({});
    if (!path) {
        return;
    }
    if (kindOfName(*path) == DocumentKind::Macro) {
        const QString partner = baseWithDot(*path) + joystickExtensionFor(*path);
        if (load(DocumentKind::Macro, *path) && files.contains(partner)) {
            load(DocumentKind::Joystick, partner);
        }
        return;
    }
    if (!load(DocumentKind::Joystick, *path)) {
        return;
    }
    const QString partner = macroPathFor(m_joystick);
    if (files.contains(partner)) {
        load(DocumentKind::Macro, partner);
    }
    select(DocumentKind::Joystick);
}

QString WalkModel::macroPathFor(const File &joystick)
{
    if (const auto reference = lastMdefReference(joystick.document.text())) {
        // Files name each other in any case; "/B" is a name in the folder, too.
        const QString named = nativeSeparators(
            QDir::cleanPath(settings.folder + macroNameFor(*reference, joystick.name())));
        const QStringList paths = files.keys();
        const auto found = std::ranges::find_if(paths, [&named](const QString &path) {
            return path.compare(named, Qt::CaseInsensitive) == 0;
        });
        if (found != paths.end()) {
            return *found;
        }
    }
    return baseWithDot(joystick.path) + macroExtensionFor(joystick.path);
}

bool WalkModel::load(DocumentKind kind, const QString &path)
{
    if (!files.contains(path)) {
        m_pilot.answer(u"I couldn't open that file buddy"_s, { BoxButton::Ok });
        return false;
    }
    File &file = of(kind);
    const QByteArray bytes = files[path];
    const QString text = documentText(bytes).value();
    file.path = path;
    const WalkText copy = m_copies.value(file.name());
    if (copy.text == text) {
        WalkText coloured = copy;
        for (WalkLook &look : coloured.looks) {
            // The copy does not say who gave a colour.
            look.isColourByHand = false;
        }
        file.document.become(coloured, 0);
    } else {
        file.document.become(WalkText::of(text, file.document.plainLook()), 0);
        colour(kind);
        file.document.become(file.document.now(), 0);
    }
    know(file, bytes);
    select(kind);
    return true;
}

void WalkModel::loadAgain(File &file)
{
    const DocumentKind before = m_selected;
    load(file.document.kind(), file.path);
    select(before);
}

void WalkModel::colour(DocumentKind kind)
{
    File &file = of(kind);
    WalkDocument &document = file.document;
    if (document.text().isEmpty()) {
        return;
    }
    select(kind);
    document.paintWhole();
    document.put(document.selStart(), document.selStart());
    document.store();
    m_copies[file.name()] = document.now();
    document.looksWritten();
}

void WalkModel::save()
{
    File &file = selected();
    if (isUntitled(file.name())) {
        saveAs();
    } else if (!saveText(file) && !files.contains(file.path)) {
        // What could not be saved has no file any more.
        file.document.setState(1);
    }
}

void WalkModel::saveAs()
{
    File &file = selected();
    const auto path = m_pilot.fileFor(file.document.kind());
    if (!path) {
        return;
    }
    if (files.contains(*path)
        && m_pilot.answer(u"OK to overwrite exisiting file?"_s, { BoxButton::Yes, BoxButton::No })
            != BoxButton::Yes) {
        return;
    }
    const QString before = file.path;
    file.path = *path;
    if (!saveText(file)) {
        file.path = before;
    }
}

void WalkModel::saveBoth()
{
    const DocumentKind before = m_selected;
    select(DocumentKind::Joystick);
    save();
    select(DocumentKind::Macro);
    save();
    select(before);
}

/// A character that no file can hold is told, and selected after the user's own save.
bool WalkModel::tellStranger(File &file, bool shows)
{
    const auto at = int(firstNot1252(file.document.text()));
    if (at < 0) {
        return false;
    }
    m_pilot.answer(u"There's a letter in there that I can't write"_s, { BoxButton::Ok });
    if (shows) {
        select(file.document.kind());
        file.document.put(at, at + 1);
    }
    return true;
}

bool WalkModel::saveText(File &file)
{
    if (tellStranger(file, true) || (hasChanged(file) && !keepsOurs(file))) {
        return false;
    }
    if (settings.updateModified) {
        file.document.stamp(settings.now);
    }
    write(file, true);
    return true;
}

void WalkModel::write(File &file, bool isAsked)
{
    WalkDocument &document = file.document;
    const QByteArray bytes = documentBytes(document.text());
    files[file.path] = bytes;
    m_copies[file.name()] = document.now();
    document.setState(0);
    know(file, bytes);
    if (!isAsked) {
        return;
    }
    if (settings.undoClearOnSave) {
        document.clearUndos();
    }
    if (document.kind() == DocumentKind::Macro) {
        updateMacros();
    }
}

void WalkModel::updateMacros()
{
    if (!m_macro.document.text().contains(u'=')) {
        return;
    }
    select(DocumentKind::Macro);
    if (m_macro.document.state() != 1) {
        return;
    }
    if (m_pilot.answer(u" Save "_s + m_macro.name() + u" now?"_s, { BoxButton::Yes, BoxButton::No })
        == BoxButton::Yes) {
        save();
    }
    if (m_macro.document.state() == 1) {
        m_pilot.answer(u"File not saved"_s, { BoxButton::Ok });
    }
}

void WalkModel::autosave()
{
    for (File *file : { &m_joystick, &m_macro }) {
        if (file->document.state() == 1 && !hasChanged(*file) && !tellStranger(*file, false)) {
            write(*file, false);
        }
    }
}

bool WalkModel::hasChanged(const File &file) const
{
    return file.known && file.knownPath == file.path && !isUntitled(file.name())
        && files.contains(file.path) && files[file.path] != *file.known;
}

void WalkModel::know(File &file, std::optional<QByteArray> bytes)
{
    file.known = std::move(bytes);
    file.knownPath = file.path;
    file.asked.reset();
}

void WalkModel::check()
{
    for (File *file : { &m_joystick, &m_macro }) {
        if (hasChanged(*file) && file->asked != files[file->path]) {
            keepsOurs(*file);
        }
    }
}

/// The question about a file that another program has changed. True when the user keeps the text of
/// the Editor.
bool WalkModel::keepsOurs(File &file)
{
    const QByteArray theirs = files[file.path];
    file.asked = theirs;
    switch (
        m_pilot.answer(file.name() + u" has changed on the disk"_s,
                       { BoxButton::Yes, BoxButton::No, BoxButton::Other, BoxButton::Cancel })) {
    case BoxButton::Yes:
        loadAgain(file);
        return false;
    case BoxButton::No: {
        const bool isTheSame = documentText(theirs) == file.document.text();
        file.document.setState(isTheSame ? 0 : 1);
        file.known = theirs;
        return true;
    }
    case BoxButton::Other:
        m_pilot.closeBothTexts();
        return keepsOurs(file);
    default:
        return false;
    }
}

void WalkModel::rename(const QString &oldName, const QString &newName)
{
    for (File *file : { &m_joystick, &m_macro }) {
        WalkDocument &document = file->document;
        if (document.text().isEmpty()) {
            continue;
        }
        const QList<qsizetype> hits = renameHits(document.text(), oldName);
        if (hits.isEmpty()) {
            m_pilot.answer(u"Text not found"_s, { BoxButton::Ok });
            continue;
        }
        document.begin();
        document.replaceAll({ hits.begin(), hits.end() }, oldName.size(), newName);
        document.commit();
    }
    m_pilot.answer(u"Replaced 'em all for you. Now buy me a drink"_s, { BoxButton::Ok });
}

} // namespace zeph::test
