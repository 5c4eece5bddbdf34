// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/appspage.h"

#include "lists/custom_apps.h"
#include "platform/system_info.h"
#include "settings/shared_settings.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using namespace zeph;

namespace {

const QString appletTitle = u"Information for using control panel applets"_s;

class AppsPageTest : public test::ShellWorld
{
public:
    void make(const QByteArray &apps = {})
    {
        folder.write(u"Zeph.ini"_s, "[Apps]\r\n" + apps);
        editor = std::make_unique<Editor>(context());
        menu = new CustomAppsMenu(context(), *editor);
        page = std::make_unique<AppsPage>(context(), *menu, nullptr);
    }
    QLineEdit &field(const QString &name) const { return *page->findChild<QLineEdit *>(name); }
    QCheckBox &use(int place) const
    {
        return *page->findChild<QCheckBox *>(u"CustomAppUse_"_s + QString::number(place));
    }
    void press(const QString &name) { page->findChild<QPushButton *>(name)->click(); }
    QAction &entry(int place) const
    {
        return *editor->action(u"mnuCustomApp_"_s + QString::number(place));
    }

    std::unique_ptr<Editor> editor;
    CustomAppsMenu *menu = nullptr;
    std::unique_ptr<AppsPage> page;
};

} // namespace

TEST_F(AppsPageTest, ShowsAndKeepsEveryField)
{
    settings.of<SharedSettings>().ImageFilePath = u"/pictures/stick.bmp"_s;
    settings.of<SharedSettings>().TextFilePath = u"/texts/readme.rtf"_s;
    make("CustomAppName3=Chat\r\nCustomAppPath3=/bin/chat -q\r\nCustomAppUse3=1\r\n");
    EXPECT_EQ(field(u"ImageFilePath"_s).text(), u"/pictures/stick.bmp");
    EXPECT_EQ(field(u"TextFilePath"_s).text(), u"/texts/readme.rtf");
    EXPECT_EQ(field(u"CustomAppName_3"_s).text(), u"Chat");
    EXPECT_EQ(field(u"CustomAppPath_3"_s).text(), u"/bin/chat -q");
    EXPECT_TRUE(use(3).isChecked());

    field(u"ImageFilePath"_s).setText(u"/a.bmp"_s);
    field(u"TextFilePath"_s).setText(u"/b.txt"_s);
    field(u"CustomAppName_4"_s).setText(u"Radio"_s);
    field(u"CustomAppPath_4"_s).setText(u"/bin/radio"_s);
    use(4).setChecked(true);
    use(3).setChecked(false);
    page->collect();
    menu->save();
    EXPECT_EQ(settings.of<SharedSettings>().ImageFilePath, u"/a.bmp");
    EXPECT_EQ(settings.of<SharedSettings>().TextFilePath, u"/b.txt");
    const CustomApps stored = readCustomApps(ProfileFile(paths.iniPath));
    EXPECT_EQ(stored[2].CustomAppPath, u"/bin/chat -q");
    EXPECT_FALSE(stored[2].CustomAppUse);
    EXPECT_EQ(stored[3].CustomAppName, u"Radio");
    EXPECT_TRUE(stored[3].CustomAppUse);
}

TEST_F(AppsPageTest, ALetterThatTheStoreLacksLeavesTheSettingAlone)
{
    settings.of<SharedSettings>().ImageFilePath = u"/pictures/stick.bmp"_s;
    settings.of<SharedSettings>().TextFilePath = u"/texts/readme.rtf"_s;
    make("CustomAppName1=Chat\r\nCustomAppPath1=/bin/chat\r\nCustomAppUse1=1\r\n");
    field(u"ImageFilePath"_s).setText(u"/\u0416.bmp"_s);
    field(u"TextFilePath"_s).setText(u"/\u65e5.txt"_s);
    field(u"CustomAppPath_1"_s).setText(u"/bin/\u0416"_s);
    page->collect();
    EXPECT_EQ(settings.of<SharedSettings>().ImageFilePath, u"/pictures/stick.bmp");
    EXPECT_EQ(settings.of<SharedSettings>().TextFilePath, u"/texts/readme.rtf");
    EXPECT_EQ(menu->apps()[0].CustomAppPath, u"/bin/chat");
}

