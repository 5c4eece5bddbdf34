// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/keytestform.h"

#include "livetools/key_tester_settings.h"
#include "platform/core/profile_file.h"
#include "tests/support/fixture.h"
#include "toolchain/toolchain_settings.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

using namespace zeph;

namespace {

class KeyTester : public test::WorldTest
{
public:
    QStringList asked;
    bool hasDirectX = true;
    QAction emptyBuffers;
    QAction clearMemory;
    QAction directX;
    QWidget *owner = nullptr;
    QPointer<KeyTestForm> form;

    void SetUp() override
    {
        folder.write(u"KeyCodes.txt"_s,
                     "9,Tab\r\n13,Enter\r\n20,Caps Lock\r\n32,Space\r\n37,Left Arrow\r\n112,F1\r\n"
                     "121,F10\r\n93,Menu\r\n27,Escape\r\n");
        report("OKAY", 1);
        noteRuns(emptyBuffers, u"memory 0"_s);
        noteRuns(clearMemory, u"memory 1"_s);
        noteRuns(directX, u"directx"_s);
    }
    void TearDown() override { delete form; }
    void report(const QByteArray &modeStatus, int buttons) const
    {
        folder.write(u"HOTAS.ini"_s,
                     "[TMMODE]\r\nStatus=" + modeStatus
                         + "\r\nAxes=1\r\nButtons=" + QByteArray::number(buttons) + "\r\n");
    }
    void noteRuns(QAction &entry, const QString &words)
    {
        QObject::connect(&entry, &QAction::triggered, &entry,
                         [this, words] { asked.append(words); });
    }
    bool open()
    {
        directX.setVisible(hasDirectX);
        form = new KeyTestForm(context(),
                               KeyTestEntries{ { &emptyBuffers, &clearMemory }, &directX }, owner);
        QObject::connect(form, &KeyTestForm::buttonsModeWanted, form, [this](bool programmed) {
            asked.append(programmed ? u"programmed"_s : u"windows"_s);
        });
        QObject::connect(form, &KeyTestForm::emergencyOff, form,
                         [this] { asked.append(u"emergency"_s); });
        form->setAttribute(Qt::WA_DeleteOnClose);
        const bool loaded = form->Form_Load();
        if (loaded) {
            form->show();
            form->activateWindow();
            form->setFocus();
            QCoreApplication::processEvents();
        }
        return loaded;
    }
    template <class T> T *child(const QString &name) const { return form->findChild<T *>(name); }
    QString keys() const { return child<QTextEdit>(u"RTFKeysText"_s)->toPlainText(); }
    QString events() const { return child<QTextEdit>(u"RTFKeysDownText"_s)->toPlainText(); }
    QAction *action(const QString &name) const
    {
        QAction *found = child<QAction>(name);
        for (const QMenu *menu : form->findChildren<QMenu *>()) {
            found = menu->menuAction()->objectName() == name ? menu->menuAction() : found;
        }
        EXPECT_TRUE(found) << name.toStdString();
        return found;
    }
    void choose(const QString &name) const { action(name)->trigger(); }
    QColor colourOf(const QString &name, QPalette::ColorRole role = QPalette::Window) const
    {
        return child<QWidget>(name)->palette().color(role);
    }
    void stroke(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString &text = {}) const
    {
        QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
        QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
        QCoreApplication::sendEvent(form, &down);
        if (form) {
            QCoreApplication::sendEvent(form, &up);
        }
    }
    QString stored(const QString &key) const
    {
        return ProfileFile(paths.iniPath).text(u"Key Tester", key, u"absent"_s);
    }
};

const QColor orange(0xFF, 0xC0, 0x80);

} // namespace

TEST_F(KeyTester, AsksForProgrammedModeWhenItOpens)
{
    ASSERT_TRUE(open());
    EXPECT_EQ(asked, QStringList{ u"programmed"_s });
    EXPECT_FALSE(child<QPushButton>(u"LBL_ModeWarning"_s)->isVisible());
    EXPECT_EQ(keys(), QString());
    EXPECT_EQ(events(), QString());
}

TEST_F(KeyTester, ACapsLockThatIsOnIsTurnedOffWhenItOpens)
{
    keyboard.capsLock = true;
    keyboard.numLock = true;
    ASSERT_TRUE(open());
    EXPECT_FALSE(keyboard.capsLock);
    EXPECT_EQ(colourOf(u"LabelNUMLOCK"_s), orange);
}

