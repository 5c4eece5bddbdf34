// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/insertoptions.h"

#include "composer/composer_keys.h"
#include "composer/composer_settings.h"
#include "composer/macro_mirror.h"
#include "composer/statementpreview.h"
#include "documents/document_settings.h"
#include "documents/editor_view.h"
#include "editor/macros/macro_features.h"
#include "platform/core/profile_file.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using namespace zeph;

namespace {

class ComposerWindow : public test::TestIn<test::ComposerWorld>
{
protected:
    void SetUp() override { showEditor(); }
    QTabWidget &tabs() { return control<QTabWidget>(u"SSTab1"_s); }
    void refreshPreview() { composer()->findChild<StatementPreview *>()->refreshNow(); }
    ProfileFile store() const { return ProfileFile(paths.iniPath); }

    /// Shows every tab of the tab widgets that are seen on a page, one inside the other, and tells
    /// their captions.
    template <class Then>
    static void forEachNestedTab(const QWidget &page, const Then &then, const QString &path = {})
    {
        QTabWidget *outermost = nullptr;
        for (auto *tabs : page.findChildren<QTabWidget *>()) {
            outermost = outermost || !tabs->isVisible() ? outermost : tabs;
        }
        if (!outermost) {
            then(path);
            return;
        }
        for (int i = 0; i < outermost->count(); ++i) {
            outermost->setCurrentIndex(i);
            forEachNestedTab(*outermost->widget(i), then, path + u'/' + outermost->tabText(i));
        }
    }
    /// The letters that Alt reaches in the window, one for each control that is seen.
    QStringList mnemonicsInSight()
    {
        QStringList captions;
        for (const auto *each : composer()->findChildren<QWidget *>()) {
            if (!each->isVisible()) {
                continue;
            }
            const auto *label = qobject_cast<const QLabel *>(each);
            if (const auto *button = qobject_cast<const QAbstractButton *>(each)) {
                captions.append(button->text());
            } else if (const auto *group = qobject_cast<const QGroupBox *>(each)) {
                captions.append(group->title());
            } else if (label && label->buddy()) {
                captions.append(label->text());
            } else if (const auto *bar = qobject_cast<const QTabBar *>(each)) {
                for (int i = 0; i < bar->count(); ++i) {
                    captions.append(bar->tabText(i));
                }
            }
        }
        QStringList letters;
        for (const QString &caption : captions) {
            const QKeySequence key = QKeySequence::mnemonic(caption);
            if (!key.isEmpty()) {
                letters.append(key.toString());
            }
        }
        return letters;
    }
};

} // namespace

TEST(ComposerCorner, IsWhereTheWindowWas)
{
    ComposerSettings settings;
    settings.ComposerTop = 1500;
    settings.ComposerLeft = 3000;
    EXPECT_EQ(composerCorner(settings, { 1920, 1080 }), QPoint(200, 100));
}

TEST(ComposerCorner, ATopOrLeftThatNoScreenHasCountsAsTen)
{
    ComposerSettings settings;
    const QPoint ten(pixelsFromTwips(10), pixelsFromTwips(10));
    settings.ComposerTop = -1;
    settings.ComposerLeft = -15;
    EXPECT_EQ(composerCorner(settings, { 100, 200 }), ten);
    settings.ComposerTop = 3000;
    settings.ComposerLeft = 1500;
    EXPECT_EQ(composerCorner(settings, { 100, 200 }), ten);
    settings.ComposerTop = 2985;
    settings.ComposerLeft = 1485;
    EXPECT_EQ(composerCorner(settings, { 100, 200 }), QPoint(99, 199));
}

