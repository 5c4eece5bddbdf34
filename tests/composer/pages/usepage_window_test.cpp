// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/composer_settings.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>

using namespace zeph;

namespace {

/// The page in the real window, over the real Editor.
class UseInComposer : public test::TestIn<test::ComposerWorld>
{
protected:
    void SetUp() override
    {
        settings.of<ComposerSettings>().CompTabsAddCr = true;
        showEditor();
        open().showPage(InsertOptions::Use);
    }
    int tabInFront() { return control<QTabWidget>(u"SSTab1"_s).currentIndex(); }
    QString text(int i) { return control<QLineEdit>(u"TXT_USE_%1"_s.arg(i)).text(); }
};

} // namespace

TEST_F(UseInComposer, TheTabNamesTheMacroFileAndHasTheFocus)
{
    EXPECT_EQ(text(0), u"Untitled.tmm");
    EXPECT_TRUE(control<QLineEdit>(u"TXT_USE_0"_s).hasFocus());
    macro().rename(folder.file(u"Files/Falcon.tmm"_s));
    composer()->showPage(InsertOptions::Composer);
    composer()->showPage(InsertOptions::Use);
    EXPECT_EQ(text(0), u"Falcon.tmm");
}

TEST_F(UseInComposer, TheBoxOfTheLineEndIsTheSettings)
{
    setJoystick(u"BTN S1 a"_s);
    click(u"CMD_UseInsert_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nUSE S3_LOCK \n");
    EXPECT_TRUE(control<QCheckBox>(u"CheckMultiAddCR_4"_s).isChecked());
    click(u"CheckMultiAddCR_4"_s);
    EXPECT_FALSE(settings.of<ComposerSettings>().CompTabsAddCr);
    click(u"CMD_UseInsert_5"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nUSE S3_LOCK \nS3_LOCK ");
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nUSE S3_LOCK \n");
}

TEST_F(UseInComposer, AStatementOfTheFileIsReadChangedAndReplacedInOneStep)
{
    const QString before = u"USE RATE (60)\nUSE MDEF old.tmm\nBTN S1 a"_s;
    composer()->showPage(InsertOptions::Composer);
    setJoystick(before, 20);
    click(u"CMD_ReadStatement"_s);
    EXPECT_EQ(tabInFront(), InsertOptions::Use);
    EXPECT_EQ(text(0), u"old.tmm");
    control<QLineEdit>(u"TXT_USE_0"_s).setText(u"new.tmm"_s);
    click(u"CMD_ReplaceStatement"_s);
    EXPECT_EQ(joystick().text(), u"USE RATE (60)\nUSE MDEF new.tmm\nBTN S1 a");
    joystick().undo();
    EXPECT_EQ(joystick().text(), before);
}

TEST_F(UseInComposer, AnotherStatementIsReadWhileThePageIsInFront)
{
    setJoystick(u"USE HAT3_SENSITIVITY (12) Rem slow\n"_s, 3);
    click(u"CMD_ReadStatement"_s);
    EXPECT_EQ(control<QTabWidget>(u"SSTab5"_s).currentIndex(), 3);
    EXPECT_EQ(control<QComboBox>(u"ComboUSEDX_3"_s).currentText(), u"HAT3");
    EXPECT_EQ(text(2), u"12");
}

TEST_F(UseInComposer, NoMnemonicOfATabMeansTwoThings)
{
    QStringList always;
    const QTabBar &pages = *control<QTabWidget>(u"SSTab1"_s).tabBar();
    for (int i = 0; i < pages.count(); ++i)
        always.append(QKeySequence::mnemonic(pages.tabText(i)).toString());
    const auto check = [&] {
        QStringList seen = always;
        for (const QWidget *each : composer()->findChildren<QWidget *>()) {
            const auto *button = qobject_cast<const QAbstractButton *>(each);
            const auto *label = qobject_cast<const QLabel *>(each);
            const QString caption = button ? button->text() : label ? label->text() : QString();
            const QString key = QKeySequence::mnemonic(caption).toString();
            if (!each->isVisible() || key.isEmpty())
                continue;
            EXPECT_FALSE(seen.contains(key)) << caption.toStdString();
            seen.append(key);
        }
    };
    for (const auto &[tab, inner] : { std::pair(5, u"SSTab8"_s), std::pair(8, u"SSTab6"_s) }) {
        control<QTabWidget>(u"SSTab5"_s).setCurrentIndex(tab);
        for (int i = 0; i < 3; ++i) {
            control<QTabWidget>(inner).setCurrentIndex(i);
            check();
        }
    }
    for (int i = 0; i < control<QTabWidget>(u"SSTab5"_s).count(); ++i) {
        control<QTabWidget>(u"SSTab5"_s).setCurrentIndex(i);
        check();
    }
}

TEST_F(UseInComposer, NoTabIsTooLargeForASmallScreen)
{
    const QSize least = composer()->minimumSizeHint();
    EXPECT_LE(least.width(), 1024);
    EXPECT_LE(least.height(), 720);
}