TEST_F(KeyTester, CapsLockTurnedOnDuringATestGoesOffAtOnceOnKeyDownAndKeyUp)
{
    ASSERT_TRUE(open());
    keyboard.capsLock = true;
    form->Form_KeyDown(20, 0);
    EXPECT_FALSE(keyboard.capsLock);
    keyboard.capsLock = true;
    form->Form_KeyUp(20, 0);
    EXPECT_FALSE(keyboard.capsLock);
    EXPECT_EQ(events(), u"Down: Caps Lock\nUp: Caps Lock\n");
}

TEST_F(KeyTester, AltAloneShowsItsEventAndNoMenuOpens)
{
    ASSERT_TRUE(open());
    QTest::keyPress(form, Qt::Key_Alt);
    EXPECT_EQ(events(), u"Down: ALT\n");
    EXPECT_EQ(colourOf(u"LabelALT"_s), orange);
    QTest::keyRelease(form, Qt::Key_Alt);
    EXPECT_EQ(events(), u"Down: ALT\nUp: ALT\n");
    EXPECT_NE(colourOf(u"LabelALT"_s), orange);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(child<QMenuBar>(u"KeyTestMenus"_s)->activeAction(), nullptr);
    EXPECT_EQ(keys(), QString());
}

TEST_F(KeyTester, AltAfterShiftIsAltThoughTheSystemCallsItMeta)
{
#ifdef Q_OS_WIN
    GTEST_SKIP() << "Windows tells the virtual key itself";
#endif
    ASSERT_TRUE(open());
    // As an X server reports it: the state before each stroke, the place of the key and its symbol.
    const auto send = [this](QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers before,
                             quint32 place, quint32 symbol) {
        QKeyEvent event(type, key, before, place, symbol, 0);
        QCoreApplication::sendEvent(form, &event);
    };
    constexpr quint32 meta = 0xFFE7;
    send(QEvent::KeyPress, Qt::Key_Shift, {}, 50, 0xFFE1);
    send(QEvent::KeyPress, Qt::Key_Meta, Qt::ShiftModifier, 64, meta);
    EXPECT_EQ(colourOf(u"LabelALT"_s), orange);
    EXPECT_EQ(colourOf(u"LabelSHIFT"_s), orange);
    send(QEvent::KeyRelease, Qt::Key_Meta, Qt::ShiftModifier | Qt::AltModifier, 64, meta);
    EXPECT_NE(colourOf(u"LabelALT"_s), orange);
    send(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier, 50, 0xFFE1);
    EXPECT_EQ(events(), u"Down: SHF\nDown: ALT\nUp: ALT\nUp: SHF\n");
    EXPECT_EQ(keys(), QString());
}

TEST_F(KeyTester, KeysThatWindowsUseThemselvesAreShownAndDoNothingElse)
{
    ASSERT_TRUE(open());
    stroke(Qt::Key_Tab);
    stroke(Qt::Key_Left);
    stroke(Qt::Key_F10);
    stroke(Qt::Key_F1);
    stroke(Qt::Key_Menu);
    stroke(Qt::Key_Escape, {}, u"\x1b"_s);
    stroke(Qt::Key_V, Qt::AltModifier, u"v"_s);
    EXPECT_EQ(keys(), u"Tab\nLeft Arrow\nF10\nF1\nMenu\nEscape\nAlt v\n");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(form->hasFocus());
}

TEST_F(KeyTester, NoShortcutOfTheProgramTakesAKey)
{
    ASSERT_TRUE(open());
    QAction shortcut(form);
    shortcut.setShortcut(QKeySequence(u"Ctrl+K"_s));
    shortcut.setShortcutContext(Qt::ApplicationShortcut);
    form->addAction(&shortcut);
    bool ran = false;
    QObject::connect(&shortcut, &QAction::triggered, form, [&ran] { ran = true; });
    QTest::keyClick(form, Qt::Key_K, Qt::ControlModifier);
    EXPECT_FALSE(ran);
    EXPECT_EQ(keys(), u"Ctrl k\n");
}

