// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/profiles.h"

#include "tests/support/toolchain_bench.h"
#include "toolchain/toolchain_settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace zeph;

namespace {

const QString noProfile = u"Cannot find profile in HOTAS Profiles folder"_s;

class ProfilesTest : public test::ToolchainBench
{
protected:
    ProfilesTest()
    {
        settings.of<ToolchainSettings>().ResetProfile = u"Default"_s;
        folder.write(u"Profiles/Default.tmc"_s, "x");
        folder.write(u"Profiles/Rudder only.tmc"_s, "x");
    }

    QStringList started() const
    {
        QStringList lines;
        for (const Launch &launch : launcher.launches) {
            lines.append(nameOf(launch.program) + u' ' + launch.arguments);
        }
        return lines;
    }

    Profiles profiles() { return Profiles(context, *handshake); }
};

} // namespace

TEST_F(ProfilesTest, TheCommandNamesTheProfileInQuotesAndTheCalibration)
{
    EXPECT_TRUE(profiles().ApplyDefaultProfile(u"Rudder only"_s));
    EXPECT_EQ(started(), QStringList{ u"HOTASConfig.exe /MODE /ZEPH /P\"Rudder only.tmc\" /DA"_s });
    EXPECT_EQ(launcher.launches[0].folder, paths.hotasFolder);
    EXPECT_EQ(launcher.launches[0].style, WindowStyle::NormalFocus);
    EXPECT_EQ(status.text(), u" Ready"_s);
}

TEST_F(ProfilesTest, AnEmptyNameMeansTheStoredProfile)
{
    EXPECT_TRUE(profiles().ApplyDefaultProfile());
    EXPECT_EQ(started(), QStringList{ u"HOTASConfig.exe /MODE /ZEPH /P\"Default.tmc\" /DA"_s });
}

TEST_F(ProfilesTest, TheRequestForcesTheCalibrationAndAnyOtherTakesTheStoredOne)
{
    struct Row {
        bool stored;
        CalibrationRequest request;
        QString expected;
    };
    const Row rows[] = {
        { false, CalibrationRequest::Stored, u"/DA"_s },
        { true, CalibrationRequest::Stored, u"/DM"_s },
        { true, CalibrationRequest::Auto, u"/DA"_s },
        { false, CalibrationRequest::Manual, u"/DM"_s },
        { false, CalibrationRequest(7), u"/DA"_s },
        { true, CalibrationRequest(7), u"/DM"_s },
    };
    for (const Row &row : rows) {
        settings.of<ToolchainSettings>().ResetCalibrate = row.stored;
        EXPECT_TRUE(profiles().ApplyDefaultProfile({}, row.request));
        EXPECT_TRUE(launcher.launches.last().arguments.endsWith(row.expected))
            << row.stored << ' ' << int(row.request);
    }
}

TEST_F(ProfilesTest, TheStatusIsMarkedBeforeTheStartAndTheWaitEndsAtTheFirstPoll)
{
    writeMode(u"Status"_s, u""_s);
    QString statusAtStart;
    QString panelAtStart;
    launcher.onStart = [&](const Launch &) {
        statusAtStart = ini().text(u"TMMODE", u"Status", u"none"_s);
        panelAtStart = status.text();
        hasten();
        return Expected<void, QString>();
    };
    EXPECT_TRUE(profiles().ApplyDefaultProfile());
    EXPECT_EQ(statusAtStart, u"OKAY"_s);
    EXPECT_EQ(panelAtStart, u" Applying profile .. please wait ..."_s);
    EXPECT_EQ(modeTicks, 1);
}

TEST_F(ProfilesTest, AToolThatEmptiesTheStatusAndSaysNothingMoreIsGivenUp)
{
    launcher.onStart = [&](const Launch &) {
        writeMode(u"Status"_s, u""_s);
        hasten();
        return Expected<void, QString>();
    };
    dialogs.answer(u"Now this is taking rather a long time buddy, isn't it?!"_s, BoxButton::Ok);
    EXPECT_TRUE(profiles().ApplyDefaultProfile());
    EXPECT_EQ(status.text(), u" Control returned to you"_s);
}