TEST_F(ComposerWindow, OpensByItsMenuEntryAtTheFirstPage)
{
    EXPECT_TRUE(editor->action(u"mnuAppsComposer")->isEnabled());
    InsertOptions &window = open();
    EXPECT_EQ(window.windowTitle(), u"Composer - to ease your programming somewhat !!!"_s);
    EXPECT_EQ(tabs().currentIndex(), 0);
    QStringList captions;
    for (int i = 0; i < tabs().count(); ++i) {
        captions.append(tabs().tabText(i));
    }
    EXPECT_EQ(captions,
              (QStringList{ u"&Composer"_s, u"&Hats"_s, u"&Digital axis"_s, u"&Analogue axis"_s,
                            u"&Mouse / Microstick"_s, u"&Use / Misc."_s, u"Tem&plates"_s,
                            u"&Logical"_s }));
}

TEST_F(ComposerWindow, IsNoLargerThanASmallScreen)
{
    open();
    EXPECT_LE(composer()->minimumSizeHint().width(), 1024);
    EXPECT_LE(composer()->minimumSizeHint().height(), 720);
    EXPECT_LE(composer()->width(), 1024);
    EXPECT_LE(composer()->height(), 720);
}

TEST_F(ComposerWindow, NoMnemonicIsTwiceInSight)
{
    open();
    for (int index = 0; index < InsertOptions::pageCount; ++index) {
        composer()->showPage(InsertOptions::Page(index));
        forEachNestedTab(*composer()->page(InsertOptions::Page(index)), [this](const QString &tab) {
            QStringList letters = mnemonicsInSight();
            EXPECT_GT(letters.size(), 9) << tab.toStdString();
            letters.sort();
            const QString all = letters.join(u' ');
            EXPECT_EQ(letters.removeDuplicates(), 0)
                << tab.toStdString() << ": " << all.toStdString();
        });
    }
}

TEST_F(ComposerWindow, APagesHeightGoesToThePageAndNotBelowThePreview)
{
    InsertOptions &window = open();
    const auto heightOfPages = [this] {
        return tabs().height();
    };
    window.resize(980, 640);
    QApplication::processEvents();
    for (const auto page : { InsertOptions::Composer, InsertOptions::Hats, InsertOptions::Templates,
                             InsertOptions::AnalogueAxis }) {
        window.showPage(page);
        QApplication::processEvents();
        const int before = heightOfPages();
        window.resize(980, 690);
        QApplication::processEvents();
        EXPECT_EQ(heightOfPages(), before + 50) << int(page);
        window.resize(980, 640);
        QApplication::processEvents();
    }
}

TEST_F(ComposerWindow, ThePicturesAreLargeEnoughToPointAtInTheLeastWindow)
{
    InsertOptions &window = open();
    window.resize(window.minimumSizeHint());
    QApplication::processEvents();
    for (const char16_t *hotSpot : { u"BTN_0", u"HAT_0", u"TRIG" }) {
        const QSize size = control<QAbstractButton>(QStringView(hotSpot).toString()).size();
        EXPECT_GE(std::min(size.width(), size.height()), 20)
            << QStringView(hotSpot).toUtf8().toStdString();
    }
}

TEST_F(ComposerWindow, OKAndEscapeHideItAndItKeepsWhatItHolds)
{
    InsertOptions &window = open();
    control<QLineEdit>(u"RemTextBox"_s).setText(u"kept"_s);
    click(u"Command6"_s);
    EXPECT_TRUE(window.isHidden());
    EXPECT_EQ(composer(), &window);
    open();
    EXPECT_EQ(control<QLineEdit>(u"RemTextBox"_s).text(), u"kept"_s);
    control<QLineEdit>(u"RemTextBox"_s).setFocus();
    QTest::keyClick(&control<QLineEdit>(u"RemTextBox"_s), Qt::Key_Escape);
    EXPECT_TRUE(window.isHidden());
}