TEST_F(KeyTester, ACodeAbsentFromTheTableShowsItsDecimalValueInTheEvents)
{
    ASSERT_TRUE(open());
    form->Form_KeyDown(231, 0);
    form->Form_KeyUp(231, 0);
    EXPECT_EQ(events(), u"Down: 231\nUp: 231\n");
}

TEST_F(KeyTester, ShiftAndPauseAlwaysGetsOut)
{
    ASSERT_TRUE(open());
    for (int i = 0; i < 200; ++i) {
        stroke(Qt::Key_A, {}, u"a"_s);
    }
    stroke(Qt::Key_Pause, Qt::ShiftModifier, u"\x13"_s);
    EXPECT_EQ(asked.last(), u"emergency");
    EXPECT_FALSE(form && form->isVisible());
}

TEST_F(KeyTester, AKeyThatIsHeldGoesDownAgainButNotUp)
{
    ASSERT_TRUE(open());
    QKeyEvent again(QEvent::KeyPress, Qt::Key_A, {}, u"a"_s, true);
    QKeyEvent upAgain(QEvent::KeyRelease, Qt::Key_A, {}, u"a"_s, true);
    QKeyEvent down(QEvent::KeyPress, Qt::Key_A, {}, u"a"_s);
    QCoreApplication::sendEvent(form, &down);
    QCoreApplication::sendEvent(form, &upAgain);
    QCoreApplication::sendEvent(form, &again);
    EXPECT_EQ(events(), u"Down: a\nDown: a\n");
    EXPECT_EQ(keys(), u" a\n a\n");
}

TEST_F(KeyTester, TheStateLabelsFollowShiftCtrlAndAlt)
{
    ASSERT_TRUE(open());
    const QColor normal = colourOf(u"LabelSHIFT"_s);
    form->Form_KeyDown(65, 3);
    EXPECT_EQ(colourOf(u"LabelSHIFT"_s), orange);
    EXPECT_EQ(colourOf(u"LabelCTRL"_s), orange);
    EXPECT_EQ(colourOf(u"LabelALT"_s), normal);
    form->Form_KeyUp(16, 2);
    EXPECT_EQ(colourOf(u"LabelSHIFT"_s), normal);
    EXPECT_EQ(colourOf(u"LabelCTRL"_s), orange);
    form->Form_KeyUp(17, 0);
    EXPECT_EQ(colourOf(u"LabelCTRL"_s), normal);
    keyboard.numLock = true;
    form->Form_KeyUp(144, 0);
    EXPECT_EQ(colourOf(u"LabelNUMLOCK"_s), orange);
}

TEST_F(KeyTester, TheListsClearOnTheFirstKeyAfterTheDelay)
{
    ASSERT_TRUE(open());
    choose(u"mnuClearDelay_1"_s);
    auto *timer = child<QTimer>(u"Timer1"_s);
    EXPECT_EQ(timer ? timer->interval() : -1, 400);
    stroke(Qt::Key_Tab);
    EXPECT_TRUE(timer->isActive());
    EXPECT_TRUE(QTest::qWaitFor([timer] { return !timer->isActive(); }));
    EXPECT_EQ(keys(), u"Tab\n") << "not before the next key";
    stroke(Qt::Key_Left);
    EXPECT_EQ(keys(), u"Left Arrow\n");
}

TEST_F(KeyTester, ChoosingTheTickedDelayTurnsItOff)
{
    ASSERT_TRUE(open());
    choose(u"mnuClearDelay_4"_s);
    EXPECT_EQ(settings.of<KeyTesterSettings>().ClearDelay, 4);
    EXPECT_TRUE(action(u"mnuClearDelay_4"_s)->isChecked());
    choose(u"mnuClearDelay_0"_s);
    EXPECT_EQ(settings.of<KeyTesterSettings>().ClearDelay, 0);
    EXPECT_FALSE(action(u"mnuClearDelay_4"_s)->isChecked());
    choose(u"mnuClearDelay_0"_s);
    EXPECT_EQ(settings.of<KeyTesterSettings>().ClearDelay, -1);
    EXPECT_FALSE(action(u"mnuClearDelay_0"_s)->isChecked());
    stroke(Qt::Key_Tab);
    EXPECT_FALSE(child<QTimer>(u"Timer1"_s)->isActive());
}

