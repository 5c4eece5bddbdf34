// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/controls_picture.h"
#include "tests/cougar/shipped_pictures.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QBuffer>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace zeph;

namespace {

class Controls : public testing::Test
{
public:
    test::PicturesFolder folder;
    QWidget window;
    QLineEdit *before = new QLineEdit(&window);
    ControlsPicture *picture = new ControlsPicture(&window);
    QLineEdit *after = new QLineEdit(&window);

    void SetUp() override
    {
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(before);
        layout->addWidget(picture);
        layout->addWidget(after);
    }
    HandleFile handle(const QString &name) const
    {
        const auto read = loadHandleFile(folder.file(name + u".tmh"_s));
        EXPECT_TRUE(read);
        return read.value_or(HandleFile());
    }
    void showHandle(const QString &name) const
    {
        EXPECT_TRUE(picture->showHandle(folder.path(), handle(name)));
    }
    void open()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    void pictureOfSize(const QSize &size)
    {
        picture->setFixedSize(size);
        window.adjustSize();
    }
    /// The names of the buttons that Tab reaches from the field before to the field after.
    QString tabOrder() const
    {
        QStringList names;
        before->setFocus();
        for (int i = 0; i < 30 && QApplication::focusWidget() != after; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            names.append(QApplication::focusWidget()->objectName());
        }
        return names.join(u' ').trimmed();
    }
};

QImage grabbed(QWidget *widget)
{
    return widget->grab().toImage();
}

} // namespace

TEST_F(Controls, TheShippedHandlesHaveTheHotSpotsOfTheirDrawings)
{
    for (const QString &name : { u"F-16 Block 50"_s, u"Straight grip"_s }) {
        const auto drawing = drawingNamed(name);
        EXPECT_EQ(handle(name).spots, hotSpotsOn(*drawing, drawing->size));
        EXPECT_EQ(handle(name).picture, name + u".bmp"_s);
    }
    EXPECT_TRUE(handle(u"F-16 Block 50"_s).triggerHasStages);
    EXPECT_FALSE(handle(u"Straight grip"_s).triggerHasStages);
}

TEST_F(Controls, AClickTellsWhichHotSpot)
{
    showHandle(u"F-16 Block 50"_s);
    open();
    const QSignalSpy clicked(picture, &ControlsPicture::clicked);
    for (const QString &id : { u"BTN_2"_s, u"HAT_3"_s, u"TRIG"_s }) {
        QTest::mouseClick(picture->spot(id), Qt::LeftButton);
        EXPECT_EQ(clicked.last().first().toString(), id);
    }
    EXPECT_EQ(clicked.size(), 3);
}

TEST_F(Controls, SpaceAndBothEnterKeysClick)
{
    showHandle(u"F-16 Block 50"_s);
    open();
    const QSignalSpy clicked(picture, &ControlsPicture::clicked);
    picture->spot(u"BTN_1")->setFocus();
    for (const Qt::Key key : { Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter }) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(clicked.last().first().toString(), u"BTN_1");
    }
    EXPECT_EQ(clicked.size(), 3);
}

TEST_F(Controls, TabGoesThroughTheHotSpotsInTheirOrderAndOnToTheNextField)
{
    showHandle(u"F-16 Block 50"_s);
    open();
    EXPECT_EQ(tabOrder(), u"BTN_0 BTN_1 BTN_2 BTN_3 HAT_0 HAT_1 HAT_2 HAT_3 TRIG");
}

TEST_F(Controls, TabSkipsAHotSpotThatTheHandleLacksAndFindsItAgainInItsPlace)
{
    showHandle(u"Straight grip"_s);
    open();
    EXPECT_EQ(tabOrder(), u"BTN_0 BTN_1 BTN_2 HAT_0 HAT_1 HAT_2 HAT_3 TRIG");
    EXPECT_EQ(picture->spot(u"BTN_3"), nullptr);
    QAbstractButton *kept = picture->spot(u"TRIG");
    showHandle(u"F-16 Block 50"_s);
    EXPECT_EQ(tabOrder(), u"BTN_0 BTN_1 BTN_2 BTN_3 HAT_0 HAT_1 HAT_2 HAT_3 TRIG");
    EXPECT_EQ(picture->spot(u"TRIG"), kept);
}

