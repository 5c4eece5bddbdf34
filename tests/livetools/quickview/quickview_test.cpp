// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/quickview.h"

#include "documents/documents.h"
#include "livetools/quickview/quick_view_picture.h"
#include "livetools/quickview/quick_view_settings.h"
#include "livetools/quickview/sender_search.h"
#include "livetools/quickview/shown_column.h"
#include "livetools/quickview/statement_label.h"
#include "menus/menu_actions.h"
#include "platform/core/profile_file.h"
#include "platform/fakes/fake_joystick.h"
#include "settings/settings_files.h"
#include "tests/support/fixture.h"
#include "toolchain/toolchain_settings.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolBar>

using namespace zeph;

namespace {

constexpr quint32 dogfightUp = 1U << 24;
constexpr quint32 dogfightDown = 1U << 25;
constexpr quint32 s3 = 1U << 2;

struct QuickViewTest : test::WorldTest {
    Documents documents{ context() };
    MacroTable macros;
    FakeJoystick stick;
    QPointer<QuickView> view;
    int requests = 0;
    int jumps = 0;

    void SetUp() override
    {
        macros = extractMacros({ u"Gear_Up = g"_s, u"Brakes = SHF b"_s });
        report("OKAY", 0);
        setText(u"BTN S1 /U /I Gear_Up /O Brakes\n"
                "/M c\n"
                "/D d\n"
                "BTN T3 e\n"
                "USE HAT1 AS POV\n"
                "RNG 5 2 (0 50 100) Up_it Down_it\n"_s);
    }
    void TearDown() override { delete view; }

    void setText(const QString &text)
    {
        documents.joystick().setText(text);
        documents.joystick().rename(folder.file(u"Falcon.tmj"_s));
        documents.joystick().tellReplaced(Document::How::Loaded);
    }
    void edit(const QString &text)
    {
        Change change(documents.joystick());
        documents.joystick().replaceWhole(text);
        change.commit();
    }
    void report(const QByteArray &modeStatus, int buttons) const
    {
        folder.write(u"HOTAS.ini"_s,
                     "[TMMODE]\r\nStatus=" + modeStatus
                         + "\r\nButtons=" + QByteArray::number(buttons) + "\r\n");
    }
    void open()
    {
        view = new QuickView(context(), { documents, macros, stick });
        QObject::connect(view, &QuickView::windowsModeWanted, view, [this] { ++requests; });
        QObject::connect(view, &QuickView::editorWanted, view, [this] { ++jumps; });
        ASSERT_TRUE(view->Form_Load());
        view->show();
        QCoreApplication::processEvents();
    }
    void openManually()
    {
        folder.write(u"Zeph.ini"_s, "[QuickView]\r\nDisableJoystick=1\r\n");
        open();
    }
    StatementLabel *label(const QString &control) const
    {
        return view->findChild<StatementLabel *>(u"Label1_"_s
                                                 + QString::number(rowOfControl(control) - 1));
    }
    QString text(const QString &control) const { return label(control)->text(); }
    QPushButton *box(int index) const
    {
        return view->findChild<QPushButton *>(u"Label3_"_s + QString::number(index));
    }
    QTimer *timer() const { return view->findChild<QTimer *>(u"JoyTimer"_s); }
    QAction *entry(QStringView name) const { return view->actions().action(name); }
    QString windowStatus() const
    {
        return view->findChild<QStatusBar *>(u"StatusBar1"_s)->currentMessage();
    }
    /// The controls whose labels are bold.
    QStringList bold() const
    {
        QStringList names;
        for (int row = 1; row <= rowCount; ++row) {
            const auto *each = view->findChild<QLabel *>(u"Label1_"_s + QString::number(row - 1));
            if (each && each->font().bold()) {
                names.append(controlName(row).toString());
            }
        }
        return names;
    }
    void read(quint32 buttons, quint32 pov = 65535)
    {
        stick.reading = { Joystick::answered, buttons, pov };
        view->JoyTimer_Timer();
    }
};

const QStringList atRest = { u"H1M"_s, u"H2M"_s, u"H3M"_s, u"H4M"_s };

} // namespace

