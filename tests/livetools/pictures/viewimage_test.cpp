// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/viewimage.h"

#include "livetools/pictures/image_viewer_settings.h"
#include "livetools/pictures/picture_canvas.h"
#include "livetools/pictures/picture_frame.h"
#include "platform/core/paths.h"
#include "platform/core/profile_file.h"
#include "platform/fakes/fake_printers.h"
#include "settings/shared_settings.h"
#include "tests/support/fixture.h"
#include "tests/support/picture_files.h"

#include <QAction>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>

using namespace zeph;

namespace {

struct Viewer : test::WorldTest {
    FakePrinters printers;
    QAction wizard;
    QAction manual;
    std::unique_ptr<ViewImage> viewer;

    void SetUp() override { viewer = make(); }
    std::unique_ptr<ViewImage> make()
    {
        return std::make_unique<ViewImage>(context(), printers, PictureEntries{ &wizard, &manual });
    }
    QString &imageFilePath() { return settings.of<SharedSettings>().ImageFilePath; }
    QString picture(const QString &name, const QSize &size) const
    {
        return folder.write(name, test::bytesOf(test::pictureOf(size), "bmp"));
    }
    /// Shows a picture of that size in an open window, larger than most.
    void open(const QSize &size = { 640, 480 })
    {
        imageFilePath() = picture(u"a.bmp"_s, size);
        viewer->resize(1000, 800);
        viewer->show();
        ASSERT_TRUE(viewer->mnuImageLoad_Click());
    }
    QAction *action(const QString &name) const
    {
        auto *found = viewer->findChild<QAction *>(name);
        EXPECT_TRUE(found) << name.toStdString();
        return found;
    }
    void choose(const QString &name) const { action(name)->trigger(); }
    PictureFrame &frame() const { return *viewer->findChild<PictureFrame *>(u"Picture2"_s); }
    PictureCanvas &canvas() const { return frame().canvas(); }
    QString panel(const QString &name) const { return viewer->findChild<QLabel *>(name)->text(); }
    const Box &box() const { return dialogs.boxes().back(); }

    void send(QEvent::Type type, const QPointF &at, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers = {}) const
    {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
        QMouseEvent event(type, at, canvas().mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : button, held, modifiers);
        QCoreApplication::sendEvent(&canvas(), &event);
    }
    void press(const QPointF &at, Qt::MouseButton button = Qt::LeftButton) const
    {
        send(QEvent::MouseButtonPress, at, button);
    }
    void move(const QPointF &at, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = {}) const
    {
        send(QEvent::MouseMove, at, button, modifiers);
    }
    void release(const QPointF &at, Qt::MouseButton button = Qt::LeftButton) const
    {
        send(QEvent::MouseButtonRelease, at, button);
    }
    void drag(const QPointF &from, const QPointF &to) const
    {
        press(from);
        move((from + to) / 2);
        move(to);
        release(to);
    }
    /// The places are of the window, below which the picture moves.
    void pan(const QPointF &from, const QPointF &to, Qt::MouseButton button) const
    {
        const auto here = [this](const QPointF &place) {
            return place - canvas().pos();
        };
        press(here(from), button);
        move(here((from + to) / 2), button);
        move(here(to), button);
        release(here(to), button);
    }
    QString stored(const QString &key) const
    {
        return ProfileFile(paths.iniPath).text(u"Image Viewer", key, u"absent"_s);
    }
};

} // namespace

TEST_F(Viewer, IsEmptyBeforeItShowsAPicture)
{
    EXPECT_EQ(viewer->windowTitle(), u"Image viewer");
    EXPECT_TRUE(viewer->pictureSize().isEmpty());
    for (const QString &name : { u"mnuImageSave"_s, u"mnuImagePrint"_s, u"mnuImageSize"_s,
                                 u"mnuImageEdit"_s, u"mnuZoomIn"_s }) {
        EXPECT_FALSE(action(name)->isEnabled()) << name.toStdString();
    }
    EXPECT_TRUE(action(u"mnuImageOpen"_s)->isEnabled());
    const auto *hint = viewer->findChild<QLabel *>(u"LabelNoPicture"_s);
    EXPECT_FALSE(hint->isHidden());
    open();
    EXPECT_TRUE(hint->isHidden());
}

