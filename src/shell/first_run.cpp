// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/first_run.h"

#include "documents/document_settings.h"
#include "documents/foreign_keyboard.h"
#include "editor/editor_settings.h"
#include "lists/favourites.h"
#include "lists/favourites_menu.h"
#include "lists/user_lists.h"
#include "platform/core/profile_list.h"
#include "platform/dialogs.h"
#include "preferences/preferences.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "settings/shared_settings.h"
#include "shell/help_menu.h"
#include "shell/settings/settings_moments.h"
#include "shell/settings/shell_settings.h"
#include "shell/welcome.h"
#include "toolchain/compile/download_menu.h"
#include "toolchain/cougar_tools.h"
#include "toolchain/default_options.h"
#include "toolchain/hotas_folder.h"
#include "toolchain/toolchain_settings.h"

namespace zeph {

namespace {

constexpr int showMeHowTopic = 100;

/// Puts the look that the pilot has chosen into the settings.
void takeLook(const WelcomeAnswers &answers, ColourSettings &colours)
{
    if (answers.darkColours) {
        setDarkColours(colours);
    }
    if (!answers.fontName.isEmpty()) {
        colours.TextFontName = answers.fontName;
    }
}

/// Failures to write the store are ignored: the run goes on with the values in memory.
void writeStore(const Context &context, const WelcomeAnswers &answers, const FirstRunParts &parts)
{
    const SettingsFiles files = settingsFilesOf(context.paths);
    tellProblems(context.dialogs, readColours(context.settings, files));
    takeLook(answers, context.settings.of<ColourSettings>());
    // The pilot may have named another folder, whose file has options of its own.
    const DefaultOptions options = GetDefaultOptions(files);
    context.settings.of<DefaultOptions>().DownloadMode = options.DownloadMode;
    (void)saveGlobalSettings(context.settings, files);
    (void)SaveFilesPath(context.paths);
    (void)SaveColourScheme(context.settings, files);
    parts.lists.save();
    (void)saveFilesFolder(files, context.paths.filesFolder());
    (void)SaveDefaultOptions(options, options, files);
    (void)saveSettings(context.settings, files, { &ToolchainSettings::HotasFolder });
    parts.tools.downloadMenu().applySettings();
}

void showByExperience(int firstTimeUsed, HelpMenu &help)
{
    switch (firstTimeUsed) {
    case 2:
        help.showInformation(u"Information 20.rtf"_s, u"A brief introduction"_s);
        return;
    case 3:
        help.showInformation(u"Information 21.rtf"_s, u"Learning to program"_s);
        return;
    case 4:
        help.showTopic(showMeHowTopic);
        return;
    default:
        return;
    }
}

} // namespace

WelcomeAnswers earlierAnswers(Settings &settings, const Paths &paths)
{
    const auto &shared = settings.of<SharedSettings>();
    const bool isNamed = shared.ValidUser != defaultOf(&SharedSettings::ValidUser);
    const bool isCalled = shared.PilotCallsign != defaultOf(&SharedSettings::PilotCallsign);
    WelcomeAnswers answers = partsOfValidUser(isNamed ? shared.ValidUser : QString(),
                                              isCalled ? shared.PilotCallsign : QString());
    answers.hotasFolder = paths.hotasFolder;
    return answers;
}

void takeWelcomeAnswers(const WelcomeAnswers &answers, Settings &settings, Paths &paths)
{
    const QString user = composeValidUser(answers.firstName, answers.callsign, answers.lastName);
    if (!user.isEmpty()) {
        QString &before = settings.of<SharedSettings>().ValidUser;
        before = storableOr(user, before);
    }
    QString &callsign = settings.of<SharedSettings>().PilotCallsign;
    callsign = storableOr(callsignOrBuddy(answers.callsign), callsign);
    settings.of<ShellSettings>().FirstTimeUsed = firstTimeUsedAfter(answers.experience);
    paths.hotasFolder = answers.hotasFolder;
    QString &folder = settings.of<ToolchainSettings>().HotasFolder;
    folder = storableOr(settingForHotasFolder(answers.hotasFolder, paths.appFolder), folder);
}

void runFirstRun(const Context &context, const FirstRunParts &parts, int welcomeIntervalMs,
                 QWidget *parent)
{
    if (!parts.isRepeated) {
        parts.lists.favourites().add(SetupFlightSimFiles(context.paths.filesFolder()));
    }
    Welcome welcome(context, earlierAnswers(context.settings, context.paths), welcomeIntervalMs,
                    parent);
    new ForeignKeyBSupport(context.keyboard, context.settings.of<DocumentSettings>(), &welcome);
    welcome.exec();
    const WelcomeAnswers answers = welcome.answers();
    takeWelcomeAnswers(answers, context.settings, context.paths);
    writeStore(context, answers, parts);
    parts.tools.profiles().CopyTMCfiles();
    if (!parent->isVisible()) {
        // The main window was closed meanwhile: the program ends with the welcome.
        return;
    }
    showByExperience(context.settings.of<ShellSettings>().FirstTimeUsed, parts.help);
}

} // namespace zeph