TEST_F(Controls, AScreenReaderHearsNamesAndTheTextIsTheLanguages)
{
    ASSERT_TRUE(picture->showDrawing(folder.path(), u"Throttle.bmp"_s));
    open();
    QAbstractButton *spot = picture->spot(u"BTN_8");
    ASSERT_TRUE(spot);
    EXPECT_EQ(spot->text(), u"T5");
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(spot);
    EXPECT_EQ(told->text(QAccessible::Name), u"Button T5");
    EXPECT_EQ(told->role(), QAccessible::Button);
    EXPECT_EQ(told->rect().size(), spot->size());
}

TEST_F(Controls, HotSpotsScaleWithThePictureWhichKeepsItsShape)
{
    showHandle(u"F-16 Block 50"_s); // 320 by 420, with TRIG as its file says
    const QRect trigger = handle(u"F-16 Block 50"_s).spots.last().place;
    pictureOfSize({ 320, 420 });
    open();
    EXPECT_EQ(picture->spot(u"TRIG")->geometry(), trigger);
    pictureOfSize({ 640, 840 });
    EXPECT_EQ(picture->spot(u"TRIG")->geometry(), QRect(trigger.topLeft() * 2, trigger.size() * 2));
    pictureOfSize({ 520, 420 });
    EXPECT_EQ(picture->pictureRect(), QRectF(100, 0, 320, 420));
    EXPECT_EQ(picture->spot(u"TRIG")->geometry(), trigger.translated(100, 0));
    pictureOfSize({ 160, 410 });
    EXPECT_EQ(picture->pictureRect(), QRectF(0, 100, 160, 210));
    EXPECT_EQ(picture->onWidget(QRectF(20, 40, 60, 80)), QRectF(10, 120, 30, 40));
}

TEST_F(Controls, AnotherSizeOrPictureIsToldToWhatIsLaidOverIt)
{
    showHandle(u"F-16 Block 50"_s);
    open();
    const QSignalSpy laidOut(picture, &ControlsPicture::laidOut);
    pictureOfSize({ 300, 300 });
    QCoreApplication::processEvents();
    const auto resized = laidOut.size();
    EXPECT_GE(resized, 1);
    showHandle(u"Straight grip"_s);
    EXPECT_GT(laidOut.size(), resized);
}

TEST_F(Controls, HoveringAndTheFocusTellTheHotSpotAndLeavingTellsNone)
{
    showHandle(u"F-16 Block 50"_s);
    open();
    before->setFocus();
    const QSignalSpy hovered(picture, &ControlsPicture::hovered);
    const auto enter = [this](QStringView id) {
        QEnterEvent event({}, {}, {});
        QApplication::sendEvent(picture->spot(id), &event);
    };
    const auto leave = [this](QStringView id) {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(picture->spot(id), &event);
    };
    const auto last = [&hovered] {
        return hovered.last().first().toString();
    };
    enter(u"BTN_0");
    EXPECT_EQ(last(), u"BTN_0");
    leave(u"BTN_0");
    EXPECT_EQ(last(), QString());
    picture->spot(u"HAT_1")->setFocus();
    EXPECT_EQ(last(), u"HAT_1");
    enter(u"TRIG"); // the pointer comes first
    EXPECT_EQ(last(), u"TRIG");
    leave(u"TRIG");
    EXPECT_EQ(last(), u"HAT_1");
    before->setFocus();
    EXPECT_EQ(last(), QString());
    EXPECT_EQ(hovered.size(), 6);
}

TEST_F(Controls, AHotSpotThatGoesWithItsHandleIsNoLongerHovered)
{
    showHandle(u"F-16 Block 50"_s);
    open();
    QEnterEvent event({}, {}, {});
    QApplication::sendEvent(picture->spot(u"BTN_3"), &event);
    const QSignalSpy hovered(picture, &ControlsPicture::hovered);
    showHandle(u"Straight grip"_s);
    ASSERT_EQ(hovered.size(), 1);
    EXPECT_EQ(hovered.first().first().toString(), QString());
}

TEST_F(Controls, AContextMenuIsAskedForWhereTheHotSpotIs)
{
    showHandle(u"F-16 Block 50"_s);
    open();
    QSignalSpy wanted(picture, &ControlsPicture::menuWanted);
    QAbstractButton *spot = picture->spot(u"HAT_0");
    QContextMenuEvent event(QContextMenuEvent::Mouse, { 4, 5 }, spot->mapToGlobal(QPoint(4, 5)));
    QApplication::sendEvent(spot, &event);
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_EQ(wanted.first().at(0).toString(), u"HAT_0");
    EXPECT_EQ(wanted.first().at(1).toPoint(), spot->mapToGlobal(QPoint(4, 5)));
}