TEST_F(Viewer, ShowsThePictureOfImageFilePath)
{
    QSignalSpy changed(viewer.get(), &ViewImage::pictureLoaded);
    QStringList told;
    QObject::connect(&status, &StatusLine::textChanged,
                     [&told](const QString &text) { told.append(text); });
    open({ 64, 48 });
    EXPECT_EQ(viewer->pictureSize(), QSize(64, 48));
    EXPECT_EQ(canvas().size(), QSize(64, 48));
    EXPECT_EQ(told,
              QStringList({ u"Opening "_s + imageFilePath(),
                            imageFilePath() + u" successfully opened"_s }));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(viewer->windowTitle(), u"Image viewer - a.bmp");
    EXPECT_TRUE(action(u"mnuImagePrint"_s)->isEnabled());
}

TEST_F(Viewer, FindsAPictureWhoseNameIsWrittenInAnotherCase)
{
    picture(u"Cockpit.bmp"_s, { 20, 10 });
    imageFilePath() = folder.file(u"COCKPIT.BMP"_s);
    EXPECT_TRUE(viewer->mnuImageLoad_Click());
    EXPECT_EQ(viewer->pictureSize(), QSize(20, 10));
}

TEST_F(Viewer, AMissingPictureIsToldAndNothingIsShown)
{
    imageFilePath() = folder.file(u"none.bmp"_s);
    dialogs.answer(u"Image file not found"_s, BoxButton::Ok);
    EXPECT_FALSE(viewer->mnuImageLoad_Click());
    EXPECT_EQ(box().text,
              imageFilePath()
                  + u" does not exist. Select Open from the Image menu to ensure the correct path "
                    "to the image file."_s);
}

TEST_F(Viewer, APictureThatDisappearsStaysAndIsToldAtTheNextRefresh)
{
    open({ 64, 48 });
    QFile::remove(imageFilePath());
    viewer->showImageFile();
    EXPECT_TRUE(dialogs.boxes().isEmpty()) << "asked for without a refresh";
    dialogs.answer(u"Image file not found"_s, BoxButton::Ok);
    choose(u"mnuImageRefresh"_s);
    EXPECT_EQ(boxTitles(), QStringList{ u"Image file not found"_s });
    EXPECT_EQ(viewer->pictureSize(), QSize(64, 48));
}

TEST_F(Viewer, DamagedPicturesAreToldAndTheOldOneStays)
{
    open({ 64, 48 });
    const QString good = imageFilePath();
    const QByteArray whole = test::bytesOf(test::pictureOf({ 80, 80 }), "bmp");
    const auto cut = [](const QByteArray &file) {
        return file.left(file.size() / 2);
    };
    const QString cutOff = u"It is damaged: a part of the file is missing."_s;
    const std::pair<QByteArray, QString> damaged[] = {
        { cut(whole), cutOff },
        { cut(test::bytesOf(test::pictureOf({ 80, 80 }), "jpg")), cutOff },
        { cut(test::bytesOf(test::pictureOf({ 80, 80 }), "png")), cutOff },
        { cut(test::gifBytes()), cutOff },
        { {}, u"The file is empty."_s },
        { "Rem no picture",
          u"It is no picture that I know. I can show bmp, jpg, gif and png pictures."_s },
        { test::hugeBitmap(),
          u"It says that it is 30000 by 30000 pixels, which is more than I can show."_s },
    };
    for (const auto &[bytes, reason] : damaged) {
        const QString path = folder.write(u"damaged.bmp"_s, bytes);
        dialogs.answerFile(path);
        dialogs.answer(u"I can't show this picture buddy"_s, BoxButton::Ok);
        choose(u"mnuImageOpen"_s);
        EXPECT_EQ(box().text, path + u" can't be shown. "_s + reason);
        EXPECT_EQ(viewer->pictureSize(), QSize(64, 48));
        EXPECT_EQ(imageFilePath(), good);
        EXPECT_EQ(viewer->windowTitle(), u"Image viewer - a.bmp");
    }
}