TEST_F(QuickViewTest, EachControlHasALabelAndRowsElevenToFourteenHaveNone)
{
    openManually();
    for (int row = 1; row <= rowCount; ++row) {
        const auto *found = view->findChild<QLabel *>(u"Label1_"_s + QString::number(row - 1));
        EXPECT_EQ(found == nullptr, row >= 11 && row <= 14) << row;
    }
}

TEST_F(QuickViewTest, ShowsTheFilesNameAndThatItIsReady)
{
    openManually();
    EXPECT_EQ(view->findChild<QLabel *>(u"LabelTitle"_s)->text(), documents.joystick().caption());
    EXPECT_EQ(status.text(), u" Quick View ready");
    EXPECT_EQ(windowStatus(), u"Quick View ready");
}

TEST_F(QuickViewTest, WithTheJoystickDisabledFromTheStartItShowsUpAndOut)
{
    openManually();
    EXPECT_EQ(view->shown().column(), 2);
    EXPECT_EQ(text(u"S1"_s), u"Brakes");
    EXPECT_TRUE(bold().isEmpty());
    EXPECT_FALSE(timer()->isActive());
    EXPECT_TRUE(stick.asked.isEmpty());
    EXPECT_EQ(requests, 0);
}

TEST_F(QuickViewTest, AClickOnABoxSelectsThePosition)
{
    openManually();
    QTest::mouseClick(box(3), Qt::LeftButton);
    EXPECT_EQ(text(u"S1"_s), u"Gear Up");
    QTest::mouseClick(box(1), Qt::LeftButton);
    EXPECT_EQ(text(u"S1"_s), u"c");
    QTest::mouseClick(box(2), Qt::LeftButton);
    EXPECT_EQ(text(u"S1"_s), u"d");
    EXPECT_EQ(view->shown().column(), 5);
    QTest::mouseClick(box(4), Qt::LeftButton);
    QTest::mouseClick(box(0), Qt::LeftButton);
    EXPECT_EQ(text(u"S1"_s), u"Brakes");
}

TEST_F(QuickViewTest, TheBoxesInForceAreColoured)
{
    openManually();
    const QColor green(0x00, 0xC0, 0x00);
    const QColor red(0xFF, 0x80, 0x80);
    const auto colour = [this](int index) {
        return box(index)->palette().color(QPalette::Button);
    };
    EXPECT_EQ(colour(0), green);
    EXPECT_EQ(colour(4), red);
    QTest::mouseClick(box(2), Qt::LeftButton);
    QTest::mouseClick(box(3), Qt::LeftButton);
    EXPECT_NE(colour(0), green);
    EXPECT_EQ(colour(2), green);
    EXPECT_EQ(colour(3), red);
    EXPECT_NE(colour(4), red);
}

TEST_F(QuickViewTest, ThePositionIsSelectedByKeysToo)
{
    openManually();
    entry(u"mnuPosition_1")->trigger();
    entry(u"mnuPosition_3")->trigger();
    EXPECT_EQ(view->shown().column(), 3);
    EXPECT_TRUE(entry(u"mnuPosition_1")->isChecked());
    EXPECT_FALSE(entry(u"mnuPosition_0")->isChecked());
    EXPECT_TRUE(entry(u"mnuPosition_3")->isChecked());
    EXPECT_FALSE(entry(u"mnuPosition_4")->isChecked());
}

TEST_F(QuickViewTest, AControlWithoutTextIsDisabled)
{
    openManually();
    EXPECT_FALSE(label(u"S2"_s)->isEnabled());
    EXPECT_EQ(text(u"S2"_s), QString());
    EXPECT_TRUE(label(u"S1"_s)->isEnabled());
}

TEST_F(QuickViewTest, UnderscoresAndRotariesAreShownAsTheOptionsSay)
{
    openManually();
    EXPECT_EQ(text(u"RNG"_s), u"Up it Down it");
    entry(u"mnuOptionsRotaryStrip")->trigger();
    EXPECT_EQ(text(u"RNG"_s), u"5 2 (0 50 100) Up it Down it");
    entry(u"mnuOptionsUnderscores")->trigger();
    EXPECT_EQ(text(u"RNG"_s), u"5 2 (0 50 100) Up_it Down_it");
    const ProfileFile store(paths.iniPath);
    EXPECT_EQ(store.text(u"QuickView", u"Underscores"), u"0");
    EXPECT_EQ(store.text(u"QuickView", u"RotaryStrip"), u"0");
}