TEST_F(AppsPageTest, WithoutAPathTheTickCannotBeSet)
{
    make("CustomAppUse1=1\r\n");
    EXPECT_FALSE(use(1).isEnabled());
    EXPECT_FALSE(use(1).isChecked());
    field(u"CustomAppPath_1"_s).setText(u"   "_s);
    EXPECT_FALSE(use(1).isEnabled());
    field(u"CustomAppPath_1"_s).setText(u"/bin/chat"_s);
    EXPECT_TRUE(use(1).isEnabled());
    use(1).setChecked(true);
    field(u"CustomAppPath_1"_s).clear();
    EXPECT_FALSE(use(1).isEnabled());
    EXPECT_FALSE(use(1).isChecked());
}

TEST_F(AppsPageTest, YesPutsTheProgramOfAnAppletIntoThePath)
{
    make();
    dialogs.answer(appletTitle, BoxButton::Yes);
    field(u"CustomAppPath_2"_s).setText(u"C:\\WINDOWS\\joy.cpl"_s);
    use(2).setChecked(true);
    EXPECT_EQ(field(u"CustomAppPath_2"_s).text(),
              windowsFolder() + u"\\control.exe C:\\WINDOWS\\joy.cpl"_s);
    EXPECT_TRUE(use(2).isChecked());
    // It has its program now: nothing is left to ask.
    use(2).setChecked(false);
    use(2).setChecked(true);
}

TEST_F(AppsPageTest, APathTypedUnderASetTickIsAskedAboutOnceWhenItIsLeft)
{
    make("CustomAppPath1=/bin/chat\r\nCustomAppUse1=1\r\n");
    QLineEdit &path = field(u"CustomAppPath_1"_s);
    Q_EMIT path.editingFinished();
    path.selectAll();
    QTest::keyClicks(&path, u"joy.cpl"_s);
    dialogs.answer(appletTitle, BoxButton::No);
    Q_EMIT path.editingFinished();
    Q_EMIT path.editingFinished();
    page->collect();
    EXPECT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(menu->apps()[0].CustomAppPath, u"joy.cpl");
}

TEST_F(AppsPageTest, APathThatWasNotLeftIsAskedAboutAtClosing)
{
    make("CustomAppPath1=/bin/chat\r\nCustomAppUse1=1\r\n");
    QLineEdit &path = field(u"CustomAppPath_1"_s);
    path.selectAll();
    QTest::keyClicks(&path, u"joy.cpl"_s);
    dialogs.answer(appletTitle, BoxButton::Yes);
    page->collect();
    EXPECT_EQ(menu->apps()[0].CustomAppPath, windowsFolder() + u"\\control.exe joy.cpl"_s);
}

TEST_F(AppsPageTest, NoLeavesThePathAndTheTick)
{
    make();
    dialogs.answer(u"Information for using help files"_s, BoxButton::No);
    field(u"CustomAppPath_1"_s).setText(u"C:\\sim.hlp"_s);
    use(1).setChecked(true);
    EXPECT_EQ(field(u"CustomAppPath_1"_s).text(), u"C:\\sim.hlp");
    EXPECT_TRUE(use(1).isChecked());
}

TEST_F(AppsPageTest, BrowseFindsAnApplicationAndNamesIt)
{
    make();
    dialogs.answerFile(u"/opt/Team radio.exe"_s);
    press(u"CMD_BrowseCustomApp_1"_s);
    EXPECT_EQ(field(u"CustomAppPath_1"_s).text(), u"/opt/Team radio.exe");
    EXPECT_EQ(field(u"CustomAppName_1"_s).text(), u"Team radio");

    field(u"CustomAppName_1"_s).setText(u"Mine"_s);
    use(1).setChecked(true);
    dialogs.answer(appletTitle, BoxButton::No);
    dialogs.answerFile(u"/opt/joy.cpl"_s);
    press(u"CMD_BrowseCustomApp_1"_s);
    EXPECT_EQ(field(u"CustomAppPath_1"_s).text(), u"/opt/joy.cpl");
    EXPECT_EQ(field(u"CustomAppName_1"_s).text(), u"Mine");

    dialogs.answerFile(std::nullopt);
    press(u"CMD_BrowseCustomApp_1"_s);
    EXPECT_EQ(field(u"CustomAppPath_1"_s).text(), u"/opt/joy.cpl");
}

