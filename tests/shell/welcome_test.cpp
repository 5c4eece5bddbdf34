// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/welcome.h"

#include "tests/support/shell_world.h"

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

    void open()
    {
        window = std::make_unique<Welcome>(paths, dialogs, 1);
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
    EXPECT_FALSE(control<QPushButton>(u"cmdFinish"_s)->isEnabled());
    control<QRadioButton>(u"Option_Experience_2"_s)->click();
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

TEST_F(WelcomeWindow, AsksForTheHotasFolderOnlyIfItIsNotSet)
{
    paths.hotasFolder.clear();
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
    EXPECT_EQ(window->answers().hotasFolder, folder.file(u"HOTAS"_s) + u'/');
    EXPECT_TRUE(reach(u"pageExperience"_s));
}

TEST_F(WelcomeWindow, ACancelledBrowseKeepsTheField)
{
    paths.hotasFolder.clear();
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