TEST_F(QuickViewTest, KeysAreShownForMacrosAndTheTipSaysBoth)
{
    openManually();
    entry(u"mnuOptionsShowKeys")->trigger();
    EXPECT_EQ(text(u"S1"_s), u"SHF b");
    EXPECT_TRUE(label(u"S1"_s)->toolTip().contains(u"Brakes"));
    EXPECT_TRUE(label(u"S1"_s)->toolTip().contains(u"SHF b"));
    macros = extractMacros({ u"Brakes = CTL z"_s });
    view->macrosChanged();
    EXPECT_EQ(text(u"S1"_s), u"CTL z");
}

TEST_F(QuickViewTest, AHatAtRestShowsItsMiddleBold)
{
    open();
    EXPECT_EQ(bold(), atRest);
    EXPECT_TRUE(timer()->isActive());
    EXPECT_EQ(timer()->interval(), 100);
}

TEST_F(QuickViewTest, APressedControlIsBoldAndNoOther)
{
    open();
    read(1U << 4);
    EXPECT_EQ(bold(), (QStringList{ u"S1"_s } + atRest));
    read(0);
    EXPECT_EQ(bold(), atRest);
}

TEST_F(QuickViewTest, TheDogfightSwitchAndS3ChangeThePicture)
{
    open();
    read(dogfightUp | s3);
    EXPECT_EQ(text(u"S1"_s), u"Gear Up");
    read(dogfightUp);
    EXPECT_EQ(text(u"S1"_s), u"Brakes");
    read(0);
    EXPECT_EQ(text(u"S1"_s), u"c");
    read(dogfightDown);
    EXPECT_EQ(text(u"S1"_s), u"d");
    EXPECT_EQ(view->shown().column(), 6);
}

TEST_F(QuickViewTest, ATickReadsTheControllerOfTheSettings)
{
    settings.of<ToolchainSettings>().JoyIDnumber = 3;
    open();
    stick.asked.clear();
    view->JoyTimer_Timer();
    EXPECT_EQ(stick.asked, QList<int>{ 3 });
}

TEST_F(QuickViewTest, AJoystickThatIsPulledOutLeavesManualModeWithoutABox)
{
    open();
    read(dogfightDown | 1U << 4);
    stick.reading.result = Joystick::unplugged;
    view->JoyTimer_Timer();
    EXPECT_EQ(status.text(), u"No joystick detected on ID 1. Switching to manual mode");
    EXPECT_EQ(windowStatus(), status.text());
    EXPECT_TRUE(entry(u"mnuOptionsDisableJoystick")->isChecked());
    EXPECT_FALSE(timer()->isActive());
    EXPECT_EQ(view->shown().column(), 2);
    EXPECT_TRUE(bold().isEmpty());
    EXPECT_TRUE(boxTitles().isEmpty());
}

TEST_F(QuickViewTest, AJoystickThatIsNotThereIsToldInOtherWords)
{
    stick.reading.result = Joystick::badId;
    open();
    EXPECT_EQ(status.text(), u"I'm not detecting the Joystick on ID 1. Switching to manual mode");
}

TEST_F(QuickViewTest, ALostJoystickIsLookedForAgainTheNextTime)
{
    stick.reading.result = Joystick::unplugged;
    open();
    view->close();
    EXPECT_NE(ProfileFile(paths.iniPath).text(u"QuickView", u"DisableJoystick"), u"1");
}

TEST_F(QuickViewTest, ManualModeIsSwitchedOnAndOffByItsEntry)
{
    open();
    read(dogfightDown | 1U << 4);
    entry(u"mnuOptionsDisableJoystick")->trigger();
    EXPECT_FALSE(timer()->isActive());
    EXPECT_TRUE(bold().isEmpty());
    EXPECT_EQ(ProfileFile(paths.iniPath).text(u"QuickView", u"DisableJoystick"), u"1");
    entry(u"mnuOptionsDisableJoystick")->trigger();
    EXPECT_TRUE(timer()->isActive());
    // The dogfight switch's positions are the buttons T7 and T8.
    EXPECT_EQ(bold(), (QStringList{ u"T8"_s, u"S1"_s } + atRest));
    EXPECT_EQ(ProfileFile(paths.iniPath).text(u"QuickView", u"DisableJoystick"), u"0");
}

