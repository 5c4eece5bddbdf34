// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/profilechooser.h"
#include "toolchain/modes/profiles.h"

#include "platform/control_array.h"
#include "tests/support/toolchain_bench.h"
#include "text/profile_files.h"
#include "toolchain/toolchain_settings.h"

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace zeph;

namespace {

const QString noProfiles = u"You don't even have a Default profile buddy"_s;

class ProfileWindows : public test::ToolchainBench
{
protected:
    ProfileWindows()
    {
        settings.of<ToolchainSettings>().ResetProfile = u"default"_s;
        settings.of<ToolchainSettings>().ResetCalibrate = true;
        settings.of<ToolchainSettings>().UseResetProfile = false;
    }
    void writeProfiles() const
    {
        folder.write(u"Profiles/Default.tmc"_s, "x");
        folder.write(u"Profiles/Alpine.tmc"_s, "x");
    }

    static QListWidget &list(QWidget &form)
    {
        return *form.findChild<QListWidget *>(u"List_Profiles"_s);
    }
    static QStringList names(QWidget &form)
    {
        QStringList names;
        for (int i = 0; i < list(form).count(); ++i) {
            names.append(list(form).item(i)->text());
        }
        return names;
    }
    static QPushButton &button(QWidget &form, const QString &name)
    {
        return *form.findChild<QPushButton *>(name);
    }
    static QRadioButton &option(QWidget &form, int index)
    {
        return *ControlArray<QRadioButton>(&form, u"Option_Calibrate"_s)[index];
    }
};

} // namespace

TEST_F(ProfileWindows, ResetOptionsListTheProfilesAndShowTheStoredValues)
{
    writeProfiles();
    FormResetOptions form(context);
    EXPECT_TRUE(form.UpdateProfiles());
    form.ShowResetValues();
    EXPECT_EQ(form.windowTitle(), u"Reset axes options"_s);
    EXPECT_EQ(names(form), (QStringList{ u"Alpine"_s, u"Default"_s }));
    EXPECT_EQ(list(form).currentItem()->text(), u"Default"_s);
    EXPECT_TRUE(option(form, 1).isChecked());
    EXPECT_TRUE(button(form, u"CMD_OK"_s).isEnabled());
    EXPECT_TRUE(button(form, u"CMD_OK"_s).isDefault());
}

TEST_F(ProfileWindows, OkOfTheResetOptionsStoresTheChoiceAndSwitchesTheResetOn)
{
    writeProfiles();
    FormResetOptions form(context);
    form.UpdateProfiles();
    form.ShowResetValues();
    list(form).setCurrentRow(0);
    option(form, 0).setChecked(true);
    button(form, u"CMD_OK"_s).click();
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_EQ(settings.of<ToolchainSettings>().ResetProfile, u"Alpine"_s);
    EXPECT_EQ(settings.of<ToolchainSettings>().ResetCalibrate, 0);
    EXPECT_EQ(settings.of<ToolchainSettings>().UseResetProfile, 1);
}

TEST_F(ProfileWindows, CancelOfTheResetOptionsChangesNothing)
{
    writeProfiles();
    FormResetOptions form(context);
    form.UpdateProfiles();
    form.ShowResetValues();
    list(form).setCurrentRow(0);
    button(form, u"CMD_Cancel"_s).click();
    EXPECT_EQ(settings.of<ToolchainSettings>().ResetProfile, u"default"_s);
    EXPECT_EQ(settings.of<ToolchainSettings>().UseResetProfile, 0);
}

TEST_F(ProfileWindows, AStoredProfileThatIsGoneLeavesNothingSelectedAndNothingToPress)
{
    writeProfiles();
    settings.of<ToolchainSettings>().ResetProfile = u"Gone"_s;
    FormResetOptions form(context);
    form.UpdateProfiles();
    form.ShowResetValues();
    EXPECT_EQ(list(form).currentItem(), nullptr);
    EXPECT_FALSE(button(form, u"CMD_OK"_s).isEnabled());
    list(form).setCurrentRow(1);
    EXPECT_TRUE(button(form, u"CMD_OK"_s).isEnabled());
}

TEST_F(ProfileWindows, WithNoProfileAtAllBothSayWhatToDo)
{
    FormResetOptions options(context);
    dialogs.answer(noProfiles, BoxButton::Ok);
    EXPECT_FALSE(options.UpdateProfiles());
    EXPECT_EQ(dialogs.boxes().last().text,
              u"No profiles were found in "_s + profilesFolder(paths)
                  + u". You need to run the Cougar Control Panel and allow it to set up at least "
                    "the Default.tmc profile."_s);
    SelectProfileForm select(context);
    dialogs.answer(noProfiles, BoxButton::Ok);
    EXPECT_FALSE(select.UpdateProfiles());
}

TEST_F(ProfileWindows, DownloadingAProfileDoesNotChangeTheStoredOne)
{
    writeProfiles();
    SelectProfileForm form(context);
    EXPECT_TRUE(form.UpdateProfiles());
    EXPECT_EQ(form.windowTitle(), u"Select a profile to download to the Cougar"_s);
    EXPECT_EQ(list(form).currentItem()->text(), u"Default"_s);
    EXPECT_EQ(form.calibration(), CalibrationRequest::Manual);
    list(form).setCurrentRow(0);
    option(form, 0).setChecked(true);
    button(form, u"CMD_Download"_s).click();
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_EQ(form.profile(), u"Alpine"_s);
    EXPECT_EQ(form.calibration(), CalibrationRequest::Auto);
    EXPECT_EQ(settings.of<ToolchainSettings>().ResetProfile, u"default"_s);
    EXPECT_EQ(settings.of<ToolchainSettings>().ResetCalibrate, 1);
    EXPECT_EQ(settings.of<ToolchainSettings>().UseResetProfile, 0);
}

TEST_F(ProfileWindows, ADoubleClickOnAProfileDownloadsIt)
{
    writeProfiles();
    SelectProfileForm form(context);
    form.UpdateProfiles();
    form.show();
    const QPoint place = list(form).visualItemRect(list(form).item(0)).center();
    QTest::mouseClick(list(form).viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list(form).viewport(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_EQ(form.profile(), u"Alpine"_s);
}

TEST_F(ProfileWindows, TheKeyboardStartsInTheList)
{
    writeProfiles();
    SelectProfileForm form(context);
    form.UpdateProfiles();
    form.show();
    EXPECT_EQ(form.focusWidget(), &list(form));
    QTest::keyClick(&list(form), Qt::Key_Up);
    EXPECT_EQ(form.profile(), u"Alpine"_s);
    QTest::keyClick(&list(form), Qt::Key_Return);
    EXPECT_EQ(form.result(), QDialog::Accepted);
}
