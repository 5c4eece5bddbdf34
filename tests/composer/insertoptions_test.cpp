// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/insertoptions.h"

#include "composer/composer_keys.h"
#include "composer/composer_settings.h"
#include "composer/macro_mirror.h"
#include "documents/document_settings.h"
#include "documents/editor_view.h"
#include "editor/macros/macro_features.h"
#include "platform/core/profile_file.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <tuple>

using namespace zeph;

namespace {

class ComposerWindow : public test::TestIn<test::ComposerWorld>
{
protected:
    void SetUp() override { showEditor(); }
    QTabWidget &tabs() { return control<QTabWidget>(u"SSTab1"_s); }
    ProfileFile store() const { return ProfileFile(paths.iniPath); }
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
    const auto letterOf = [](const QString &caption) {
        const qsizetype mark = QString(caption).replace(u"&&"_s, u"  "_s).indexOf(u'&');
        return mark < 0 ? QString() : caption.mid(mark + 1, 1).toUpper();
    };
    // Of the pages whose nested tabs have letters too, each of these.
    const std::tuple<InsertOptions::Page, QString, int> sights[] = {
        { InsertOptions::Composer, {}, 0 },         { InsertOptions::Templates, {}, 0 },
        { InsertOptions::Hats, u"SSTabHats"_s, 0 }, { InsertOptions::Hats, u"SSTabHats"_s, 1 },
        { InsertOptions::Mouse, u"SSTab4"_s, 0 },   { InsertOptions::Mouse, u"SSTab4"_s, 1 },
        { InsertOptions::Mouse, u"SSTab4"_s, 2 },   { InsertOptions::Mouse, u"SSTab4"_s, 3 },
        { InsertOptions::Mouse, u"SSTab4"_s, 4 },   { InsertOptions::Mouse, u"SSTab4"_s, 5 },
        { InsertOptions::Logical, u"SSTab7"_s, 0 }, { InsertOptions::Logical, u"SSTab7"_s, 1 },
    };
    for (const auto &[page, nested, tab] : sights) {
        composer()->showPage(page);
        if (!nested.isEmpty()) {
            control<QTabWidget>(nested).setCurrentIndex(tab);
        }
        QStringList letters;
        for (const auto *button : composer()->findChildren<QAbstractButton *>()) {
            letters.append(button->isVisible() ? letterOf(button->text()) : QString());
        }
        for (const auto *label : composer()->findChildren<QLabel *>()) {
            letters.append(label->isVisible() && label->buddy() ? letterOf(label->text())
                                                                : QString());
        }
        for (const auto *bar : composer()->findChildren<QTabBar *>()) {
            for (int i = 0; bar->isVisible() && i < bar->count(); ++i) {
                letters.append(letterOf(bar->tabText(i)));
            }
        }
        letters.removeAll(QString());
        EXPECT_GT(letters.size(), 10);
        EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(u' ').toStdString();
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