TEST_F(QuickViewTest, ARequestThatFailsIsToldAndLeavesManualMode)
{
    report("OKAY", 1);
    dialogs.answer(u"Your Cougar needs a slap"_s, BoxButton::Ok);
    open();
    EXPECT_TRUE(entry(u"mnuOptionsDisableJoystick")->isChecked());
    EXPECT_EQ(view->shown().column(), 2);
    EXPECT_FALSE(timer()->isActive());
    EXPECT_EQ(boxTitles(), QStringList{ u"Your Cougar needs a slap"_s });
}

TEST_F(QuickViewTest, NoTickActsDuringTheModeCheck)
{
    folder.write(u"HOTASConfig.exe"_s, "MZ");
    settings.of<ToolchainSettings>().CheckForCompletionTime = 5;
    report("OKAY", 1);
    open();
    EXPECT_EQ(requests, 1);
    view->JoyTimer_Timer();
    EXPECT_TRUE(stick.asked.isEmpty());
    report("OKAY", 0);
    QTRY_VERIFY(timer()->isActive());
    EXPECT_FALSE(stick.asked.isEmpty());
    EXPECT_EQ(bold(), atRest);
}

TEST_F(QuickViewTest, AfterTheModeCheckItIsReadyAgain)
{
    folder.write(u"HOTASConfig.exe"_s, "MZ");
    settings.of<ToolchainSettings>().CheckForCompletionTime = 5;
    report("OKAY", 1);
    open();
    status.setText(u" Changing to Windows buttons mode - hold on ..."_s);
    report("OKAY", 0);
    QTRY_COMPARE(status.text(), u" Quick View ready"_s);
}

TEST_F(QuickViewTest, ARotaryWithoutMacrosHasAStatementThoughItsLabelIsEmpty)
{
    setText(u"RNG 4 3\n"_s);
    openManually();
    EXPECT_EQ(text(u"RNG"_s), QString());
    EXPECT_TRUE(label(u"RNG"_s)->isEnabled());
    entry(u"mnuOptionsRotaryStrip")->trigger();
    EXPECT_EQ(text(u"RNG"_s), u"4 3");
    entry(u"mnuOptionsRotaryStrip")->trigger();
    QTest::mouseDClick(label(u"RNG"_s), Qt::LeftButton);
    EXPECT_EQ(jumps, 1);
}

TEST_F(QuickViewTest, ATipIsNoMarkUpAndIsBrokenIntoLines)
{
    setText(u"BTN S1 <b> Fire\n"_s);
    openManually();
    const QString tip = label(u"S1"_s)->toolTip();
    EXPECT_TRUE(tip.contains(u"&lt;b&gt; Fire")) << tip.toStdString();
    EXPECT_TRUE(Qt::mightBeRichText(tip)) << "plain tips are one line however long";
    EXPECT_TRUE(label(u"S2"_s)->toolTip().isEmpty());
}

TEST_F(QuickViewTest, ANameThatIsTooLongForTheTitleIsWholeInItsTip)
{
    openManually();
    const QString name = QString(120, u'x') + u".tmj"_s;
    documents.joystick().rename(folder.file(name));
    const auto *title = view->findChild<QLabel *>(u"LabelTitle"_s);
    EXPECT_EQ(title->text(), documents.joystick().caption());
    EXPECT_TRUE(title->toolTip().contains(name));
}

TEST_F(QuickViewTest, TheRadioSwitchAndMouseTypesAreShown)
{
    setText(u"USE RADIOSWITCH AS COMMS\nUSE MTYPE A2\n"_s);
    openManually();
    EXPECT_EQ(text(u"T2"_s), u"COMMS");
    EXPECT_EQ(text(u"T6"_s), u"Left mouse button");
    EXPECT_EQ(view->findChild<QLabel *>(u"LabelBTN_4"_s)->text(), u"  Mouse");
}

TEST_F(QuickViewTest, AnotherFileIsShownAtOnce)
{
    openManually();
    setText(u"BTN S2 x\n"_s);
    EXPECT_EQ(text(u"S2"_s), u"x");
    EXPECT_EQ(text(u"S1"_s), QString());
}