TEST_F(Viewer, AFileThatBecameDamagedIsToldAtARefreshAndItsPictureStays)
{
    open({ 64, 48 });
    const QImage before = canvas().picture();
    folder.write(u"a.bmp"_s, test::hugeBitmap());
    dialogs.answer(u"I can't show this picture buddy"_s, BoxButton::Ok);
    choose(u"mnuImageRefresh"_s);
    EXPECT_EQ(boxTitles(), QStringList{ u"I can't show this picture buddy"_s });
    EXPECT_EQ(canvas().picture(), before);
}

TEST_F(Viewer, OpenAsksWithAPreviewWhereTheLastPictureWas)
{
    imageFilePath() = folder.file(u"default.bmp"_s);
    const QString path = picture(u"Captures/b.bmp"_s, { 30, 20 });
    dialogs.answerFile(path);
    choose(u"mnuImageOpen"_s);
    const FileRequest first = dialogs.files().back();
    EXPECT_EQ(first.title, u"Select image file to open");
    EXPECT_TRUE(first.filter.startsWith(u"Image files (*.bmp,*.jpg,*.gif)|*.bmp;*.jpg;*.gif|"));
    EXPECT_TRUE(first.filter.contains(u"*.png"));
    EXPECT_TRUE(first.showsPictures);
    EXPECT_EQ(first.folder, withClosingSeparator(folder.path()));
    EXPECT_EQ(imageFilePath(), path);
    EXPECT_EQ(viewer->pictureSize(), QSize(30, 20));
    viewer = make();
    dialogs.answerFile(std::nullopt);
    choose(u"mnuImageOpen"_s);
    EXPECT_EQ(dialogs.files().back().folder, folder.file(u"Captures/"_s));
    EXPECT_EQ(imageFilePath(), path) << "Cancel changes nothing";
    EXPECT_NE(stored(u"ImagesDirectory"_s), u"absent");
}

TEST_F(Viewer, RefreshShowsWhatTheFileHasBecome)
{
    open({ 64, 48 });
    QSignalSpy changed(viewer.get(), &ViewImage::pictureLoaded);
    viewer->setMeasures({ QPointF(1, 2), {}, {} });
    choose(u"mnuImageRefresh"_s);
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(viewer->measures().from, QPointF(1, 2));
    picture(u"a.bmp"_s, { 100, 50 });
    choose(u"mnuImageRefresh"_s);
    EXPECT_EQ(viewer->pictureSize(), QSize(100, 50));
    EXPECT_EQ(changed.size(), 2);
    EXPECT_EQ(viewer->measures(), Measures()) << "measured on another picture";
}

TEST_F(Viewer, TheEntryShowsAPictureThatHasChangedSince)
{
    open({ 64, 48 });
    QSignalSpy told(&status, &StatusLine::textChanged);
    viewer->showImageFile();
    EXPECT_EQ(told.size(), 0) << "nothing to read";
    imageFilePath() = picture(u"b.bmp"_s, { 10, 10 });
    viewer->showImageFile();
    EXPECT_EQ(viewer->pictureSize(), QSize(10, 10));
}

TEST_F(Viewer, TellsTheSize)
{
    open({ 640, 480 });
    dialogs.answer(u"Image size"_s, BoxButton::Ok);
    choose(u"mnuImageSize"_s);
    EXPECT_EQ(box().text, u"Current image size is: 640 by 480.");
}