TEST_F(ComposerWindow, ClosingUnloadsItAndWritesItsSettings)
{
    open().move(150, 60);
    click(u"CheckAlwaysInsert"_s);
    click(u"CheckCopyTicks"_s);
    click(u"CheckMacroAddCR"_s);
    control<QLineEdit>(u"Text1_8"_s).setFocus();
    QTest::keyClicks(&control<QLineEdit>(u"Text1_8"_s), u"7"_s);
    composer()->close();
    EXPECT_EQ(store().text(u"Composer", u"AlwaysInsert"), u"1"_s);
    EXPECT_EQ(store().text(u"Composer", u"COMPaddCR"), u"0"_s);
    EXPECT_EQ(store().text(u"Composer", u"COMPMacrosTickedCopy"), u"1"_s);
    EXPECT_EQ(store().text(u"Composer", u"NumberOfBlanks"), u"57"_s);
    EXPECT_EQ(store().text(u"Composer", u"ComposerLeft"), u"2250"_s);
    EXPECT_EQ(store().text(u"Composer", u"ComposerTop"), u"900"_s);
    EXPECT_TRUE(store().text(u"Unsupported", u"ShowDX9to10").isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(composer(), nullptr);
}

TEST_F(ComposerWindow, ReadsItsSettingsWhenItIsLoaded)
{
    folder.write(u"Zeph.ini"_s,
                 "[Composer]\r\nNumberOfBlanks=9\r\nAlwaysInsert=1\r\nCOMPaddCR=0\r\n"
                 "ComposerTop=900\r\nComposerLeft=150\r\n");
    InsertOptions &window = open();
    EXPECT_EQ(control<QLineEdit>(u"Text1_8"_s).text(), u"9"_s);
    EXPECT_TRUE(control<QAbstractButton>(u"CheckAlwaysInsert"_s).isChecked());
    EXPECT_FALSE(control<QAbstractButton>(u"CheckMacroAddCR"_s).isChecked());
    EXPECT_FALSE(control<QAbstractButton>(u"CheckCopyTicks"_s).isChecked());
    // The screen of these tests is too narrow for it to stand further right.
    EXPECT_EQ(window.y(), 60);
}

TEST_F(ComposerWindow, CtrlTabTurnsThePagesAndWraps)
{
    InsertOptions &window = open();
    QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), 1);
    QTest::keyClick(&window, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tabs().currentIndex(), 0);
    tabs().setCurrentIndex(7);
    QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), 0);
}

TEST_F(ComposerWindow, CtrlTabTurnsTheMainPagesFromANestedTabToo)
{
    open();
    auto &nested = control<QTabWidget>(u"SSTabHardware"_s);
    nested.setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), 1);
    EXPECT_EQ(nested.currentIndex(), 0);
}

TEST_F(ComposerWindow, TabGoesFromTheTabsThroughThePageToThePreviewAndTheButtons)
{
    InsertOptions &window = open();
    const auto part = [this, &window](const QWidget *at) {
        const auto isIn = [at](const QWidget &whole) {
            return &whole == at || whole.isAncestorOf(at);
        };
        return isIn(*window.page(InsertOptions::Page(tabs().currentIndex()))) ? u"page"_s
            : isIn(control<QWidget>(u"PlacePreview"_s))                       ? u"preview"_s
            : isIn(tabs())                                                    ? u"tabs"_s
                                                                              : u"buttons"_s;
    };
    // A page that is made before another one, and both of them after the window.
    for (const auto page :
         { InsertOptions::Logical, InsertOptions::Composer, InsertOptions::Hats }) {
        window.showPage(page);
        tabs().setFocus();
        QStringList parts{ u"tabs"_s };
        do {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (part(QApplication::focusWidget()) != parts.last()) {
                parts.append(part(QApplication::focusWidget()));
            }
        } while (parts.size() < 9 && parts.last() != u"tabs");
        EXPECT_EQ(parts,
                  (QStringList{ u"tabs"_s, u"page"_s, u"preview"_s, u"buttons"_s, u"tabs"_s }));
    }
}