TEST_F(QuickViewTest, TypingIsShownHalfASecondLater)
{
    openManually();
    edit(u"BTN S1 typed\n"_s);
    EXPECT_EQ(text(u"S1"_s), u"Brakes");
    QTest::qWait(300);
    EXPECT_EQ(text(u"S1"_s), u"Brakes");
    QTRY_COMPARE(text(u"S1"_s), u"typed"_s);
}

TEST_F(QuickViewTest, SavingShowsWhatWasTypedAtOnceAndSaysNothing)
{
    openManually();
    edit(u"BTN S1 typed\n"_s);
    status.setText(u"File saved"_s);
    documents.joystick().tellWritten("BTN S1 typed\r\n", Document::Save::Asked);
    EXPECT_EQ(text(u"S1"_s), u"typed");
    EXPECT_EQ(status.text(), u"File saved");
}

TEST_F(QuickViewTest, ADoubleClickOrReturnGoesToTheStatement)
{
    openManually();
    documents.select(DocumentKind::Macro);
    QTest::mouseDClick(label(u"T3"_s), Qt::LeftButton);
    EXPECT_EQ(jumps, 1);
    EXPECT_EQ(&documents.selected(), &documents.joystick());
    EXPECT_EQ(documents.joystick().caretLine(), 4);
    entry(u"mnuPosition_2")->trigger();
    label(u"S1"_s)->setFocus();
    QTest::keyClick(label(u"S1"_s), Qt::Key_Return);
    EXPECT_EQ(jumps, 2);
    EXPECT_EQ(documents.joystick().selStart(), 0);
    EXPECT_EQ(documents.joystick().selLength(), 30);
}

TEST_F(QuickViewTest, TheEntryGoesToTheStatementOfTheFocusedLabel)
{
    openManually();
    view->activateWindow();
    EXPECT_FALSE(entry(u"mnuGoToStatement")->isEnabled());
    label(u"T3"_s)->setFocus();
    ASSERT_TRUE(entry(u"mnuGoToStatement")->isEnabled());
    entry(u"mnuGoToStatement")->trigger();
    EXPECT_EQ(jumps, 1);
    EXPECT_EQ(documents.joystick().caretLine(), 4);
}

TEST_F(QuickViewTest, TheFocusComesBackToALabelThatHadNoStatementMeanwhile)
{
    setText(u"BTN S2 /U x\nBTN S3 y\n"_s);
    openManually();
    view->activateWindow();
    label(u"S2"_s)->setFocus();
    entry(u"mnuPosition_1")->trigger();
    ASSERT_FALSE(label(u"S2"_s)->isEnabled());
    EXPECT_NE(view->focusWidget(), label(u"S3"_s));
    entry(u"mnuGoToStatement")->trigger();
    EXPECT_EQ(documents.joystick().caretLine(), 1);
    entry(u"mnuPosition_0")->trigger();
    EXPECT_EQ(view->focusWidget(), label(u"S2"_s));
    entry(u"mnuPosition_1")->trigger();
    label(u"S3"_s)->setFocus();
    entry(u"mnuPosition_0")->trigger();
    EXPECT_EQ(view->focusWidget(), label(u"S3"_s)) << "the pilot has moved on";
}

TEST_F(QuickViewTest, AJumpAfterTypingGoesToTheLineAsItIsNow)
{
    openManually();
    edit(u"\n\n\nBTN S1 Brakes\n"_s);
    QTest::mouseDClick(label(u"S1"_s), Qt::LeftButton);
    EXPECT_EQ(documents.joystick().caretLine(), 4);
}

TEST_F(QuickViewTest, TheCaretMarksItsControl)
{
    openManually();
    documents.joystick().setCaret(40, 40);
    EXPECT_FALSE(label(u"T3"_s)->marks().hasCaret);
    const int t3 = int(documents.joystick().text().indexOf(u"BTN T3"_s));
    documents.joystick().setCaret(t3, t3);
    EXPECT_TRUE(label(u"T3"_s)->marks().hasCaret);
    EXPECT_FALSE(label(u"S1"_s)->marks().hasCaret);
    documents.joystick().setCaret(2, 2);
    EXPECT_FALSE(label(u"T3"_s)->marks().hasCaret);
    EXPECT_TRUE(label(u"S1"_s)->marks().hasCaret);
}