TEST_F(Viewer, EditOpensTheFileWithTheDesktopsProgram)
{
    open();
    choose(u"mnuImageEdit"_s);
    EXPECT_EQ(launcher.opened, QStringList{ imageFilePath() });
}

TEST_F(Viewer, SavesABitmap)
{
    open({ 64, 48 });
    const QString path = folder.file(u"saved.bmp"_s);
    dialogs.answerFile(path);
    choose(u"mnuImageSave"_s);
    const FileRequest &request = dialogs.files().back();
    EXPECT_EQ(request.filter, u"Picture file (*.bmp)|*.bmp");
    EXPECT_EQ(request.defaultExtension, u"bmp");
    EXPECT_EQ(request.name, u"a.bmp");
    const QImage saved(path, "bmp");
    EXPECT_EQ(saved.convertToFormat(QImage::Format_RGB32), test::pictureOf({ 64, 48 }));
}

TEST_F(Viewer, SavesOverAFileOnlyAfterAsking)
{
    open();
    const QString path = folder.write(u"old.bmp"_s, "old");
    dialogs.answerFile(path);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::No);
    choose(u"mnuImageSave"_s);
    EXPECT_EQ(box().text, u"old.bmp already exists. Do you want me to overwrite this file?");
    EXPECT_EQ(folder.read(u"old.bmp"_s), "old");
    dialogs.answerFile(path);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::Yes);
    choose(u"mnuImageSave"_s);
    EXPECT_TRUE(folder.read(u"old.bmp"_s).startsWith("BM"));
}

TEST_F(Viewer, ASaveThatFailsIsTold)
{
    open();
    dialogs.answerFile(folder.file(u"no/such/folder.bmp"_s));
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    choose(u"mnuImageSave"_s);
    EXPECT_EQ(boxTitles(), QStringList{ u"I couldn't save your file buddy"_s });
}

TEST_F(Viewer, PrintsAPictureThatFitsOnThePage)
{
    open({ 300, 200 });
    printers.setFile(folder.file(u"paper.pdf"_s));
    choose(u"mnuImagePrint"_s);
    EXPECT_EQ(status.text(), u"Printing complete");
    EXPECT_TRUE(folder.read(u"paper.pdf"_s).startsWith("%PDF"));
}

TEST_F(Viewer, AsksBeforeItPrintsAPictureThatIsLargerThanThePage)
{
    open({ 3000, 200 });
    printers.setFile(folder.file(u"paper.pdf"_s));
    dialogs.answer(u"OK to print?"_s, BoxButton::No);
    choose(u"mnuImagePrint"_s);
    // A4 is 210 by 297 mm, less margins of 15 mm, of 96 pixels an inch.
    EXPECT_TRUE(box().text.startsWith(
        u"Warning: The image size (3000 by 200) is greater than the Printer's page size settings "
        "(680 by 1009). Do you still want me to"))
        << box().text.toStdString();
    EXPECT_FALSE(folder.exists(u"paper.pdf"_s));
    dialogs.answer(u"OK to print?"_s, BoxButton::Yes);
    choose(u"mnuImagePrint"_s);
    // 3000 pixels are 5 pages of 680 side by side.
    EXPECT_EQ(folder.read(u"paper.pdf"_s).count("/Type /Page\n"), 5);
}

TEST_F(Viewer, WithoutAPrinterNothingIsPrinted)
{
    open();
    printers.printers = 0;
    dialogs.answer(u"No printer detected"_s, BoxButton::Ok);
    choose(u"mnuImagePrint"_s);
    EXPECT_TRUE(box().text.startsWith(u"Sorry - I couldn't detect a printer"));
}