TEST_F(ProfilesTest, AMissingToolIsTold)
{
    QFile::remove(paths.config());
    dialogs.answer(u"Where is the Cougar Control Panel?"_s, BoxButton::Ok);
    EXPECT_TRUE(profiles().ApplyDefaultProfile());
    EXPECT_EQ(dialogs.boxes().first().text,
              u"I couldn't find the Cougar Control Panel - it should be in your HOTAS folder: "_s
                  + paths.hotasFolder);
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(ProfilesTest, AMissingStoredProfileIsToldWithTheWayToChooseAnother)
{
    settings.of<ToolchainSettings>().ResetProfile = u"Gone"_s;
    dialogs.answer(noProfile, BoxButton::Ok);
    // The caller goes on: only the profile's step has stopped.
    EXPECT_TRUE(profiles().ApplyDefaultProfile());
    EXPECT_EQ(dialogs.boxes().first().text,
              u"Error! Unable to find profile: Gone.tmc.\n\nI'm trying to download the above "
              "profile, but I couldn't find it. It should be in your HOTAS Profiles folder. Have "
              "you deleted it? \nSelect the Reset options menu from the Download menu to locate "
              "it or choose another profile."_s);
    EXPECT_TRUE(launcher.launches.isEmpty());
}

TEST_F(ProfilesTest, AnotherMissingProfileIsToldWithoutThatWay)
{
    dialogs.answer(noProfile, BoxButton::Ok);
    EXPECT_TRUE(profiles().ApplyDefaultProfile(u"Gone"_s));
    EXPECT_TRUE(dialogs.boxes().first().text.endsWith(u"Have you deleted it? "_s));
}

TEST_F(ProfilesTest, AProgramThatEndsMeanwhileIsSaidToTheCaller)
{
    launcher.onStart = [&](const Launch &) {
        QTimer::singleShot(0, [this] { handshake.reset(); });
        return Expected<void, QString>();
    };
    EXPECT_FALSE(profiles().ApplyDefaultProfile());
}

class CopyTMCfilesTest : public test::ToolchainBench
{
};

TEST_F(CopyTMCfilesTest, CopiesTheProfilesThatCameWithZeph)
{
    folder.write(u"Files/Default.tmc"_s, "ours");
    folder.write(u"Files/Second.tmc"_s, "ours too");
    folder.write(u"Files/Sample.tmj"_s, "no profile");
    Profiles(context, *handshake).CopyTMCfiles();
    EXPECT_EQ(folder.read(u"Profiles/Default.tmc"_s), "ours");
    EXPECT_EQ(folder.read(u"Profiles/Second.tmc"_s), "ours too");
    EXPECT_FALSE(folder.exists(u"Profiles/Sample.tmj"_s));
}

TEST_F(CopyTMCfilesTest, AProfileThatIsThereIsNotCopiedAgain)
{
    folder.write(u"Files/Default.tmc"_s, "ours");
    folder.write(u"PROFILES/default.TMC"_s, "the pilot's");
    Profiles(context, *handshake).CopyTMCfiles();
    EXPECT_EQ(folder.read(u"PROFILES/default.TMC"_s), "the pilot's");
    EXPECT_EQ(QDir(folder.file(u"PROFILES"_s)).entryList(QDir::Files),
              QStringList{ u"default.TMC"_s });
}

TEST_F(CopyTMCfilesTest, WithoutTheCompilerOrTheFolderNothingHappens)
{
    folder.write(u"Files/Default.tmc"_s, "ours");
    QFile::remove(paths.compiler());
    Profiles(context, *handshake).CopyTMCfiles();
    EXPECT_FALSE(folder.exists(u"Profiles"_s));
    paths.hotasFolder.clear();
    Profiles(context, *handshake).CopyTMCfiles();
    EXPECT_FALSE(folder.exists(u"Profiles"_s));
}

TEST_F(CopyTMCfilesTest, AFileThatCannotBeWrittenIsToldWithItsPath)
{
    folder.write(u"Files/Default.tmc"_s, "ours");
    // A file where the folder should be.
    folder.write(u"Profiles"_s, "x");
    dialogs.answer(u"Unable to copy a profile"_s, BoxButton::Ok);
    Profiles(context, *handshake).CopyTMCfiles();
    EXPECT_TRUE(dialogs.boxes().first().text.contains(u"Default.tmc"_s));
}