TEST_F(QuickViewTest, WhereTheLanguageReadsOtherwiseThereIsAMarkAndTheTipSaysSo)
{
    setText(u"BTN S1 /M b\n/D c\nBTN S2 x\n"_s);
    openManually();
    EXPECT_TRUE(label(u"S1"_s)->marks().isReadOtherwise);
    EXPECT_FALSE(label(u"S2"_s)->marks().isReadOtherwise);
    EXPECT_EQ(label(u"S1"_s)->toolTip().count(u'\n'), 1);
    EXPECT_FALSE(text(u"S1"_s).isEmpty());
}

TEST_F(QuickViewTest, WhatSendsAKeyIsMarkedHereAndElsewhere)
{
    openManually();
    entry(u"mnuFindSender")->trigger();
    auto *search = view->findChild<SenderSearch *>();
    ASSERT_TRUE(search->isVisible());
    auto *field = search->findChild<QLineEdit *>(u"TextSought"_s);
    QTest::keyClicks(field, u"g"_s);
    EXPECT_EQ(label(u"S1"_s)->marks().sends, SendsSought::Elsewhere);
    EXPECT_EQ(label(u"T3"_s)->marks().sends, SendsSought::No);
    EXPECT_TRUE(label(u"S1"_s)->toolTip().contains(u"/U /I"));
    entry(u"mnuPosition_3")->trigger();
    EXPECT_EQ(label(u"S1"_s)->marks().sends, SendsSought::Here);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(label(u"S1"_s)->marks().sends, SendsSought::No);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(search->isVisible());
    EXPECT_FALSE(entry(u"mnuFindSender")->isChecked());
    EXPECT_TRUE(view->isVisible());
}

TEST_F(QuickViewTest, CoverageOpensAndLeadsToStatements)
{
    openManually();
    entry(u"mnuCoverage")->trigger();
    auto *coverage = view->findChild<QWidget *>(u"CoverageWindow"_s);
    ASSERT_TRUE(coverage);
    EXPECT_TRUE(coverage->isVisible());
    coverage->close();
    entry(u"mnuCoverage")->trigger();
    EXPECT_EQ(view->findChildren<QWidget *>(u"CoverageWindow"_s).size(), 1);
}

TEST_F(QuickViewTest, ACellOfTheCoverageLeadsToItsStatement)
{
    openManually();
    entry(u"mnuCoverage")->trigger();
    auto *table = view->findChild<QTableView *>(u"TableCoverage"_s);
    ASSERT_TRUE(table);
    const QModelIndex cell = table->model()->index(2, 0);
    ASSERT_TRUE(cell.data().toString().endsWith(u'e')) << "T3";
    table->scrollTo(cell);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(cell).center());
    EXPECT_EQ(jumps, 1);
    EXPECT_EQ(documents.joystick().caretLine(), 4);
}

TEST_F(QuickViewTest, ToolbarsStayHiddenWhenAskedFor)
{
    openManually();
    entry(u"mnuHideAllToolBars")->trigger();
    EXPECT_FALSE(view->findChild<QToolBar *>(u"Toolbar1"_s)->isVisible());
    EXPECT_EQ(settingsFilesOf(paths).layoutsIni.text(u"Quick View", u"HideAllToolBars"), u"1");
    delete view;
    open();
    EXPECT_FALSE(view->findChild<QToolBar *>(u"Toolbar1"_s)->isVisible());
}

TEST_F(QuickViewTest, ASmallWindowScrollsAndALargeOneScales)
{
    openManually();
    const auto *picture = view->findChild<QuickViewPicture *>();
    view->resize(500, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(picture->size(), QSize(964, 634));
    view->resize(2000, 1500);
    QCoreApplication::processEvents();
    EXPECT_GT(picture->width(), 1900);
    EXPECT_GT(label(u"S1"_s)->font().pixelSize(), 20);
}

TEST_F(QuickViewTest, ALargeValueOfDisableJoystickMeansManual)
{
    folder.write(u"Zeph.ini"_s, "[QuickView]\r\nDisableJoystick=65535\r\n");
    open();
    EXPECT_TRUE(entry(u"mnuOptionsDisableJoystick")->isChecked());
}