TEST_F(Viewer, APrintThatFailsIsTold)
{
    open({ 300, 200 });
    printers.setFile(folder.file(u"no/such/paper.pdf"_s));
    dialogs.answer(u"I couldn't print your picture buddy"_s, BoxButton::Ok);
    // The toolkit warns of the same, which is no fault here.
    const QtMessageHandler strict = qInstallMessageHandler(nullptr);
    choose(u"mnuImagePrint"_s);
    qInstallMessageHandler(strict);
    EXPECT_EQ(status.text(), u"a.bmp wasn't printed");
}

TEST_F(Viewer, TheToolbarsTickIsKept)
{
    const auto *toolbar = viewer->findChild<QToolBar *>(u"Toolbar1"_s);
    EXPECT_FALSE(toolbar->isHidden());
    choose(u"mnuHideAppsToolBar"_s);
    EXPECT_TRUE(toolbar->isHidden());
    EXPECT_EQ(stored(u"HideAppsToolBar"_s), u"1");
    settings.of<ImageViewerSettings>() = {};
    viewer = make();
    EXPECT_TRUE(viewer->findChild<QToolBar *>(u"Toolbar1"_s)->isHidden());
    EXPECT_TRUE(action(u"mnuHideAppsToolBar"_s)->isChecked());
}

TEST_F(Viewer, TheMouseEntriesRunTheMainWindows)
{
    QSignalSpy wizardRuns(&wizard, &QAction::triggered);
    QSignalSpy manuals(viewer.get(), &ViewImage::mouseManualWanted);
    choose(u"mnuMouseWizard"_s);
    EXPECT_EQ(wizardRuns.size(), 1);
    for (int tab = 0; tab < 5; ++tab) {
        choose(u"mnuMouseStatements_"_s + QString::number(tab));
        EXPECT_EQ(manuals.back().front().toInt(), tab);
    }
    wizard.setEnabled(false);
    EXPECT_FALSE(action(u"mnuMouseWizard"_s)->isEnabled());
    EXPECT_TRUE(action(u"mnuMouseStatements_0"_s)->isEnabled());
    manual.setEnabled(false);
    EXPECT_FALSE(action(u"mnuMouseStatements_4"_s)->isEnabled());
}

TEST_F(Viewer, EachButtonOfTheToolbarHasAPicture)
{
    installIcons();
    viewer = make();
    for (const QAction *entry : viewer->findChild<QToolBar *>(u"Toolbar1"_s)->actions()) {
        if (!entry->isSeparator()) {
            EXPECT_FALSE(entry->icon().pixmap(20).isNull()) << entry->text().toStdString();
        }
    }
}

TEST_F(Viewer, ShowsThePixelBelowTheMouseAtAnyZoom)
{
    open();
    move({ 12, 34 }, Qt::NoButton);
    EXPECT_EQ(panel(u"LBL_Place"_s), u"12, 34");
    frame().setZoom(3);
    move({ 36, 104 }, Qt::NoButton);
    EXPECT_EQ(panel(u"LBL_Place"_s), u"12, 34");
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&canvas(), &leave);
    EXPECT_EQ(panel(u"LBL_Place"_s), QString());
}

TEST_F(Viewer, ZoomEntriesZoomAndTheStatusBarSaysHowMuch)
{
    open({ 2000, 1000 });
    EXPECT_EQ(panel(u"LBL_Zoom"_s), u"100 %");
    choose(u"mnuZoomIn"_s);
    EXPECT_EQ(panel(u"LBL_Zoom"_s), u"150 %");
    choose(u"mnuZoomNatural"_s);
    choose(u"mnuZoomOut"_s);
    EXPECT_EQ(panel(u"LBL_Zoom"_s), u"75 %");
    choose(u"mnuZoomFit"_s);
    EXPECT_LT(frame().zoom(), 0.51);
    EXPECT_TRUE(action(u"mnuZoomFit"_s)->isChecked());
    choose(u"mnuZoomNatural"_s);
    EXPECT_FALSE(action(u"mnuZoomFit"_s)->isChecked());
    EXPECT_EQ(frame().zoom(), 1);
}

