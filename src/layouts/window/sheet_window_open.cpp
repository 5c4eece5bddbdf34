// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// How a sheet comes into its window: fresh, from a layout, and with its pictures.

#include "layouts/analysis/box_texts.h"
#include "layouts/arrange/arrange.h"
#include "layouts/window/sheet_actions.h"
#include "layouts/window/sheet_desk.h"
#include "layouts/window/sheet_view.h"
#include "layouts/window/sheet_window.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/settings_files.h"

#include <QAction>
#include <QFileInfo>
#include <QStatusBar>

#include <cmath>

namespace zeph {

namespace {

/// The custom sheet's picture that is the pilot's own.
constexpr size_t ownPicture = 3;
/// So many boxes of a fresh custom sheet are shown, for a start.
constexpr int firstCustomBoxes = 10;
constexpr int customColumns = 5;
constexpr int customMargin = 20;
constexpr int customGap = 10;

/// Files from other programs name pictures of the program's folder with a backslash before them.
QString pictureName(QString path)
{
    path = nativeSeparators(path);
    return fileExists(path) ? path : path.mid(path.startsWith(u'/') || path.startsWith(u'\\'));
}

} // namespace

void SheetWindow::openSheet()
{
    const auto say = [this](const QString &status) {
        m_context.status.setText(status);
        statusBar()->showMessage(status);
    };
    const auto &settings = m_context.settings.of<LayoutsSettings>();
    say(sheetKind(m_kind).loadingStatus.toString());
    m_image =
        controlsImage(m_kind, m_context.paths.appFolder, ProfileFile(m_context.paths.iniPath));
    Sheet sheet = m_kind == SheetKind::Custom ? freshCustomSheet() : freshSheet();
    const auto opened = m_files->openAutomatic(sheet);
    const bool hasTexts = opened && opened->form == LayoutForm::WithText;
    if (opened) {
        sheet = opened->sheet;
    }
    // A fresh sheet is coloured already, and a layout's texts have the colours that it was saved
    // with.
    if (opened && !hasTexts && settings.LayoutApplyColour) {
        sheet = m_texts->coloured(std::move(sheet), settings.HighlightingMethod);
    }
    if (hasTexts) {
        m_texts->followLayout(QFileInfo(m_files->path()).lastModified());
    }
    m_asOpened = sheet;
    m_model.replace(std::move(sheet));
    loadPictures();
    updateConditions();
    say(m_kind == SheetKind::Custom ? u" OK .. ready!"_s : u" All definitions extracted"_s);
}

/// Filled from the joystick file, coloured and arranged.
Sheet SheetWindow::freshSheet()
{
    const auto &settings = m_context.settings.of<LayoutsSettings>();
    const CharFormat plain = plainOf(settings);
    Sheet sheet = emptySheet(m_kind);
    const QStringList cleared = ClearAllTextboxes(m_kind);
    for (size_t i = 0; i < sheet.boxes.size(); ++i) {
        sheet.boxes[i].text = RichText::plain(cleared[qsizetype(i)], plain);
    }
    sheet = m_texts->analysed(sheet).value_or(sheet);
    if (settings.LayoutApplyColour) {
        m_context.status.setText(sheetKind(m_kind).coloursStatus.toString());
        sheet = m_texts->coloured(std::move(sheet), settings.HighlightingMethod);
    }
    std::vector<RichText> texts;
    for (LayoutTextBox &box : sheet.boxes) {
        texts.push_back(std::move(box.text));
    }
    return firstSheet(m_kind, QSize(settings.DefImageX, settings.DefImageY), texts, m_image, plain);
}

/// The stick and the throttle side by side, below two rows of boxes; all other boxes wait, hidden,
/// in rows of their own.
Sheet SheetWindow::freshCustomSheet() const
{
    const auto &settings = m_context.settings.of<LayoutsSettings>();
    const SheetKindRow &row = sheetKind(m_kind);
    Sheet sheet = emptySheet(m_kind);
    sheet.width = settings.DefImageX;
    sheet.height = settings.DefImageY;
    const int rows = (row.boxes + customColumns - 1) / customColumns;
    const int width =
        (sheet.width - 2 * customMargin - (customColumns - 1) * customGap) / customColumns;
    const int height = (sheet.height - 2 * customMargin - (rows - 1) * customGap) / rows;
    for (int i = 0; i < row.boxes; ++i) {
        LayoutTextBox &box = sheet.boxes[size_t(i)];
        box.Left = float(customMargin + i % customColumns * (width + customGap));
        box.Top = float(customMargin + i / customColumns * (height + customGap));
        box.Width = float(std::max(width, leastBoxWidth));
        box.Height = float(std::max(height, leastBoxHeight));
        box.Visible = i < firstCustomBoxes;
    }
    const ControlsImage handle = controlsImage(SheetKind::Joystick, m_context.paths.appFolder,
                                               ProfileFile(m_context.paths.iniPath));
    const int top = customMargin + 2 * (height + customGap);
    for (size_t i = 0; i < sheet.pictures.size(); ++i) {
        SheetPicture &picture = sheet.pictures[i];
        picture.path = i == 0 && !handle.name.isEmpty() ? handle.name : row.pictures[i].toString();
        picture.Left = float(i % 2 == 0 ? customMargin : sheet.width / 2);
        picture.Top = float(top);
        picture.Visible = i < 2;
    }
    return sheet;
}

QStringList SheetWindow::picturePaths() const
{
    QStringList paths;
    for (const SheetPicture &picture : m_model.sheet().pictures) {
        paths.append(picture.path);
    }
    return paths;
}

void SheetWindow::loadPictures()
{
    m_shownPictures = picturePaths();
    const auto &settings = m_context.settings.of<LayoutsSettings>();
    SheetLook look = lookOf(m_image, plainOf(settings));
    if (m_kind == SheetKind::Custom) {
        look.pictures.clear();
        for (const SheetPicture &picture : m_model.sheet().pictures) {
            look.pictures.push_back(
                picture.path.isEmpty()
                    ? DrawnPicture()
                    : DrawnPicture::load(m_context.paths.appFolder, pictureName(picture.path))
                          .value_or(DrawnPicture()));
        }
    } else {
        m_actions->action(u"mnuLeaderLines")->setChecked(settings.LeaderLines);
    }
    look.leaderLines = settings.LeaderLines;
    m_view->canvas().setLook(look);
    refresh();
}

void SheetWindow::showOpened(const std::optional<OpenedLayout> &opened)
{
    if (!opened) {
        return;
    }
    m_model.change(opened->sheet);
    m_asOpened = opened->sheet;
    if (opened->form == LayoutForm::WithText) {
        m_texts->followLayout(QFileInfo(m_files->path()).lastModified());
    }
    loadPictures();
    updateConditions();
}

void SheetWindow::chooseOwnPicture()
{
    const auto path = m_context.dialogs.openFile({ .title = u"Choose a picture"_s,
                                                   .filter = u"Pictures (*.bmp,*.jpg,*.gif,*.png)|"
                                                             "*.bmp;*.jpg;*.jpeg;*.gif;*.png"_s,
                                                   .folder = m_context.paths.appFolder,
                                                   .showsPictures = true });
    if (!path) {
        return;
    }
    if (const auto read = DrawnPicture::load(m_context.paths.appFolder, *path); !read) {
        m_context.dialogs.tell(u"Can't read file"_s,
                               read.error().path + u": "_s + read.error().reason,
                               BoxIcon::Exclamation);
        return;
    }
    Sheet sheet = m_model.sheet();
    sheet.pictures[ownPicture].path = *path;
    sheet.pictures[ownPicture].Visible = true;
    m_model.change(std::move(sheet));
    loadPictures();
}

void SheetWindow::arrange()
{
    Sheet sheet = m_model.sheet();
    RepositionTextBoxes(sheet, m_image.controls, m_view->canvas().look().plain);
    m_model.change(std::move(sheet));
}

/// Has the current layout opened with this window, or no longer.
void SheetWindow::setAutomatic()
{
    auto &settings = m_context.settings.of<LayoutsSettings>();
    const SheetSettings &own = sheetSettings(m_kind);
    const bool isOn = m_actions->action(u"mnuAutoLayout")->isChecked();
    settings.*own.usesAutomatic = isOn;
    if (isOn) {
        settings.*own.automatic = m_files->path();
    }
    if (const auto kept = saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                                       { own.automatic, own.usesAutomatic });
        !kept) {
        tellNotKept(m_context.status, kept.error());
    }
}

} // namespace zeph
