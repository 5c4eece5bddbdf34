// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/viewimage.h"

#include "livetools/picture_geometry.h"
#include "livetools/pictures/image_viewer_settings.h"
#include "livetools/pictures/picture_canvas.h"
#include "livetools/pictures/picture_frame.h"
#include "livetools/pictures/picture_print.h"
#include "livetools/pictures/viewer_actions.h"
#include "menus/menu_actions.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/picture_file.h"
#include "platform/printers.h"
#include "platform/process_launcher.h"
#include "platform/status_line.h"
#include "platform/window_places.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "settings/shared_settings.h"
#include "ui_viewimage.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>

#include <cmath>

namespace zeph {

namespace {

/// The help topic on this window.
constexpr int helpTopic = 295;
constexpr int percent = 100;
/// Of the panel with the coordinates, in characters.
constexpr int placeWidth = 14;
constexpr int zoomWidth = 7;

QString openFilter()
{
    return u"Image files (*.bmp,*.jpg,*.gif)|*.bmp;*.jpg;*.gif|"
           "Image files, png too (*.png)|*.bmp;*.jpg;*.jpeg;*.gif;*.png"_s;
}

QString bySize(const QSize &size)
{
    return u"%1 by %2"_s.arg(size.width()).arg(size.height());
}

QDateTime writtenAt(const QString &path)
{
    return QFileInfo(path).lastModified();
}

std::initializer_list<SettingRef> ownSettings()
{
    using S = ImageViewerSettings;
    static const std::initializer_list<SettingRef> own = { &S::HideAppsToolBar,
                                                           &S::ImagesDirectory };
    return own;
}

} // namespace

ViewImage::ViewImage(const Context &context, Printers &printers, const PictureEntries &entries,
                     QWidget *parent)
    : QMainWindow(parent), m_context(context), m_printers(printers), m_entries(entries),
      m_ui(std::make_unique<Ui::ViewImage>()),
      m_actions(std::make_unique<MenuActions>(context.dialogs, context.paths.inApp(u"icons/"),
                                              viewerMenuBar(), viewerActions(), this)),
      m_place(new QLabel(this)), m_zoom(new QLabel(this))
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::Window);
    m_actions->addTo(*m_ui->MenuBar1);
    makeBars();
    connectEntries();
    const PictureCanvas &canvas = frame().canvas();
    connect(&canvas, &PictureCanvas::measuresChanged, this, &ViewImage::measuresChanged);
    connect(&canvas, &PictureCanvas::gestureFinished, this, &ViewImage::gestureFinished);
    connect(&canvas, &PictureCanvas::pointed, this, &ViewImage::showPlace);
    connect(&frame(), &PictureFrame::zoomChanged, this, &ViewImage::showZoom);
    GetImageViewerOptions();
    showZoom();
    if (parent) {
        openBeside(*this, *parent->window());
    }
    frame().setFocus();
}

ViewImage::~ViewImage() = default;

PictureFrame &ViewImage::frame() const
{
    return *m_ui->Picture2;
}

const QImage &ViewImage::picture() const
{
    return frame().canvas().picture();
}

QSize ViewImage::pictureSize() const
{
    return picture().size();
}

void ViewImage::makeBars()
{
    for (const QStringView name :
         { u"mnuImageOpen", u"mnuImageSave", u"mnuImagePrint", u"", u"mnuZoomFit", u"mnuZoomIn",
           u"mnuZoomOut", u"mnuZoomNatural", u"", u"mnuMouseWizard", u"mnuHelpContents" }) {
        if (name.isEmpty()) {
            m_ui->Toolbar1->addSeparator();
        } else {
            QAction *entry = m_actions->action(name);
            m_ui->Toolbar1->addAction(entry);
            m_ui->Toolbar1->widgetForAction(entry)->setObjectName(u"Toolbar1_"_s
                                                                  + name.sliced(3).toString());
        }
    }
    const auto addPanel = [this](QLabel *panel, const QString &name, const QString &words,
                                 int characters) {
        panel->setObjectName(name);
        panel->setAccessibleName(words);
        panel->setToolTip(words);
        panel->setMinimumWidth(panel->fontMetrics().averageCharWidth() * characters);
        m_ui->StatusBar1->addPermanentWidget(panel);
    };
    addPanel(m_place, u"LBL_Place"_s, u"The pixel of the picture below the mouse"_s, placeWidth);
    addPanel(m_zoom, u"LBL_Zoom"_s, u"Zoom"_s, zoomWidth);
}