TEST_F(AppsPageTest, PicturesAndTemplatesAreSoughtWhereTheyAre)
{
    settings.of<SharedSettings>().TextFilePath = folder.write(u"texts/readme.rtf"_s, "x");
    make();
    dialogs.answerFile(u"/p.bmp"_s);
    press(u"CMD_BrowseImage"_s);
    dialogs.answerFile(u"/t.rtf"_s);
    press(u"CMD_BrowseText"_s);
    EXPECT_EQ(field(u"ImageFilePath"_s).text(), u"/p.bmp");
    EXPECT_EQ(field(u"TextFilePath"_s).text(), u"/t.rtf");
    EXPECT_EQ(dialogs.files()[0].folder, paths.filesFolder());
    EXPECT_EQ(dialogs.files()[1].folder, folder.file(u"texts/"_s));
}

TEST_F(AppsPageTest, TheToolbarFollowsWhatIsCollected)
{
    Mum mum(context());
    auto *owned = new Editor(context(), &mum);
    mum.attachEditor(owned);
    mum.resize(1000, 700);
    mum.show();
    CustomAppsMenu apps(context(), *owned);
    AppsPage shown(context(), apps, nullptr);
    const auto *button = mum.findChild<QToolButton *>(u"Toolbar2_19"_s);
    // The toolbar follows its entries from the event loop, and lays itself out after that.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_FALSE(button->isVisible());
    shown.findChild<QLineEdit *>(u"CustomAppName_3"_s)->setText(u"Team radio"_s);
    shown.findChild<QLineEdit *>(u"CustomAppPath_3"_s)->setText(u"/bin/radio"_s);
    shown.findChild<QCheckBox *>(u"CustomAppUse_3"_s)->setChecked(true);
    shown.collect();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(button->toolTip(), u"Team radio");
}

TEST_F(AppsPageTest, TheMenuFollowsWhatIsCollected)
{
    const QString program = folder.write(u"radio"_s, "program");
    make("CustomAppName1=Chat\r\nCustomAppPath1=" + program.toUtf8() + "\r\nCustomAppUse1=1\r\n");
    EXPECT_EQ(entry(1).text(), u"Chat");
    field(u"CustomAppName_1"_s).setText(u"Rock & roll"_s);
    field(u"CustomAppPath_2"_s).setText(program);
    use(2).setChecked(true);
    page->collect();
    EXPECT_EQ(entry(1).text(), u"Rock && roll");
    EXPECT_TRUE(entry(2).isVisible());
    EXPECT_TRUE(entry(2).isEnabled());
    EXPECT_EQ(entry(2).text(), u"Custom application 2");
    EXPECT_EQ(entry(2).statusTip(), program);

    field(u"CustomAppName_1"_s).clear();
    use(2).setChecked(false);
    page->collect();
    EXPECT_EQ(entry(1).text(), u"Custom application 1");
    EXPECT_FALSE(entry(2).isVisible());
}

TEST_F(AppsPageTest, AnotherProgramGetsAnotherPicture)
{
    const QString program = folder.write(u"radio"_s, "program");
    make("CustomAppPath1=" + program.toUtf8() + "\r\nCustomAppUse1=1\r\n");
    const QString picture = customAppPicture(paths, 1);
    QImage red(20, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    // As long as the path stays, so does the picture, which pilots may have drawn themselves.
    ASSERT_TRUE(red.save(picture, "BMP"));
    field(u"CustomAppName_1"_s).setText(u"Radio"_s);
    page->collect();
    EXPECT_EQ(entry(1).icon().pixmap(20, 20).toImage().pixelColor(10, 10), QColor(Qt::red));
    EXPECT_TRUE(QFile::exists(picture));

    const QImage plain = entry(2).icon().pixmap(20, 20).toImage();
    field(u"CustomAppPath_1"_s).setText(folder.file(u"nowhere"_s));
    page->collect();
    EXPECT_FALSE(QFile::exists(picture));
    EXPECT_EQ(entry(1).icon().pixmap(20, 20).toImage(), plain);
}

TEST_F(AppsPageTest, APictureDrawnAnewIsShownAnew)
{
    const QString file = folder.file(u"app1.bmp"_s);
    for (const QColor &colour : { QColor(Qt::red), QColor(Qt::blue) }) {
        QImage drawn(20, 20, QImage::Format_RGB32);
        drawn.fill(colour);
        ASSERT_TRUE(drawn.save(file, "BMP"));
        EXPECT_EQ(loadCustomAppPicture(file).pixmap(20, 20).toImage().pixelColor(10, 10), colour);
    }
}