TEST_F(Controls, FocusAndMarksAreSeenOnThePicture)
{
    showHandle(u"F-16 Block 50"_s);
    pictureOfSize({ 320, 420 });
    open();
    before->setFocus();
    QAbstractButton *spot = picture->spot(u"BTN_0");
    const QRect place = spot->geometry();
    const QImage plain = grabbed(picture);
    spot->setFocus();
    const QImage focused = grabbed(picture);
    before->setFocus();
    picture->highlight({ u"BTN_0"_s });
    const QImage marked = grabbed(picture);
    picture->highlight({});
    EXPECT_NE(focused.copy(place), plain.copy(place));
    EXPECT_NE(marked.copy(place), plain.copy(place));
    EXPECT_NE(marked.copy(place), focused.copy(place));
    EXPECT_EQ(grabbed(picture), plain);
    // Nothing else changes.
    QImage rest = focused;
    QPainter painter(&rest);
    painter.drawImage(place, plain.copy(place));
    painter.end();
    EXPECT_EQ(rest, plain);
}

TEST_F(Controls, AMarkSurvivesTheChangeOfHandles)
{
    showHandle(u"Straight grip"_s);
    picture->highlight({ u"BTN_3"_s }); // which this handle lacks
    showHandle(u"F-16 Block 50"_s);
    pictureOfSize({ 320, 420 });
    open();
    before->setFocus();
    const QImage marked = grabbed(picture);
    picture->highlight({});
    EXPECT_NE(grabbed(picture), marked);
}

TEST_F(Controls, WithoutItsPictureAHandleStillHasItsHotSpots)
{
    HandleFile broken = handle(u"F-16 Block 50"_s);
    broken.picture = u"Gone.bmp"_s;
    const auto shown = picture->showHandle(folder.path(), broken);
    ASSERT_FALSE(shown);
    EXPECT_EQ(shown.error().path, folder.file(u"Gone.bmp"_s));
    open();
    const QSignalSpy clicked(picture, &ControlsPicture::clicked);
    for (const HotSpot &each : broken.spots) {
        ASSERT_TRUE(picture->spot(each.id)) << each.id.toStdString();
        EXPECT_TRUE(picture->rect().contains(picture->spot(each.id)->geometry()));
        QTest::mouseClick(picture->spot(each.id), Qt::LeftButton);
    }
    EXPECT_EQ(clicked.size(), 9);
}

TEST_F(Controls, AHotSpotOutsideOfThePictureIsHidden)
{
    HandleFile odd = handle(u"F-16 Block 50"_s);
    odd.spots = { { u"BTN_0"_s, QRect(5000, 5000, 40, 40) },
                  { u"BTN_1"_s, QRect(-20, -20, 50, 50) },
                  { u"BTN_2"_s, QRect(10, 10, 0, 30) } };
    ASSERT_TRUE(picture->showHandle(folder.path(), odd));
    pictureOfSize({ 320, 420 });
    open();
    EXPECT_EQ(picture->spot(u"BTN_0"), nullptr);
    EXPECT_EQ(picture->spot(u"BTN_2"), nullptr);
    EXPECT_EQ(picture->spot(u"BTN_1")->geometry(), QRect(0, 0, 30, 30));
    EXPECT_EQ(tabOrder(), u"BTN_1");
}

TEST_F(Controls, APilotsOwnThrottleHasTheHotSpotsInProportion)
{
    QImage own(760, 840, QImage::Format_RGB32);
    own.fill(Qt::darkGreen);
    ASSERT_TRUE(own.save(folder.file(u"Throttle.bmp"_s)));
    ASSERT_TRUE(picture->showDrawing(folder.path(), u"Throttle.bmp"_s));
    pictureOfSize({ 380, 420 });
    open();
    const auto drawing = drawingNamed(u"Throttle");
    for (const HotSpot &each : hotSpotsOn(*drawing, drawing->size)) {
        EXPECT_EQ(picture->spot(each.id)->geometry(), each.place);
    }
    EXPECT_EQ(grabbed(picture).pixelColor(5, 5), QColor(Qt::darkGreen));
}

TEST_F(Controls, ThereMayBeNothingToShow)
{
    open();
    EXPECT_EQ(tabOrder(), QString());
    EXPECT_FALSE(picture->showDrawing(folder.path(), u"Unknown.bmp"_s));
    EXPECT_EQ(picture->spot(u"BTN_0"), nullptr);
    EXPECT_EQ(picture->onWidget(QRectF(1, 2, 3, 4)), QRectF());
    grabbed(picture);
}