void ViewImage::connectEntries()
{
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuImageOpen", [this] { mnuImageOpen_Click(); });
    on.connectTo(u"mnuImageRefresh", [this] { mnuImageLoad_Click(); });
    on.connectTo(u"mnuImageSave", [this] { mnuImageSave_Click(); });
    on.connectTo(u"mnuImagePrint", [this] { mnuImagePrint_Click(); });
    on.connectTo(u"mnuImageSize", [this] { mnuImageSize_Click(); });
    on.connectTo(u"mnuImageEdit", [this] { mnuImageEdit_Click(); });
    on.connectTo(u"mnuImageClose", [this] { close(); });
    on.connectTo(u"mnuZoomFit",
                 [this] { frame().setFits(m_actions->action(u"mnuZoomFit")->isChecked()); });
    on.connectTo(u"mnuZoomIn", [this] { frame().zoomIn(); });
    on.connectTo(u"mnuZoomOut", [this] { frame().zoomOut(); });
    on.connectTo(u"mnuZoomNatural", [this] { frame().setZoom(1); });
    on.connectTo(u"mnuHideAppsToolBar", [this] {
        m_ui->Toolbar1->setHidden(m_actions->action(u"mnuHideAppsToolBar")->isChecked());
        SaveQuickViewOptions();
    });
    on.connectTo(u"mnuMouseWizard", [this] { mnuMouseWizard_Click(); });
    on.connectArray(u"mnuMouseStatements"_s,
                    [this](int index) { mnuMouseStatements_Click(index); });
    on.connectTo(u"mnuHelpContents", [this] { Q_EMIT helpWanted(helpTopic); });
    // On most keyboards the plus sign needs Shift.
    on.action(u"mnuZoomIn")->setShortcuts({ QKeySequence(u"Ctrl++"_s), QKeySequence(u"Ctrl+="_s) });
    for (const QAction *entry : { m_entries.mouseWizard, m_entries.mouseManual }) {
        connect(entry, &QAction::changed, this, &ViewImage::followEntries);
    }
    followEntries();
}

void ViewImage::followEntries()
{
    m_actions->action(u"mnuMouseWizard")->setEnabled(m_entries.mouseWizard->isEnabled());
    for (const QStringView name :
         { u"mnuMouseStatements_0", u"mnuMouseStatements_1", u"mnuMouseStatements_2",
           u"mnuMouseStatements_3", u"mnuMouseStatements_4" }) {
        m_actions->action(name)->setEnabled(m_entries.mouseManual->isEnabled());
    }
}

void ViewImage::say(const QString &text, bool now)
{
    if (now) {
        m_context.status.setTextNow(text);
    } else {
        m_context.status.setText(text);
    }
    m_ui->StatusBar1->showMessage(text);
}

void ViewImage::showImageFile()
{
    const QString named = m_context.settings.of<SharedSettings>().ImageFilePath;
    const QString path = existingPath(named);
    // A picture whose file is gone stays as well; a refresh tells it.
    const bool isShown =
        path.isEmpty() ? named == m_path : path == m_path && writtenAt(path) == m_writtenAt;
    if (picture().isNull() || !isShown) {
        mnuImageLoad_Click();
    }
}

