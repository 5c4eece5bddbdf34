// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layout_files.h"

#include "layouts/files/layouts_settings.h"
#include "layouts/files/layoutsave.h"
#include "platform/core/most_recent.h"
#include "platform/dialogs.h"

namespace zeph {

LayoutFiles::LayoutFiles(const Context &context, SheetKind kind, QWidget *window)
    : QObject(window), m_context(context), m_kind(kind), m_window(window)
{
    GetPreviousLOFiles();
}

bool LayoutFiles::SavePositions(const Sheet &sheet)
{
    return save(LayoutForm::Positions, sheet);
}

bool LayoutFiles::SaveTextWithPositions(const Sheet &sheet)
{
    return save(LayoutForm::WithText, sheet);
}

bool LayoutFiles::save(LayoutForm form, const Sheet &sheet)
{
    const QString name = askName(form);
    if (name.isEmpty()) {
        return false;
    }
    const QString path = layoutPath(m_kind, form, m_context.paths.layoutsFolder(), name);
    if (!mayReplace(form, path)) {
        return false;
    }
    if (const auto saved = saveLayout(sheet, form, path); !saved) {
        tellNotSaved(m_context.dialogs, saved.error().fileError());
        return false;
    }
    remember(existingPath(path), sheet);
    return true;
}

/// The name that the user enters; empty for none.
QString LayoutFiles::askName(LayoutForm form)
{
    const QStringList names = layoutNames(m_context.paths.layoutsFolder());
    const auto window = form == LayoutForm::Positions
        ? std::make_unique<LayoutSave>(names, m_window)
        : std::make_unique<LayoutSaveText>(names, m_window);
    return window->exec() == QDialog::Accepted ? window->name() : QString();
}

/// Only positions ask: a layout with text takes the place of one of the same name.
bool LayoutFiles::mayReplace(LayoutForm form, const QString &path)
{
    return form == LayoutForm::WithText || !fileExists(path)
        || m_context.dialogs.ask(
            u"A layout with that name already exists."_s,
            u"You already have a layout saved with that name. Do you want me to overwrite it?"_s);
}

std::optional<OpenedLayout> LayoutFiles::OpenTextBoxPositions(const Sheet &open,
                                                              const QString &fromList)
{
    return this->open(LayoutForm::Positions, open, fromList);
}

std::optional<OpenedLayout> LayoutFiles::OpenTextWithPositions(const Sheet &open,
                                                               const QString &fromList)
{
    return this->open(LayoutForm::WithText, open, fromList);
}

std::optional<OpenedLayout> LayoutFiles::open(LayoutForm form, const Sheet &open,
                                              const QString &fromList)
{
    const bool isPlaces = form == LayoutForm::Positions;
    Q_EMIT told(isPlaces ? u"Opening textbox positions file"_s : u"Opening layout file"_s);
    const std::optional<QString> path = fromList.isEmpty()
        ? m_context.dialogs.openFile({ .filter = sheetKind(m_kind).form(form).filter.toString(),
                                       .folder = m_context.paths.layoutsFolder() })
        : fromList;
    if (!path || path->isEmpty()) {
        return std::nullopt;
    }
    const auto layout = loadLayout(m_kind, form, *path);
    if (!layout) {
        m_context.dialogs.tell(u"I couldn't open your layout buddy"_s,
                               layout.error().text()
                                   + u"\n\nYour sheet is as it was before I tried."_s,
                               BoxIcon::Exclamation);
        return std::nullopt;
    }
    OpenedLayout opened{ withPlacesOf(open, *layout), form };
    if (!isPlaces) {
        for (size_t i = 0; i < layout->boxes.size(); ++i) {
            opened.sheet.boxes[i].text = layout->boxes[i].text;
        }
    }
    m_context.settings.of<LayoutsSettings>().isRepositionOff = true;
    const bool isSavedNow = !isPlaces || isSaved(open);
    remember(existingPath(*path), isSavedNow ? std::optional(opened.sheet) : std::nullopt);
    if (isPlaces) {
        Q_EMIT told(u" OK .. ready!"_s);
    }
    return opened;
}

std::optional<OpenedLayout> LayoutFiles::openRecent(int place, const Sheet &open)
{
    // A copy: what is saved meanwhile changes the list.
    const QString path = m_recent.value(place - 1);
    if (!fileExists(path)) {
        m_context.dialogs.tell(
            u"Can't find file"_s,
            u"There's a problem here ... I couldn't find "_s + path
                + u" which probably means you've deleted it or moved it. Sorry!"_s,
            BoxIcon::Exclamation);
        return std::nullopt;
    }
    const QString question =
        u"Before I open this layout, would you like to save the current layout?"_s;
    if (!offerToSave(question, open)) {
        return std::nullopt;
    }
    return this->open(layoutFormOf(m_kind, path).value_or(LayoutForm::WithText), open, path);
}

std::optional<OpenedLayout> LayoutFiles::openAutomatic(const Sheet &open)
{
    const auto &settings = m_context.settings.of<LayoutsSettings>();
    const QString path = settings.*sheetSettings(m_kind).automatic;
    const auto form = layoutFormOf(m_kind, path);
    if (!(settings.*sheetSettings(m_kind).usesAutomatic) || !form || !fileExists(path)) {
        return std::nullopt;
    }
    return this->open(*form, open, path);
}

bool LayoutFiles::mayClose(const Sheet &sheet)
{
    const QString question =
        u"Before I close down the %1 Layout Editor, would you like to save the layout?"_s.arg(
            sheetKind(m_kind).caption);
    return isSaved(sheet) || offerToSave(question, sheet);
}

/// True to go on: saved, or not wanted.
bool LayoutFiles::offerToSave(const QString &question, const Sheet &sheet)
{
    switch (m_context.dialogs.box({ .title = u"Save layout?"_s,
                                    .text = question,
                                    .icon = BoxIcon::Question,
                                    .buttons = { BoxButton::Yes, BoxButton::No, BoxButton::Cancel },
                                    .defaultButton = BoxButton::Yes })) {
    case BoxButton::Yes:
        // The form that keeps all there is.
        return SaveTextWithPositions(sheet);
    case BoxButton::No:
        return true;
    default:
        return false;
    }
}

void LayoutFiles::remember(const QString &path, std::optional<Sheet> saved)
{
    m_path = path;
    m_saved = std::move(saved);
    UpdatePrevLOMenuList();
}

void LayoutFiles::GetPreviousLOFiles()
{
    const ProfileFile store = settingsFilesOf(m_context.paths).layoutsIni;
    for (const ProfileRow &row : readProfileList(store, sheetKind(m_kind).recent)) {
        if (!row.first().isEmpty()) {
            m_recent.append(row.first());
        }
    }
}

void LayoutFiles::UpdatePrevLOMenuList()
{
    putFirst(m_recent, m_path, sheetKind(m_kind).recent.most, std::equal_to<QString>());
    writeRecent();
}

void LayoutFiles::mnuClearLayouts_Click()
{
    m_recent.clear();
    writeRecent();
}

void LayoutFiles::writeRecent()
{
    QList<ProfileRow> rows;
    for (const QString &path : m_recent) {
        rows.append(ProfileRow{ path });
    }
    // A failed write is not told: losing this list does little harm.
    (void)writeProfileList(settingsFilesOf(m_context.paths).layoutsIni, sheetKind(m_kind).recent,
                           rows);
    Q_EMIT recentChanged();
}

} // namespace zeph
