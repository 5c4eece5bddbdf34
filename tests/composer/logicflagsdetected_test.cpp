// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/logicflagsdetected.h"

#include "composer/logic_flags_settings.h"
#include "platform/core/profile_file.h"
#include "tests/composer/pages/page_fixture.h"

#include <QSignalSpy>

using namespace zeph;

namespace {

class FlagsWindow : public test::PageTest
{
protected:
    void SetUp() override { openPage(InsertOptions::Logical); }
    LogicFlagsDetected &openFlags()
    {
        click(u"CMD_ShowFlags"_s);
        return *windows.get<LogicFlagsDetected>();
    }
    bool isGreen(const QWidget &window, int flag)
    {
        const auto *label = window.findChild<QLabel *>(u"Label1_%1"_s.arg(flag - 1));
        return label->palette().color(QPalette::Window) == QColor(0, 255, 0);
    }
    QList<int> usedFlags(const QWidget &window)
    {
        QList<int> used;
        for (int flag = 1; flag <= 48; ++flag) {
            if (!isGreen(window, flag)) {
                used.append(flag);
            }
        }
        return used;
    }
};

} // namespace

TEST_F(FlagsWindow, FreeFlagsAreGreen)
{
    setJoystick(u"DEF X1 S1 AND (X12)\nBTN X48 a\nRem X5 is free \nDEF X7=X8\nNOT X9"_s);
    EXPECT_EQ(usedFlags(openFlags()), (QList<int>{ 1, 12, 48 }));
    EXPECT_EQ(status.text(), u" Unassigned flags indicated in green"_s);
}

TEST_F(FlagsWindow, AnEmptyFileLeavesAllFlagsGreenAndTheStatusAsItBegan)
{
    setJoystick(u" \n "_s);
    EXPECT_EQ(usedFlags(openFlags()), QList<int>());
    EXPECT_EQ(status.text(), u" Identifying unassigned logical flags ..."_s);
}

TEST_F(FlagsWindow, AFlagThatIsUsedAgainLosesItsGreen)
{
    LogicFlagsDetected &window = openFlags();
    EXPECT_TRUE(isGreen(window, 2));
    setJoystick(u"DEF X2 S1"_s);
    window.CheckForUnassignedFlags();
    EXPECT_FALSE(isGreen(window, 2));
    EXPECT_EQ(window.findChild<QLabel *>(u"Label1_1"_s)->accessibleName(), u"X2 is used"_s);
}

TEST_F(FlagsWindow, ItLooksAgainWhenItIsShown)
{
    LogicFlagsDetected &window = openFlags();
    window.hide();
    setJoystick(u"DEF X2 S1"_s);
    window.show();
    EXPECT_EQ(usedFlags(window), QList<int>{ 2 });
}

TEST_F(FlagsWindow, ItsButtonIsTheEntryOfTheFlagViewer)
{
    LogicFlagsDetected &window = openFlags();
    QSignalSpy started(editor->action(u"MnuDiagArray_5"), &QAction::triggered);
    window.findChild<QPushButton *>(u"CMD_FlagViewer"_s)->click();
    EXPECT_EQ(started.count(), 1);
}

TEST_F(FlagsWindow, ItsPlaceIsKeptWhenItCloses)
{
    openFlags().move(150, 90);
    windows.get<LogicFlagsDetected>()->close();
    const ProfileFile store(paths.iniPath);
    EXPECT_EQ(store.text(u"Logical Flags Detector", u"LogicDetectorLeft"), u"2250"_s);
    EXPECT_EQ(store.text(u"Logical Flags Detector", u"LogicDetectorTop"), u"1350"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(openFlags().pos(), QPoint(150, 90));
}

TEST(LogicFlagsSettings, AreNoPartOfTheGlobalSave)
{
    for (const SettingKey &key : LogicFlagsSettings::rows()) {
        EXPECT_EQ(key.section, u"Logical Flags Detector");
        EXPECT_FALSE(key.isSaved()) << key.key.toString().toStdString();
    }
}