TEST_F(KeyTester, ClearEmptiesBothListsAtOnce)
{
    ASSERT_TRUE(open());
    stroke(Qt::Key_Tab);
    choose(u"mnuClearAll"_s);
    EXPECT_EQ(keys(), QString());
    EXPECT_EQ(events(), QString());
}

TEST_F(KeyTester, EitherListCanBeCopied)
{
    ASSERT_TRUE(open());
    stroke(Qt::Key_Tab);
    choose(u"mnuCopyList_0"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Tab\n");
    choose(u"mnuCopyList_1"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Down: Tab\nUp: Tab\n");
}

TEST_F(KeyTester, TheEmergencyMenuSendsItsRequests)
{
    ASSERT_TRUE(open());
    dialogs.answer(u"I suppose you want me to make you a cup of tea as well"_s, BoxButton::Ok);
    asked.clear();
    for (const auto *name :
         { u"mnuEmergencyOff", u"mnuMemoryClear_0", u"mnuMemoryClear_1", u"mnuYankCord" }) {
        choose(QString::fromUtf16(name));
    }
    EXPECT_EQ(asked, (QStringList{ u"windows"_s, u"memory 0"_s, u"memory 1"_s }));
    EXPECT_EQ(dialogs.boxes().last().text,
              u"You don't think I can do this for you, do you? I'm just a computer, and I've got "
              "enough of my own problems thank you very much without having to be burdened with "
              "yours.");
}

TEST_F(KeyTester, TheDirectXTesterIsOnOfferWhereThereIsOne)
{
    ASSERT_TRUE(open());
    EXPECT_EQ(action(u"mnuDX8KeyTester"_s)->text(), u"Zeph's DX8 KeyTester");
    choose(u"mnuDX8KeyTester"_s);
    EXPECT_EQ(asked.last(), u"directx");
    delete form;
    hasDirectX = false;
    ASSERT_TRUE(open());
    EXPECT_FALSE(action(u"mnuDX8KeyTester"_s)->isVisible());
}

TEST_F(KeyTester, ThePressOfMenuHidesAndShowsTheMenus)
{
    ASSERT_TRUE(open());
    auto *button = child<QPushButton>(u"Label1"_s);
    EXPECT_EQ(colourOf(u"Label1"_s, QPalette::Button), QColor(0, 255, 0));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(colourOf(u"Label1"_s, QPalette::Button), QColor(255, 0, 0));
    for (const auto *name : { u"mnuEmergency", u"mnuClear", u"mnuView", u"mnuCopy" }) {
        EXPECT_FALSE(action(QString::fromUtf16(name))->isVisible());
    }
    EXPECT_FALSE(child<QMenuBar>(u"KeyTestMenus"_s)->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(child<QMenuBar>(u"KeyTestMenus"_s)->isVisible());
    EXPECT_TRUE(action(u"mnuEmergency"_s)->isVisible());
    EXPECT_TRUE(form->hasFocus()) << "keys still reach the window";
}

TEST_F(KeyTester, TheHeadingOfTheEventsIsShortInANarrowWindow)
{
    ASSERT_TRUE(open());
    const auto *heading = child<QLabel>(u"LabelEvents"_s);
    form->resize(700, 300);
    EXPECT_EQ(heading->text(), u"Up/Down/Keycode events");
    form->resize(240, 300);
    EXPECT_EQ(heading->text(), u"Events");
}

TEST_F(KeyTester, TheKeyEventsCanBeHidden)
{
    ASSERT_TRUE(open());
    EXPECT_TRUE(child<QTextEdit>(u"RTFKeysDownText"_s)->isVisible());
    choose(u"mnuViewKeyEvents"_s);
    EXPECT_FALSE(child<QTextEdit>(u"RTFKeysDownText"_s)->isVisible());
    EXPECT_EQ(settings.of<KeyTesterSettings>().KeyViewAll, 0);
}

TEST_F(KeyTester, ItsTextHasThreeSizes)
{
    ASSERT_TRUE(open());
    const auto size = [this] {
        return child<QTextEdit>(u"RTFKeysText"_s)->font().pointSize();
    };
    choose(u"mnuFontSize_0"_s);
    const int small = size();
    choose(u"mnuFontSize_1"_s);
    const int medium = size();
    choose(u"mnuFontSize_2"_s);
    EXPECT_LT(small, medium);
    EXPECT_LT(medium, size());
    EXPECT_FALSE(action(u"mnuFontSize_1"_s)->isChecked());
    EXPECT_TRUE(action(u"mnuFontSize_2"_s)->isChecked());
}

TEST_F(KeyTester, KeepsItsPlaceAndItsChoices)
{
    ASSERT_TRUE(open());
    form->resize(600, 400);
    form->move(40, 50);
    choose(u"mnuClearDelay_2"_s);
    choose(u"mnuViewKeyEvents"_s);
    form->ToggleMenus();
    form->close();
    // 15 twips a pixel.
    EXPECT_EQ(stored(u"KeyLeftAtStartup"_s), u"600");
    EXPECT_EQ(stored(u"KeyTopAtStartup"_s), u"750");
    EXPECT_EQ(stored(u"KeyWidthAtStartup"_s), u"9000");
    EXPECT_EQ(stored(u"KeyHeightAtStartup"_s), u"6000");
    EXPECT_EQ(stored(u"ClearDelay"_s), u"2");
    EXPECT_EQ(stored(u"KeyViewAll"_s), u"0");
    EXPECT_EQ(stored(u"MenuDisplay"_s), u"0");
    delete form;
    settings.of<KeyTesterSettings>() = KeyTesterSettings();
    ASSERT_TRUE(open());
    EXPECT_EQ(form->size(), QSize(600, 400));
    EXPECT_EQ(form->pos(), QPoint(40, 50));
    EXPECT_EQ(child<QTimer>(u"Timer1"_s)->interval(), 600);
    EXPECT_FALSE(child<QTextEdit>(u"RTFKeysDownText"_s)->isVisible());
    EXPECT_FALSE(action(u"mnuEmergency"_s)->isVisible());
}

TEST_F(KeyTester, TheFirstTimeEverythingIsShownAndTheDelayIsOff)
{
    ASSERT_TRUE(open());
    EXPECT_EQ(form->pos(), QPoint(2, 2)) << "30 twips";
    EXPECT_EQ(child<QLabel>(u"LabelEvents"_s)->text(), u"Up/Down/Keycode events");
    EXPECT_EQ(settings.of<KeyTesterSettings>().ClearDelay, -1);
    EXPECT_EQ(child<QTimer>(u"Timer1"_s)->interval(), 500);
    EXPECT_TRUE(action(u"mnuClear"_s)->isVisible());
}

TEST_F(KeyTester, TheFirstTimeItOpensBesideTheMainWindow)
{
    QWidget main;
    main.setGeometry(0, 0, 200, 300);
    owner = &main;
    ASSERT_TRUE(open());
    EXPECT_GE(form->pos().x(), 200);
    EXPECT_EQ(form->size(), QSize(550, 350)) << "8250 and 5250 twips";
    delete form;
}

TEST_F(KeyTester, APlaceOnAScreenThatIsGoneIsBroughtBack)
{
    folder.write(u"Zeph.ini"_s,
                 "[Key Tester]\r\nKeyLeftAtStartup=150000\r\nKeyTopAtStartup=-150000\r\n"
                 "KeyWidthAtStartup=6000\r\nKeyHeightAtStartup=4500\r\n");
    ASSERT_TRUE(open());
    EXPECT_TRUE(form->screen()->availableGeometry().contains(form->geometry()));
    EXPECT_EQ(form->size(), QSize(400, 300));
}

TEST_F(KeyTester, ClosedMaximisedItRemembersThePlaceBefore)
{
    ASSERT_TRUE(open());
    form->resize(600, 400);
    form->move(40, 50);
    form->showMaximized();
    QCoreApplication::processEvents();
    form->close();
    EXPECT_EQ(stored(u"KeyWidthAtStartup"_s), u"9000");
    EXPECT_EQ(stored(u"KeyHeightAtStartup"_s), u"6000");
}

TEST_F(KeyTester, AMissingTableIsRestoredFromItsCopy)
{
    QFile::remove(folder.file(u"KeyCodes.txt"_s));
    folder.write(u"Info/KeyCodes.txt"_s, "9,The Tab\r\n");
    dialogs.answer(u"KeyCodes.txt is missing !!!"_s, BoxButton::Ok);
    dialogs.answer(u"Well I saved your butt!"_s, BoxButton::Ok);
    ASSERT_TRUE(open());
    EXPECT_EQ(dialogs.boxes().first().text,
              u"You're missing a critical file, called KeyCodes.txt which should be located in "
              "Zeph's directory. A backup copy is in your Info subdirectory. I shall attempt to "
              "copy this across and restore the file. Please wait ...");
    EXPECT_EQ(
        dialogs.boxes().last().text,
        folder.file(u"KeyCodes.txt"_s)
            + u" has been successfully restored. Please stop misbehaving with my file system!"_s);
    EXPECT_EQ(folder.read(u"KeyCodes.txt"_s), "9,The Tab\r\n");
    stroke(Qt::Key_Tab);
    EXPECT_EQ(keys(), u"The Tab\n");
}

TEST_F(KeyTester, ATableThatCannotBeRestoredEndsItsOpening)
{
    QFile::remove(folder.file(u"KeyCodes.txt"_s));
    dialogs.answer(u"KeyCodes.txt is missing !!!"_s, BoxButton::Ok);
    dialogs.answer(u"It didn't work :("_s, BoxButton::Ok);
    EXPECT_FALSE(open());
    EXPECT_EQ(dialogs.boxes().last().text,
              u"I was unable to restore "_s + folder.file(u"KeyCodes.txt"_s)
                  + u" - please close down the Key Tester and restore the file manually."_s);
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(KeyTester, AModeErrorIsAWarningAndTheTesterRuns)
{
    report("ERROR", -1);
    ASSERT_TRUE(open());
    auto *warning = child<QPushButton>(u"LBL_ModeWarning"_s);
    EXPECT_TRUE(warning->isVisible());
    EXPECT_EQ(warning->text(), u"Mode error Click for help");
    dialogs.answer(u"Your Cougar needs a slap"_s, BoxButton::Ok);
    QTest::mouseClick(warning, Qt::LeftButton);
    EXPECT_EQ(
        dialogs.boxes().last().text,
        u"When you run the Key Tester, what Zeph attempts to do is to put the Cougar into "
        "programmed mode. After all, it doesn't make sense to run the Key tester if all of your "
        "controller buttons are in Windows (DirectX) mode.\nHowever, for some reason there was a "
        "problem trying to put the controllers into Programmed mode. The controllers signalled "
        "back to Zeph that the request to change modes generated an error. \nI suggest that you "
        "close down the Key Tester, and try to put the Cougar into programmed mode manually. You "
        "can do this either from the Status bar, or from the Editor's Cougar menu, or from the "
        "CCP. And don't even think about blaming me for this. I'm just the messenger!");
    stroke(Qt::Key_Tab);
    EXPECT_EQ(keys(), u"Tab\n");
}

TEST_F(KeyTester, AModeThatIsNotProgrammedIsAWarningUntilTheToolsReportIt)
{
    settings.of<ToolchainSettings>().CheckForCompletionTime = 10;
    report("OKAY", 0);
    ASSERT_TRUE(open());
    auto *warning = child<QPushButton>(u"LBL_ModeWarning"_s);
    EXPECT_TRUE(warning->isVisible());
    dialogs.answer(u"Your Cougar needs a slap"_s, BoxButton::Ok);
    QTest::mouseClick(warning, Qt::LeftButton);
    EXPECT_TRUE(dialogs.boxes().last().text.contains(
        u"The controllers signalled back to Zeph that they didn't generate an error when trying to "
        "change to Programmed mode, but there again, they didn't report that they'd actually been "
        "successful in changing the controller mode.\nI suggest"));
    report("OKAY", 1);
    EXPECT_TRUE(QTest::qWaitFor([warning] { return !warning->isVisible(); }));
}

TEST_F(KeyTester, AKeyNotesTheNativeModifiersForSystemsThatTellNothingElse)
{
    ASSERT_TRUE(open());
    QKeyEvent down(QEvent::KeyPress, Qt::Key_A, {}, 38, 0x61, 0x10, u"a"_s);
    QCoreApplication::sendEvent(form, &down);
    EXPECT_EQ(keyboard.nativeModifiers, 0x10u);
}

TEST_F(KeyTester, ItsListsDoNotGrowWithoutEnd)
{
    ASSERT_TRUE(open());
    for (int i = 0; i < 10100; ++i) {
        form->Form_KeyDown(9, 0);
    }
    EXPECT_LE(child<QTextEdit>(u"RTFKeysText"_s)->document()->blockCount(), 10000);
}
