// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/picture_frame.h"

#include "livetools/pictures/picture_canvas.h"
#include "platform/core/base.h"
#include "tests/support/picture_files.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

using namespace zeph;

namespace {

struct FrameTest : testing::Test {
    PictureFrame frame;

    void show(const QSize &picture, const QSize &window = { 400, 300 })
    {
        frame.resize(window);
        frame.show();
        frame.showPicture(test::pictureOf(picture));
    }
    QScrollBar &horizontal() const { return *frame.findChild<QScrollBar *>(u"HScroll1"_s); }
    QScrollBar &vertical() const { return *frame.findChild<QScrollBar *>(u"VScroll1"_s); }
    QWidget &port() const { return *frame.canvas().parentWidget(); }
    void wheel(const QPoint &angle, Qt::KeyboardModifiers modifiers = {},
               const QPointF &at = { 100, 100 })
    {
        QWheelEvent event(at, frame.mapToGlobal(at), {}, angle, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&frame, &event);
    }
    /// The pixel of the picture at a place of the frame's inner part.
    QPointF pixelAt(const QPoint &at) const
    {
        return QPointF(at - frame.canvas().pos()) / frame.zoom();
    }
};

} // namespace

TEST_F(FrameTest, APictureSmallerThanTheWindowShowsNoBars)
{
    show({ 100, 80 });
    EXPECT_FALSE(horizontal().isVisible());
    EXPECT_FALSE(vertical().isVisible());
    EXPECT_EQ(frame.canvas().size(), QSize(100, 80));
}

TEST_F(FrameTest, ABarIsShownOnlyWhereThePictureIsLarger)
{
    show({ 1000, 80 });
    EXPECT_TRUE(horizontal().isVisible());
    EXPECT_FALSE(vertical().isVisible());
    EXPECT_EQ(horizontal().maximum(), 1000 - port().width());
    show({ 100, 800 });
    EXPECT_FALSE(horizontal().isVisible());
    EXPECT_TRUE(vertical().isVisible());
    EXPECT_EQ(vertical().maximum(), 800 - port().height());
}

TEST_F(FrameTest, ABarThatCoversPartOfThePictureBringsTheOther)
{
    show({ 1000, frame.contentsRect().height() });
    frame.showPicture(test::pictureOf({ 1000, frame.contentsRect().height() - 2 }));
    EXPECT_TRUE(horizontal().isVisible());
    EXPECT_TRUE(vertical().isVisible());
    EXPECT_EQ(vertical().maximum(), frame.canvas().height() - port().height());
}

TEST_F(FrameTest, TheBarsMoveThePictureInside)
{
    show({ 1000, 800 });
    horizontal().setValue(120);
    vertical().setValue(70);
    EXPECT_EQ(frame.canvas().pos(), QPoint(-120, -70));
}

TEST_F(FrameTest, IsNeverSmallerThan20)
{
    EXPECT_EQ(frame.minimumSize(), QSize(20, 20));
    show({ 1000, 800 }, { 20, 20 });
    EXPECT_GE(port().width(), 0);
}

TEST_F(FrameTest, TheWheelScrolls)
{
    show({ 1000, 800 });
    wheel({ 0, -120 });
    EXPECT_EQ(vertical().value(), 60);
    EXPECT_EQ(horizontal().value(), 0);
    wheel({ -240, 0 });
    EXPECT_EQ(horizontal().value(), 120);
    wheel({ 0, 240 });
    EXPECT_EQ(vertical().value(), 0);
}

TEST_F(FrameTest, TheWheelScrollsAPictureSidewaysThatIsOnlyTooWide)
{
    show({ 1000, 80 });
    wheel({ 0, -120 });
    EXPECT_EQ(horizontal().value(), 60);
}

