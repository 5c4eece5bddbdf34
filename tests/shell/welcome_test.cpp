// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/welcome.h"

#include "documents/text_control.h"
#include "platform/core/stand_in.h"
#include "settings/colour_settings.h"

#include "tests/support/shell_world.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>

using namespace zeph;

namespace {

constexpr int patienceMs = 3000;

struct WelcomeWindow : test::ShellWorld {
    std::unique_ptr<Welcome> window;
    WelcomeAnswers before;

    WelcomeWindow()
    {
        folder.write(u"HOTASCompiler.exe"_s, "the real one");
        before.hotasFolder = paths.hotasFolder;
    }
    void open()
    {
        window = std::make_unique<Welcome>(context(), before, 1);
        window->show();
    }
    QString page() const
    {
        return window->findChild<QStackedWidget *>(u"pages"_s)->currentWidget()->objectName();
    }
    bool reach(const QString &name) const
    {
        return QTest::qWaitFor([&] { return page() == name; }, patienceMs);
    }
    template <class T> T *control(const QString &name) const
    {
        return window->findChild<T *>(name);
    }
    QString label(const QString &name) const { return control<QLabel>(name)->text(); }
    void type(const QString &field, const QString &text) const
    {
        QTest::keyClicks(control<QLineEdit>(field), text);
    }
    void press(const QString &button) const { control<QPushButton>(button)->click(); }
};

} // namespace

TEST_F(WelcomeWindow, WalksFromTheFirstLineToTheAnswers)
{
    open();
    EXPECT_EQ(label(u"lblScript"_s),
              u"Getting ready to run Zeph for the first time ... please wait ...");
    ASSERT_TRUE(reach(u"pageName"_s));
    type(u"txtFirstName"_s, u"Pete"_s);
    type(u"txtLastName"_s, u"Mitchell"_s);
    type(u"txtCallsign"_s, u"Maverick"_s);
    press(u"cmdNames"_s);
    EXPECT_EQ(label(u"lblScript"_s), u"Checking pilot identity ");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return label(u"lblGreeting"_s) == u"Ok Maverick, let's see what you're made of."; },
        patienceMs));
    ASSERT_TRUE(reach(u"pageExperience"_s));
    EXPECT_EQ(label(u"lblExperience"_s),
              u"What's your experience of using Thrustmaster programmable controllers?");
    EXPECT_FALSE(control<QPushButton>(u"cmdExperience"_s)->isEnabled());
    control<QRadioButton>(u"Option_Experience_2"_s)->click();
    press(u"cmdExperience"_s);
    EXPECT_EQ(page(), u"pageLook");
    press(u"cmdFinish"_s);
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_EQ(window->answers().firstName, u"Pete");
    EXPECT_EQ(window->answers().lastName, u"Mitchell");
    EXPECT_EQ(window->answers().callsign, u"Maverick");
    EXPECT_EQ(window->answers().experience, 2);
    EXPECT_EQ(window->answers().hotasFolder, paths.hotasFolder);
}

TEST_F(WelcomeWindow, DotsFollowTheLinesThatSaySo)
{
    open();
    ASSERT_TRUE(reach(u"pageName"_s));
    press(u"cmdNames"_s);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return label(u"lblScript"_s) == u"Checking pilot identity ..."; }, patienceMs));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return label(u"lblScript"_s) == u"Searching for Cougar software ..."; }, patienceMs));
}

TEST_F(WelcomeWindow, GreetsWithoutACallsignAsBuddy)
{
    open();
    ASSERT_TRUE(reach(u"pageName"_s));
    press(u"cmdNames"_s);
    ASSERT_TRUE(reach(u"pageExperience"_s));
    EXPECT_EQ(label(u"lblGreeting"_s), u"Ok buddy, let's see what you're made of.");
}

TEST_F(WelcomeWindow, AsksForTheHotasFolderWhereNoRealToolsLie)
{
    folder.write(u"HOTASCompiler.exe"_s, QByteArray("zeph: ") + standInMark + '.');
    folder.write(u"HOTAS/HOTASCompiler.exe"_s, "the real one");
    open();
    ASSERT_TRUE(reach(u"pageName"_s));
    EXPECT_FALSE(window->CheckForHotasDirectory());
    press(u"cmdNames"_s);
    ASSERT_TRUE(reach(u"pageHotas"_s));
    EXPECT_EQ(label(u"lblHotasFolder"_s), u"Location of HOTAS folder:");
    dialogs.answerFolder(folder.file(u"HOTAS"_s));
    press(u"cmdBrowse"_s);
    EXPECT_EQ(dialogs.folderTitles(), QStringList{ u"Locate the HOTAS directory"_s });
    press(u"cmdHotas"_s);
    EXPECT_EQ(window->answers().hotasFolder, folder.file(u"HOTAS/"_s));
    EXPECT_TRUE(reach(u"pageExperience"_s));
}

TEST_F(WelcomeWindow, ACancelledBrowseKeepsTheField)
{
    open();
    control<QLineEdit>(u"txtHotasFolder"_s)->setText(u"typed"_s);
    dialogs.answerFolder(std::nullopt);
    window->GetHotasDirectory();
    EXPECT_EQ(control<QLineEdit>(u"txtHotasFolder"_s)->text(), u"typed");
}