bool ViewImage::mnuImageLoad_Click()
{
    const QString named = m_context.settings.of<SharedSettings>().ImageFilePath;
    if (!fileExists(named)) {
        m_context.dialogs.tell(
            u"Image file not found"_s,
            named
                + u" does not exist. Select Open from the Image menu to ensure the correct path "
                  "to the image file."_s,
            BoxIcon::Exclamation);
        return false;
    }
    const QString path = existingPath(named);
    say(u"Opening "_s + path, true);
    const auto read = readPicture(path);
    if (!read) {
        say(nameOf(path) + u" wasn't opened"_s);
        m_context.dialogs.tell(u"I can't show this picture buddy"_s,
                               path + u" can't be shown. "_s + read.error(), BoxIcon::Exclamation);
        return false;
    }
    showPicture(path, read->image);
    say(path + u" successfully opened"_s);
    return true;
}

void ViewImage::showPicture(const QString &path, const QImage &picture)
{
    const bool isOther = path != m_path || picture.size() != pictureSize();
    m_path = path;
    m_writtenAt = writtenAt(path);
    if (isOther) {
        frame().showPicture(picture);
        setWindowTitle(u"Image viewer - "_s + nameOf(path));
        m_actions->setCondition(ViewerWhen::Picture, true);
        // What was measured on another picture has no meaning on this one.
        clearMeasures();
        showPlace(std::nullopt);
    } else {
        frame().refreshPicture(picture);
    }
    Q_EMIT pictureLoaded();
}

void ViewImage::mnuImageOpen_Click()
{
    QString &imageFilePath = m_context.settings.of<SharedSettings>().ImageFilePath;
    const auto chosen = m_context.dialogs.openFile({ .title = u"Select image file to open"_s,
                                                     .filter = openFilter(),
                                                     .folder = GetLastImagesDirectory(),
                                                     .showsPictures = true });
    if (!chosen) {
        return;
    }
    SaveLastImagesDirectory(folderOf(*chosen));
    const QString before = std::exchange(imageFilePath, *chosen);
    if (!mnuImageLoad_Click()) {
        imageFilePath = before;
    }
}

void ViewImage::mnuImageSave_Click()
{
    const auto chosen =
        m_context.dialogs.saveFile({ .title = u"Save picture as ..."_s,
                                     .filter = u"Picture file (*.bmp)|*.bmp"_s,
                                     .defaultExtension = u"bmp"_s,
                                     .folder = folderOf(m_path),
                                     .name = QFileInfo(m_path).completeBaseName() + u".bmp"_s });
    if (!chosen || !mayOverwrite(m_context.dialogs, *chosen)) {
        return;
    }
    const QString existing = existingPath(*chosen);
    const QString path = existing.isEmpty() ? *chosen : existing;
    if (const auto done = writeFileAtomically(path, bitmapOf(picture())); !done) {
        tellNotSaved(m_context.dialogs, done.error());
        return;
    }
    say(path + u" saved successfully"_s);
}

bool ViewImage::mayPrintOnPages(const QSize &page) const
{
    const QSize size = pictureSize();
    if (size.width() <= page.width() && size.height() <= page.height()) {
        return true;
    }
    return m_context.dialogs.ask(
        u"OK to print?"_s,
        u"Warning: The image size ("_s + bySize(size)
            + u") is greater than the Printer's page size settings ("_s + bySize(page)
            + u"). Do you still want me to try and print out the layout? This may result in a "
              "problem for your printer, or a lot of extra paper being churned out"_s);
}