TEST_F(ComposerWindow, HelpAndF1OpenThePagesTopic)
{
    InsertOptions &window = open();
    QSignalSpy wanted(tools, &ComposerTools::helpWanted);
    const QList<int> topics{ 2005, 2010, 2015, 2020, 2025, 2030, 2035, 2040 };
    for (int i = 0; i < topics.size(); ++i) {
        tabs().setCurrentIndex(i);
        click(u"CommandHelp"_s);
        EXPECT_EQ(wanted.takeFirst().first().toInt(), topics[i]);
        QTest::keyClick(&window, Qt::Key_F1);
        EXPECT_EQ(wanted.takeFirst().first().toInt(), topics[i]);
    }
}

TEST_F(ComposerWindow, EveryKeyRunsItsEntryOfTheEditor)
{
    InsertOptions &window = open();
    for (const ComposerKey &key : composerKeys()) {
        QAction *entry = editor->action(key.entry);
        entry->disconnect();
        entry->setEnabled(true);
        QSignalSpy run(entry, &QAction::triggered);
        QApplication::setActiveWindow(&window);
        control<QWidget>(u"SSTabHardware"_s).setFocus();
        QTest::keyClick(&window, key.key.key(), key.key.keyboardModifiers());
        EXPECT_EQ(run.size(), 1) << key.entry.toString().toStdString();
    }
}

TEST_F(ComposerWindow, TheKeysAreThoseOfTheEditorsMenus)
{
    EXPECT_EQ(composerKeys().size(), 30U);
    for (const ComposerKey &key : composerKeys()) {
        EXPECT_TRUE(editor->actions().has(key.entry)) << key.entry.toString().toStdString();
    }
}

TEST_F(ComposerWindow, ATextBoxKeepsItsEditingKeys)
{
    open();
    setJoystick(u"BTN S1 a"_s);
    auto &box = control<QLineEdit>(u"RemTextBox"_s);
    box.setText(u"gear"_s);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(box.selectedText(), u"gear"_s);
    QTest::keyClick(&box, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(box.text(), QString());
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), u"geargear"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.text(), u"gear"_s);
    QTest::keyClick(&box, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.text(), u"geargear"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
    EXPECT_EQ(joystick().selLength(), 0);
}

