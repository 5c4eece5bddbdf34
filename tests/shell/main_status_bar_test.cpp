// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/main_status_bar.h"

#include "platform/core/units.h"
#include "settings/shared_settings.h"
#include "tests/support/shell_world.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

using namespace zeph;

namespace {

constexpr int barWidth = 900;

struct StatusBarWindow : test::ShellWorld {
    QWidget window;
    std::unique_ptr<MainStatusBar> bar;

    StatusBarWindow()
    {
        settings.of<SharedSettings>().PilotCallsign = u"Goose"_s;
        bar = std::make_unique<MainStatusBar>(context(), &window);
        window.resize(barWidth, 40);
        bar->resize(barWidth, 24);
        window.show();
    }

    QLabel *panel(int number) const
    {
        return bar->findChild<QLabel *>(u"Panel_"_s + QString::number(number));
    }
    void moveTo(int x) const { QTest::mouseMove(bar.get(), QPoint(x, 10)); }
};

} // namespace

TEST_F(StatusBarWindow, ShowsWhatAnyRoomWrites)
{
    status.setText(u"Opening joystick file"_s);
    status.setLine(12);
    status.setSaved(2, u"My.tmj is saved"_s);
    EXPECT_EQ(panel(1)->text(), u"Opening joystick file");
    EXPECT_EQ(panel(3)->text(), u"Line no: 12");
    EXPECT_EQ(panel(4)->toolTip(), u"My.tmj is saved");
    EXPECT_FALSE(panel(4)->pixmap().isNull());
}

namespace {

/// What a panel said each time it was painted.
class PaintedTexts : public QObject
{
public:
    explicit PaintedTexts(QLabel *panel) : m_panel(panel) { panel->installEventFilter(this); }
    QStringList texts;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            texts.append(m_panel->text());
        }
        return false;
    }

private:
    QLabel *m_panel;
};

} // namespace

TEST_F(StatusBarWindow, ATextThatIsWantedNowIsPaintedWithoutAnEventBeingHandled)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::processEvents();
    PaintedTexts painted(panel(1));
    bool handled = false;
    QMetaObject::invokeMethod(
        &window, [&handled] { handled = true; }, Qt::QueuedConnection);
    status.setTextNow(u"Applying colour to BTN statements ..."_s);
    status.setTextNow(u"Applying colour to Rem comments ..."_s);
    const QStringList expected = { u"Applying colour to BTN statements ..."_s,
                                   u"Applying colour to Rem comments ..."_s };
    EXPECT_EQ(painted.texts, expected);
    EXPECT_FALSE(handled);
}

TEST_F(StatusBarWindow, TellsWhatTheMacroListHoldsOverTheMessage)
{
    status.setTextTooltip(u"Contains 2 macros and "_s);
    EXPECT_EQ(panel(1)->toolTip(), u"Contains 2 macros and ");
    const QPoint at = panel(1)->geometry().center();
    QHelpEvent asks(QEvent::ToolTip, at, bar->mapToGlobal(at));
    QApplication::sendEvent(bar.get(), &asks);
    EXPECT_EQ(QToolTip::text(), u"Contains 2 macros and ");
}

TEST_F(StatusBarWindow, ChangesItsPictures)
{
    const QImage off = panel(2)->pixmap().toImage();
    status.setModePicture(2);
    EXPECT_NE(panel(2)->pixmap().toImage(), off);
    const QImage empty = panel(4)->pixmap().toImage();
    status.setSaved(2, {});
    EXPECT_NE(panel(4)->pixmap().toImage(), empty);
}

TEST_F(StatusBarWindow, TheOtherFilesPictureIsThereWhileThatFileIsShown)
{
    EXPECT_FALSE(panel(5)->isVisible());
    status.setOtherSaved(3, u"My.tmm has been modified and isn't saved"_s);
    EXPECT_TRUE(panel(5)->isVisible());
    EXPECT_EQ(panel(5)->toolTip(), u"My.tmm has been modified and isn't saved");
    status.setOtherSaved(0, {});
    EXPECT_FALSE(panel(5)->isVisible());
}

TEST_F(StatusBarWindow, AnswersTheMouse)
{
    moveTo(50);
    EXPECT_EQ(status.text(), u"Hi there Goose, I'm the status bar");
    moveTo(pixelsFromTwips(6100));
    EXPECT_TRUE(status.text().startsWith(u"Hey Goose, what say you"));
    moveTo(panel(2)->x() + 2);
    EXPECT_TRUE(status.text().startsWith(u" Cougar mode selector is off."));
}

TEST_F(StatusBarWindow, WantsTheModeTooltipWithTheSelectorOn)
{
    QSignalSpy wanted(bar.get(), &MainStatusBar::modeTooltipWanted);
    status.setModePicture(2);
    moveTo(50);
    EXPECT_EQ(wanted.count(), 0);
    moveTo(panel(2)->x() + 2);
    EXPECT_EQ(wanted.count(), 1);
}

TEST_F(StatusBarWindow, PressesAtItsLeftEndMeanColourOrCompile)
{
    QList<StatusPress> presses;
    QObject::connect(bar.get(), &MainStatusBar::endPressed, &window,
                     [&](StatusPress press) { presses.append(press); });
    QTest::mousePress(bar.get(), Qt::LeftButton, {}, QPoint(20, 10));
    QTest::mousePress(bar.get(), Qt::RightButton, {}, QPoint(20, 10));
    QTest::mousePress(bar.get(), Qt::MiddleButton, {}, QPoint(20, 10));
    QTest::mousePress(bar.get(), Qt::LeftButton, {}, QPoint(22, 10));
    EXPECT_EQ(presses, QList({ StatusPress::ColourAndSave, StatusPress::Compile }));
}

TEST_F(StatusBarWindow, ClicksOnTheModePictureAreTold)
{
    QSignalSpy clicks(bar.get(), &MainStatusBar::modePanelClicked);
    QTest::mouseClick(bar.get(), Qt::RightButton, {}, QPoint(panel(2)->x() + 2, 10));
    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].value<Qt::MouseButton>(), Qt::RightButton);
    QTest::mouseClick(bar.get(), Qt::LeftButton, {}, QPoint(panel(3)->x() + 2, 10));
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(StatusBarWindow, ALongMessageDoesNotWidenTheWindow)
{
    const int before = bar->minimumSizeHint().width();
    status.setText(QString(500, u'W'));
    EXPECT_EQ(bar->minimumSizeHint().width(), before);
}