void ViewImage::mnuImagePrint_Click()
{
    if (m_printers.count() == 0) {
        m_context.dialogs.tell(
            u"No printer detected"_s,
            u"Sorry - I couldn't detect a printer connected to your system, so I can't print out "
            "this image. If you do have a printer connected, check your driver's settings from "
            "the Control panel."_s,
            BoxIcon::Exclamation);
        return;
    }
    QPrinter &printer = m_printers.printer();
    if (!mayPrintOnPages(pageInPixels(printer))) {
        return;
    }
    say(u"Printing image ... hang on .... this may take a while."_s, true);
    if (const auto done = printPicture(printer, picture(), nameOf(m_path)); !done) {
        say(nameOf(m_path) + u" wasn't printed"_s);
        m_context.dialogs.tell(u"I couldn't print your picture buddy"_s,
                               nameOf(m_path) + u" wasn't printed: "_s + done.error() + u'.',
                               BoxIcon::Stop);
        return;
    }
    say(u"Printing complete"_s);
}

void ViewImage::mnuImageSize_Click()
{
    m_context.dialogs.tell(u"Image size"_s,
                           u"Current image size is: "_s + bySize(pictureSize()) + u'.');
}

void ViewImage::mnuImageEdit_Click()
{
    if (const auto opened = m_context.launcher.openWithDesktop(m_path); !opened) {
        m_context.dialogs.tell(u"I couldn't open the picture buddy"_s,
                               m_path + u" wasn't opened. The system says: "_s + opened.error(),
                               BoxIcon::Exclamation);
    }
}

void ViewImage::mnuMouseWizard_Click()
{
    m_entries.mouseWizard->trigger();
}

void ViewImage::mnuMouseStatements_Click(int index)
{
    Q_EMIT mouseManualWanted(index);
}

void ViewImage::RepositionControls()
{
    frame().RepositionControls();
}

void ViewImage::GetImageViewerOptions()
{
    // The problems are not told: with a value that cannot be read the toolbar is shown.
    (void)readSettings(m_context.settings, settingsFilesOf(m_context.paths), ownSettings());
    const bool isHidden = m_context.settings.of<ImageViewerSettings>().HideAppsToolBar;
    m_actions->action(u"mnuHideAppsToolBar")->setChecked(isHidden);
    m_ui->Toolbar1->setHidden(isHidden);
}

void ViewImage::SaveQuickViewOptions()
{
    m_context.settings.of<ImageViewerSettings>().HideAppsToolBar =
        m_actions->action(u"mnuHideAppsToolBar")->isChecked();
    // A store that cannot be written is not told: the window then opens as it did before.
    (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths), ownSettings());
}

QString ViewImage::GetLastImagesDirectory() const
{
    const QString folder = m_context.settings.of<ImageViewerSettings>().ImagesDirectory;
    return folderExists(folder) ? folder
                                : folderOf(m_context.settings.of<SharedSettings>().ImageFilePath);
}

void ViewImage::SaveLastImagesDirectory(const QString &folder)
{
    m_context.settings.of<ImageViewerSettings>().ImagesDirectory = folder;
    SaveQuickViewOptions();
}

void ViewImage::showZoom()
{
    m_zoom->setText(QString::number(std::lround(frame().zoom() * percent)) + u" %"_s);
    m_actions->action(u"mnuZoomFit")->setChecked(frame().fits());
}

void ViewImage::showPlace(const std::optional<QPoint> &pixel)
{
    m_place->setText(pixel ? QString::number(pixel->x()) + u", "_s + QString::number(pixel->y())
                           : QString());
}

void ViewImage::setGesture(Gesture gesture)
{
    frame().canvas().setGesture(gesture);
}

Gesture ViewImage::gesture() const
{
    return frame().canvas().tracker().gesture();
}

const Measures &ViewImage::measures() const
{
    return frame().canvas().tracker().measures();
}

void ViewImage::setMeasures(const Measures &measures)
{
    frame().canvas().setMeasures(measures);
}

float ViewImage::CalculateTheta1() const
{
    return zeph::CalculateTheta1(measures());
}

float ViewImage::CalculateTheta2() const
{
    return zeph::CalculateTheta2(measures());
}

void ViewImage::closeEvent(QCloseEvent *event)
{
    SaveQuickViewOptions();
    QMainWindow::closeEvent(event);
}

} // namespace zeph