TEST_F(Viewer, TheKeysZoom)
{
    open();
    const auto hasKey = [this](const QString &name, const QString &key) {
        return action(name)->shortcuts().contains(QKeySequence(key));
    };
    EXPECT_TRUE(hasKey(u"mnuZoomIn"_s, u"Ctrl++"_s));
    EXPECT_TRUE(hasKey(u"mnuZoomIn"_s, u"Ctrl+="_s));
    EXPECT_TRUE(hasKey(u"mnuZoomOut"_s, u"Ctrl+-"_s));
    EXPECT_TRUE(hasKey(u"mnuZoomNatural"_s, u"Ctrl+0"_s));
    ASSERT_TRUE(QTest::qWaitForWindowActive(viewer.get()));
    QTest::keyClick(viewer.get(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(frame().zoom(), 1.5);
    QTest::keyClick(viewer.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(frame().zoom(), 1);
    QTest::keyClick(viewer.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(frame().zoom(), 0.75);
}

TEST_F(Viewer, TheLeftButtonPansWhileNoGestureIsAskedFor)
{
    open({ 3000, 3000 });
    pan({ 500, 400 }, { 460, 370 }, Qt::LeftButton);
    EXPECT_EQ(canvas().pos(), QPoint(-40, -30));
    EXPECT_EQ(viewer->measures(), Measures());
}

TEST_F(Viewer, TheMiddleButtonPansDuringAGestureToo)
{
    open({ 3000, 3000 });
    viewer->setGesture(Gesture::Line);
    pan({ 500, 400 }, { 460, 370 }, Qt::MiddleButton);
    EXPECT_EQ(canvas().pos(), QPoint(-40, -30));
    EXPECT_EQ(viewer->measures(), Measures());
    drag({ 500, 400 }, { 460, 370 });
    EXPECT_EQ(canvas().pos(), QPoint(-40, -30));
}

TEST_F(Viewer, TheMiddleButtonPansWhileALineIsDrawnAndTheLineGoesOn)
{
    open({ 3000, 3000 });
    viewer->setGesture(Gesture::Line);
    press({ 100, 60 });
    move({ 120, 80 });
    pan({ 500, 400 }, { 460, 370 }, Qt::MiddleButton);
    EXPECT_EQ(canvas().pos(), QPoint(-40, -30));
    release({ 140, 90 });
    EXPECT_EQ(viewer->measures(), Measures({ QPointF(100, 60), QPointF(140, 90), {} }));
    // The left button is up: the line is finished, also when both buttons were down at once.
    press({ 100, 60 });
    press({ 500, 400 }, Qt::MiddleButton);
    release({ 140, 90 });
    release({ 500, 400 }, Qt::MiddleButton);
    move({ 700, 700 }, Qt::NoButton);
    EXPECT_EQ(viewer->measures(), Measures({ QPointF(100, 60), QPointF(140, 90), {} }));
}

TEST_F(Viewer, ALineIsTheSameAtEveryZoom)
{
    open();
    viewer->setGesture(Gesture::Line);
    const Measures wanted{ QPointF(100, 60), QPointF(40, 90), {} };
    for (const double zoom : { 0.5, 1.0, 3.0, 0.25, 2.0 }) {
        frame().setZoom(zoom);
        viewer->clearMeasures();
        QSignalSpy finished(viewer.get(), &ViewImage::gestureFinished);
        drag(*wanted.from * zoom, *wanted.to * zoom);
        EXPECT_EQ(viewer->measures(), wanted) << zoom;
        EXPECT_EQ(finished.size(), 1);
    }
}

TEST_F(Viewer, ScrollingDoesNotChangeWhatIsMeasured)
{
    open({ 3000, 3000 });
    viewer->setGesture(Gesture::Point);
    for (QScrollBar *bar : frame().findChildren<QScrollBar *>()) {
        bar->setValue(700);
    }
    // At a place of the window, not of the picture.
    QTest::mouseClick(canvas().parentWidget()->childAt(20, 10), Qt::LeftButton, {},
                      canvas().mapFrom(canvas().parentWidget(), QPoint(20, 10)));
    EXPECT_EQ(viewer->measures().from, QPointF(720, 710));
}

TEST_F(Viewer, PartsOfAPixelOfAFineScreenAreThatPixel)
{
    open();
    viewer->setGesture(Gesture::Line);
    // At a scale of 2 the mouse is at halves of device-independent pixels.
    drag({ 100.5, 60 }, { 40, 90.5 });
    EXPECT_EQ(viewer->measures(), Measures({ QPointF(100, 60), QPointF(40, 90), {} }));
    frame().setZoom(3);
    drag({ 302.5, 181 }, { 121.5, 272 });
    EXPECT_EQ(viewer->measures(), Measures({ QPointF(100, 60), QPointF(40, 90), {} }));
}

TEST_F(Viewer, ADragBeyondThePictureEndsAtItsEdge)
{
    open({ 64, 48 });
    viewer->setGesture(Gesture::Line);
    drag({ 10, 10 }, { 500, -20 });
    EXPECT_EQ(viewer->measures(), Measures({ QPointF(10, 10), QPointF(63, 0), {} }));
}

TEST_F(Viewer, ARotationIsDrawnWithButtonAndThenShift)
{
    open();
    for (const double zoom : { 0.5, 1.0, 3.0 }) {
        frame().setZoom(zoom);
        viewer->clearMeasures();
        viewer->setGesture(Gesture::Radius);
        drag(QPointF(200, 200) * zoom, QPointF(230, 160) * zoom);
        EXPECT_FLOAT_EQ(viewer->CalculateTheta1(), 53.130102F);
        viewer->setGesture(Gesture::Target);
        QSignalSpy changed(viewer.get(), &ViewImage::measuresChanged);
        QSignalSpy finished(viewer.get(), &ViewImage::gestureFinished);
        move(QPointF(200, 100) * zoom, Qt::NoButton);
        EXPECT_EQ(changed.size(), 0);
        move(QPointF(200, 100) * zoom, Qt::NoButton, Qt::ShiftModifier);
        EXPECT_EQ(changed.size(), 1);
        EXPECT_FLOAT_EQ(viewer->CalculateTheta2(), 90);
        EXPECT_NEAR(viewer->measures().target->y(), 150, 1e-9);
        EXPECT_EQ(finished.size(), 0);
        // The key may go to another window.
        QWidget elsewhere;
        QTest::keyRelease(&elsewhere, Qt::Key_Shift);
        EXPECT_EQ(finished.size(), 1);
        move(QPointF(300, 200) * zoom, Qt::NoButton);
        EXPECT_FLOAT_EQ(viewer->CalculateTheta2(), 90);
        press(QPointF(10, 10), Qt::RightButton);
        EXPECT_FALSE(viewer->measures().target);
        EXPECT_TRUE(viewer->measures().to);
    }
}

TEST_F(Viewer, TheMeasuresAreDrawnOverThePicture)
{
    open();
    const QImage bare = canvas().grab().toImage();
    viewer->setGesture(Gesture::Line);
    EXPECT_EQ(canvas().grab().toImage(), bare);
    viewer->setMeasures({ QPointF(100, 100), QPointF(300, 100), {} });
    const QImage line = canvas().grab().toImage();
    const double ratio = line.devicePixelRatio();
    const QPoint middle = QPoint(int(200 * ratio), int(100 * ratio));
    EXPECT_GT(line.pixelColor(middle).lightness(), 150) << "a light line";
    EXPECT_LT(line.pixelColor(middle - QPoint(0, int(2 * ratio))).lightness(), 80)
        << "with a dark border";
    viewer->clearMeasures();
    EXPECT_EQ(canvas().grab().toImage(), bare);
}