TEST_F(FrameTest, WithCtrlTheWheelZoomsAroundThePointer)
{
    show({ 1000, 800 });
    horizontal().setValue(300);
    vertical().setValue(200);
    const QPoint at = port().mapFrom(&frame, QPoint(100, 100));
    const QPointF before = pixelAt(at);
    wheel({ 0, 120 }, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(frame.zoom(), 1.25);
    EXPECT_NEAR(pixelAt(at).x(), before.x(), 1);
    EXPECT_NEAR(pixelAt(at).y(), before.y(), 1);
    wheel({ 0, -120 }, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(frame.zoom(), 1);
}

TEST_F(FrameTest, ZoomStaysWithinItsRange)
{
    show({ 100, 80 });
    wheel({ 0, 120 * 100 }, Qt::ControlModifier);
    EXPECT_EQ(frame.zoom(), 16);
    EXPECT_EQ(frame.canvas().size(), QSize(1600, 1280));
    wheel({ 0, -120 * 100 }, Qt::ControlModifier);
    EXPECT_EQ(frame.zoom(), 0.05);
    EXPECT_EQ(frame.canvas().size(), QSize(5, 4));
}

TEST_F(FrameTest, TheStepsPassTheUsualZooms)
{
    show({ 100, 80 });
    QList<double> up;
    for (int i = 0; i < 4; ++i) {
        frame.zoomIn();
        up.append(frame.zoom());
    }
    EXPECT_EQ(up, QList<double>({ 1.5, 2, 3, 4 }));
    frame.setZoom(1.1);
    frame.zoomOut();
    EXPECT_EQ(frame.zoom(), 1);
    frame.zoomOut();
    EXPECT_EQ(frame.zoom(), 0.75);
    frame.setZoom(16);
    frame.zoomIn();
    EXPECT_EQ(frame.zoom(), 16);
    frame.setZoom(0.05);
    frame.zoomOut();
    EXPECT_EQ(frame.zoom(), 0.05);
}

TEST_F(FrameTest, FittingFollowsTheWindowUntilTheUserZooms)
{
    show({ 1600, 600 });
    frame.setFits(true);
    EXPECT_FALSE(horizontal().isVisible());
    EXPECT_FALSE(vertical().isVisible());
    EXPECT_NEAR(frame.canvas().width(), frame.contentsRect().width(), 1);
    frame.resize(800, 700);
    EXPECT_NEAR(frame.canvas().width(), frame.contentsRect().width(), 1);
    EXPECT_FALSE(horizontal().isVisible());
    frame.zoomIn();
    EXPECT_FALSE(frame.fits());
    EXPECT_EQ(frame.zoom(), 0.5);
}

TEST_F(FrameTest, APictureTooLongToFitKeepsItsBar)
{
    show({ 20000, 40 });
    frame.setFits(true);
    EXPECT_EQ(frame.zoom(), 0.05);
    EXPECT_TRUE(horizontal().isVisible());
    EXPECT_EQ(horizontal().maximum(), 1000 - port().width());
}

TEST_F(FrameTest, AnotherPictureIsShownAtItsNaturalSizeAndARefreshedOneAsItWas)
{
    show({ 1000, 800 });
    frame.setZoom(2);
    vertical().setValue(50);
    frame.refreshPicture(test::pictureOf({ 1000, 800 }));
    EXPECT_EQ(frame.zoom(), 2);
    EXPECT_EQ(vertical().value(), 50);
    frame.showPicture(test::pictureOf({ 1000, 800 }));
    EXPECT_EQ(frame.zoom(), 1);
    EXPECT_EQ(vertical().value(), 0);
}

TEST_F(FrameTest, KeysScroll)
{
    show({ 1000, 800 });
    QTest::keyClick(&frame, Qt::Key_Right);
    QTest::keyClick(&frame, Qt::Key_Down);
    EXPECT_EQ(frame.canvas().pos(), QPoint(-20, -20));
    QTest::keyClick(&frame, Qt::Key_Left);
    QTest::keyClick(&frame, Qt::Key_PageDown);
    EXPECT_EQ(frame.canvas().pos(), QPoint(0, -20 - port().height()));
}

TEST_F(FrameTest, PixelsAreSharpWhenLargerAndMixedWhenSmaller)
{
    QImage stripes(200, 100, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x) {
        for (int y = 0; y < stripes.height(); ++y) {
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
        }
    }
    frame.resize(400, 300);
    frame.show();
    frame.showPicture(stripes);
    frame.setZoom(3);
    const QImage larger = frame.canvas().grab(QRect(0, 0, 12, 1)).toImage();
    const double ratio = larger.devicePixelRatio();
    for (int x = 0; x < 12; ++x) {
        const QColor colour = larger.pixelColor(int(x * ratio), 0);
        EXPECT_EQ(colour, x / 3 % 2 == 0 ? QColor(Qt::black) : QColor(Qt::white)) << x;
    }
    frame.setZoom(0.25);
    const QImage smaller = frame.canvas().grab().toImage();
    const int grey = smaller.pixelColor(smaller.width() / 2, smaller.height() / 2).red();
    EXPECT_GT(grey, 100);
    EXPECT_LT(grey, 155);
}