TEST_F(WelcomeWindow, AClickOnAnOptionsSentencePicksIt)
{
    open();
    ASSERT_TRUE(reach(u"pageName"_s));
    press(u"cmdNames"_s);
    ASSERT_TRUE(reach(u"pageExperience"_s));
    QTest::mouseClick(control<QLabel>(u"lblExperience_1"_s), Qt::LeftButton);
    EXPECT_TRUE(control<QRadioButton>(u"Option_Experience_1"_s)->isChecked());
}

TEST_F(WelcomeWindow, ClosedEarlyItHasNoExperience)
{
    open();
    window->reject();
    EXPECT_EQ(window->answers().experience, -1);
}

TEST_F(WelcomeWindow, AFolderThatIsNotThereIsToldAndAnEmptyLineIsTheProgramsOwn)
{
    before.hotasFolder = folder.file(u"nowhere"_s);
    open();
    ASSERT_TRUE(reach(u"pageName"_s));
    press(u"cmdNames"_s);
    ASSERT_TRUE(reach(u"pageHotas"_s));
    press(u"cmdHotas"_s);
    EXPECT_EQ(page(), u"pageHotas");
    EXPECT_TRUE(label(u"lblHotasNote"_s).startsWith(u"I can't find that folder"_s));
    control<QLineEdit>(u"txtHotasFolder"_s)->clear();
    press(u"cmdHotas"_s);
    EXPECT_EQ(window->answers().hotasFolder, paths.hotasFolder);
}

TEST_F(WelcomeWindow, BeginsWithWhatWasAnsweredBefore)
{
    before = { .firstName = u"Ann"_s, .lastName = u"Lee"_s, .callsign = u"Gust"_s };
    open();
    window->reject();
    EXPECT_EQ(window->answers().firstName, u"Ann");
    EXPECT_EQ(window->answers().lastName, u"Lee");
    EXPECT_EQ(window->answers().callsign, u"Gust");
}

TEST_F(WelcomeWindow, ClosedOnThePageOfNamesItKeepsWhatWasTyped)
{
    open();
    ASSERT_TRUE(reach(u"pageName"_s));
    type(u"txtFirstName"_s, u"Ann"_s);
    window->reject();
    EXPECT_EQ(window->answers().firstName, u"Ann");
    EXPECT_EQ(window->answers().experience, -1);
}

TEST_F(WelcomeWindow, ALetterThatNoFileCanHoldIsToldWhereItIsTyped)
{
    open();
    ASSERT_TRUE(reach(u"pageName"_s));
    auto *callsign = control<QLineEdit>(u"txtCallsign"_s);
    callsign->setText(u"\u65e5"_s);
    EXPECT_TRUE(control<QLabel>(u"lblNameNote"_s)->isVisible());
    EXPECT_TRUE(label(u"lblNameNote"_s).contains(u"\"\u65e5\""_s));
    EXPECT_FALSE(control<QPushButton>(u"cmdNames"_s)->isEnabled());
    callsign->setText(u"Gust"_s);
    EXPECT_FALSE(control<QLabel>(u"lblNameNote"_s)->isVisible());
    EXPECT_TRUE(control<QPushButton>(u"cmdNames"_s)->isEnabled());
}

TEST_F(WelcomeWindow, TheLastPageOffersFixedPitchFontsAndShowsThemInASample)
{
    setFirstRunColours(settings.of<ColourSettings>());
    open();
    const auto *fonts = control<QComboBox>(u"cboFont"_s);
    EXPECT_EQ(fonts->currentText(), u"Arial");
    int fixed = 0;
    for (int i = 0; i < fonts->count(); ++i) {
        const bool isFixed = QFontDatabase::isFixedPitch(fonts->itemText(i));
        fixed += isFixed;
        EXPECT_TRUE(isFixed || fonts->itemText(i) == u"Arial") << fonts->itemText(i).toStdString();
    }
    EXPECT_GT(fixed, 0);
    const int other = fonts->currentIndex() == 0 ? 1 : 0;
    control<QComboBox>(u"cboFont"_s)->setCurrentIndex(other);
    const TextControl &sample = *control<TextControl>(u"SampleLook"_s);
    EXPECT_EQ(sample.shown().richText(0, 1).formatAt(0).family, fonts->itemText(other));
    EXPECT_EQ(window->answers().fontName, fonts->itemText(other));
    EXPECT_EQ(settings.of<ColourSettings>().TextFontName, u"Arial") << "it changes nothing itself";
}

TEST_F(WelcomeWindow, TheLastPageShowsDarkColoursAtOnce)
{
    setFirstRunColours(settings.of<ColourSettings>());
    open();
    const auto ground = [this] {
        return control<TextControl>(u"SampleLook"_s)->palette().base().color().lightness();
    };
    EXPECT_GT(ground(), 200);
    control<QRadioButton>(u"Option_Colours_1"_s)->setChecked(true);
    EXPECT_LT(ground(), 60);
    EXPECT_TRUE(window->answers().darkColours);
}