TEST_F(ComposerWindow, ElsewhereTheEditingKeysGoToTheEditor)
{
    InsertOptions &window = open();
    setJoystick(QString());
    click(u"BTN_0"_s);
    control<QWidget>(u"SlashButton_0"_s).setFocus();
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(joystick().text(), QString());
    QTest::keyClick(&window, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(joystick().text(), u"BTN S1 "_s);
    QTest::keyClick(&window, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(joystick().selLength(), 7);
}

TEST_F(ComposerWindow, F2ReturnsToTheEditor)
{
    InsertOptions &window = open();
    QTest::keyClick(&window, Qt::Key_F2);
    EXPECT_FALSE(window.isHidden());
    EXPECT_TRUE(QTest::qWaitForWindowActive(editor.get()));
    EXPECT_EQ(editor->focusWidget(), &editor->view().control(DocumentKind::Joystick));
}

TEST_F(ComposerWindow, AnEntryThatCannotBeUsedIsTold)
{
    InsertOptions &window = open();
    editor->action(u"mnuAppsTumbo")->setEnabled(false);
    QTest::keyClick(&window, Qt::Key_F4);
    EXPECT_EQ(status.text(), u" Tumbo can't be used now"_s);
}

TEST_F(ComposerWindow, AnInsertionLeavesTheWindowInFront)
{
    InsertOptions &window = open();
    click(u"BTN_0"_s);
    EXPECT_EQ(QApplication::activeWindow(), &window);
}

TEST_F(ComposerWindow, TheDelayFollowsTheOtherWindowsWhenItIsActivated)
{
    open();
    settings.of<EditorSettings>().DefaultDLYvalue = 90;
    QApplication::setActiveWindow(editor.get());
    QApplication::setActiveWindow(composer());
    EXPECT_EQ(control<QLineEdit>(u"DLYText_0"_s).text(), u"90"_s);
}

TEST_F(ComposerWindow, TheMacroListIsCopiedAtTheNextActivation)
{
    open();
    composer()->hide();
    openMacros("Fire = a\r\nGun = b\r\n");
    EXPECT_EQ(control<MacroMirror>(u"FrameMacros"_s).list()->count(), 0);
    open();
    EXPECT_EQ(control<MacroMirror>(u"FrameMacros"_s).list()->count(), 2);
}

TEST_F(ComposerWindow, WithRefreshOnFocusTheHeadingInFrontStays)
{
    openMacros("Rem ----\r\nRem weapons\r\nRem ----\r\nFire = a\r\nGun = b\r\n");
    open();
    click(u"CheckCopyTicks"_s);
    auto &mirror = control<MacroMirror>(u"FrameMacros"_s);
    mirror.headings().setCurrentText(u"Weapons"_s);
    QApplication::setActiveWindow(editor.get());
    QApplication::setActiveWindow(composer());
    EXPECT_EQ(mirror.headings().currentText(), u"Weapons"_s);
    EXPECT_EQ(mirror.list()->objectName(), u"List1_1"_s);
}

TEST_F(ComposerWindow, AForeignKeyboardLayoutIsRestoredOnActivation)
{
    keyboard.layout = u"00000407"_s;
    open();
    keyboard.layout = u"00000409"_s;
    QApplication::setActiveWindow(editor.get());
    QApplication::setActiveWindow(composer());
    EXPECT_TRUE(keyboard.loaded.isEmpty());
    settings.of<DocumentSettings>().ForeignLanguageKBInputFix = true;
    QApplication::setActiveWindow(editor.get());
    QApplication::setActiveWindow(composer());
    EXPECT_EQ(keyboard.loaded, QStringList{ u"00000407"_s });
}

TEST_F(ComposerWindow, ReadingWithoutAStatementIsTold)
{
    open();
    setJoystick(u"Rem nothing\n"_s, 0);
    click(u"CMD_ReadStatement"_s);
    EXPECT_EQ(status.text(), u" The caret of the joystick file is in no statement"_s);
}

TEST_F(ComposerWindow, APageShownFromElsewhereIsInFront)
{
    tools->openTemplates();
    EXPECT_EQ(tabs().currentIndex(), InsertOptions::Templates);
    EXPECT_TRUE(control<QWidget>(u"TemplatesPage"_s).isVisible());
}

TEST_F(ComposerWindow, TheCallAtTheCaretIsReadAndReplaced)
{
    open();
    const QString before = u"BTN S1 /I TRIM (JOYY, 2-)\n       /O TRIM (JOYY, 2+) Rem back"_s;
    setJoystick(before, int(before.indexOf(u"2+")));
    click(u"CMD_ReadStatement"_s);
    EXPECT_EQ(tabs().currentIndex(), InsertOptions::AnalogueAxis);
    EXPECT_EQ(control<QLineEdit>(u"TextAnalogueAxes_1"_s).text(), u"2"_s);
    control<QLineEdit>(u"TextAnalogueAxes_1"_s).setText(u"9"_s);
    click(u"CMD_ReplaceStatement"_s);
    EXPECT_EQ(joystick().text(),
              u"BTN S1 /I TRIM (JOYY, 2-)\n       /O TRIM (JOYY, 9+) Rem back"_s);
    joystick().undo();
    EXPECT_EQ(joystick().text(), before);
}

TEST_F(ComposerWindow, TheHalfAtTheCaretIsReadAndReplaced)
{
    open().showPage(InsertOptions::DigitalAxis);
    const QString before = u"RNG /I 3 a ^ b Rem in\n    /O 3 b ^ a"_s;
    setJoystick(before, int(before.indexOf(u"/O")) - 2);
    click(u"CMD_ReadStatement"_s);
    EXPECT_TRUE(control<QAbstractButton>(u"CheckUMDIOdigital"_s).isChecked());
    EXPECT_EQ(control<QLineEdit>(u"RTB_digitalAxis_4"_s).text(), u"b"_s);
    control<QLineEdit>(u"RTB_digitalAxis_4"_s).setText(u"c"_s);
    // Twice: no blank may come with the second one.
    click(u"CMD_ReplaceStatement"_s);
    EXPECT_EQ(joystick().text(), u"RNG /I 3 a ^ b Rem in\n    /O 3 c ^ a"_s);
    control<QLineEdit>(u"RTB_digitalAxis_4"_s).setText(u"d"_s);
    click(u"CMD_ReplaceStatement"_s);
    EXPECT_EQ(joystick().text(), u"RNG /I 3 a ^ b Rem in\n    /O 3 d ^ a"_s);
}

TEST_F(ComposerWindow, OnlyThePageThatWasFilledReplacesTheStatement)
{
    open();
    setJoystick(u"USE CURVE (THR, 4)"_s, 3);
    click(u"CMD_ReadStatement"_s);
    auto &replace = control<QAbstractButton>(u"CMD_ReplaceStatement"_s);
    EXPECT_TRUE(replace.isEnabled());
    composer()->showPage(InsertOptions::DigitalAxis);
    refreshPreview();
    EXPECT_FALSE(replace.isEnabled());
    composer()->showPage(InsertOptions::AnalogueAxis);
    refreshPreview();
    EXPECT_TRUE(replace.isEnabled());
}

TEST_F(ComposerWindow, ThePreviewFollowsTheBoxesOfTheFirstPage)
{
    open();
    setJoystick(u"BTN S1 a\nBTN S2 "_s);
    openMacros("Fire = a\r\n");
    editor->documents().select(DocumentKind::Joystick);
    const auto previewed = [this] {
        refreshPreview();
        return control<QTextEdit>(u"PreviewText"_s).toPlainText();
    };
    const auto landing = [this] {
        return control<QLabel>(u"LabelLanding"_s).text();
    };
    QTest::keyClicks(&control<QLineEdit>(u"RemTextBox"_s), u"gear"_s);
    EXPECT_EQ(previewed(), u"Rem gear "_s);
    EXPECT_TRUE(landing().startsWith(u"Goes into line 2 of ")) << landing().toStdString();
    control<QLineEdit>(u"DLYText_1"_s).clear();
    QTest::keyClicks(&control<QLineEdit>(u"DLYText_1"_s), u"3"_s);
    EXPECT_EQ(previewed(), u"RPT(3) "_s);
    editor->documents().select(DocumentKind::Macro);
    macro().select(0, 0);
    control<QLineEdit>(u"DLYText_0"_s).clear();
    QTest::keyClicks(&control<QLineEdit>(u"DLYText_0"_s), u"5"_s);
    EXPECT_EQ(previewed(), u"DLY(5) "_s);
    EXPECT_TRUE(landing().startsWith(u"Goes into line 1 of ")) << landing().toStdString();
    EXPECT_TRUE(landing().endsWith(macro().caption())) << landing().toStdString();
}

TEST_F(ComposerWindow, CtrlEnterReplacesWhatWasRead)
{
    InsertOptions &window = open();
    setJoystick(u"USE CURVE (THR, 4)"_s, 3);
    click(u"CMD_ReadStatement"_s);
    EXPECT_TRUE(window.isActiveWindow());
    auto &value = control<QLineEdit>(u"TextAnalogueAxes_0"_s);
    value.setText(u"5"_s);
    value.setFocus();
    QTest::keyClick(&value, Qt::Key_Return, Qt::ControlModifier);
    // A button that is pressed by its key stays down for a moment.
    EXPECT_TRUE(QTest::qWaitFor([this] { return joystick().text() == u"USE CURVE (THR, 5)"; }));
}
