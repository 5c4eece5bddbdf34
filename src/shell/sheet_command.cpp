// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/sheet_command.h"

#include "layouts/analysis/box_colours.h"
#include "layouts/analysis/box_texts.h"
#include "layouts/draw/first_sheet.h"
#include "layouts/draw/sheet_exports.h"
#include "layouts/files/layouts_settings.h"
#include "platform/console.h"
#include "platform/core/per_user_folder.h"
#include "platform/package.h"
#include "settings/colour_settings.h"
#include "shell/settings/settings_moments.h"
#include "text/text_lines.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace zeph {

namespace {

constexpr QStringView sheetOption = u"--sheet";
constexpr QStringView outOption = u"--out";
constexpr QStringView scaleOption = u"--scale";
constexpr QStringView options[] = { sheetOption, outOption, scaleOption };

/// The option that an argument is, alone or with its value after "="; empty for any other argument.
QString optionOf(const QString &argument)
{
    const QString name = argument.section(u'=', 0, 0);
    return std::ranges::find(options, name) == std::end(options) ? QString() : name;
}

QString endingOf(const QString &path)
{
    return QFileInfo(path).suffix().toLower();
}

/// The values of the options and, under the empty name, the file.
Expected<QHash<QString, QString>, QString> valuesOf(const QStringList &arguments)
{
    QHash<QString, QString> values;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        const QString option = optionOf(argument);
        QString value = option.isEmpty() ? argument : argument.section(u'=', 1);
        if (option.isEmpty() && argument.startsWith(u"--")) {
            return Unexpected<QString>(u"There is no option %1."_s.arg(argument));
        }
        if (!option.isEmpty() && !argument.contains(u'=')) {
            if (++i == arguments.size()) {
                return Unexpected<QString>(u"%1 has no value."_s.arg(option));
            }
            value = arguments[i];
        }
        if (values.contains(option)) {
            return Unexpected<QString>(option.isEmpty()
                                           ? u"There is more than one joystick file: "_s + value
                                           : u"%1 is there twice."_s.arg(option));
        }
        values.insert(option, value);
    }
    return values;
}

/// The settings as the program would read them at a start, without a first run.
Settings settingsFrom(const SettingsFiles &files)
{
    Settings settings;
    // What could not be read has its default; the program itself tells of it.
    (void)readColours(settings, files);
    if (!isSetUp(files)) {
        setFirstRunColours(settings.of<ColourSettings>());
    }
    (void)readLayoutsSettings(settings, files, std::nullopt);
    return settings;
}

CharFormat plainOf(const LayoutsSettings &layouts)
{
    CharFormat plain;
    plain.family = layouts.LOTextFont;
    plain.pointSize = layouts.LOTextFontSize;
    plain.bold = layouts.LOTextFontBold;
    return plain;
}

std::vector<RichText> colouredTexts(SheetKind kind, const QStringList &texts, Settings &settings,
                                    const SettingsFiles &files)
{
    const LayoutsSettings &layouts = settings.of<LayoutsSettings>();
    const BoxLook look{ settings.of<ColourSettings>().joystickScheme(), plainOf(layouts) };
    const TextStyles styles = readLayoutStyles(files.layoutsIni);
    std::vector<RichText> result;
    for (const QString &text : texts) {
        RichText box = RichText::plain(text, plainOf(layouts));
        if (layouts.LayoutApplyColour) {
            box = ApplyColours(kind, std::move(box), look);
            if (layouts.HighlightingMethod) {
                box = ApplyUMDcolours(std::move(box), styles, look.colours.rem);
            }
        }
        result.push_back(std::move(box));
    }
    return result;
}

QString told(const FileError &error)
{
    return error.path + u": "_s + error.reason;
}

} // namespace

QString sheetUsage()
{
    return u"zeph --sheet joystick|throttle --out FILE.(pdf|svg|png|html) [--scale 1|2|4] FILE.tmj"_s;
}

bool isSheetCommand(const QStringList &arguments)
{
    return std::ranges::any_of(
        arguments, [](const QString &argument) { return !optionOf(argument).isEmpty(); });
}

Expected<SheetCommand, QString> sheetCommandOf(const QStringList &arguments)
{
    const auto values = valuesOf(arguments);
    if (!values) {
        return Unexpected<QString>(values.error());
    }
    const auto value = [&values](QStringView option) {
        return values->value(option.toString());
    };
    SheetCommand command{ .out = value(outOption), .file = value({}) };
    const QString sheet = value(sheetOption);
    if (sheet != u"joystick" && sheet != u"throttle") {
        return Unexpected<QString>(u"--sheet takes joystick or throttle."_s);
    }
    command.sheet = sheet == u"joystick" ? SheetKind::Joystick : SheetKind::Throttle;
    if (!exportEndings().contains(endingOf(command.out))) {
        return Unexpected<QString>(u"--out takes a file that ends in .pdf, .svg, .png or .html."_s);
    }
    if (values->contains(scaleOption.toString())) {
        static const QStringList scales = { u"1"_s, u"2"_s, u"4"_s };
        if (!scales.contains(value(scaleOption))) {
            return Unexpected<QString>(u"--scale takes 1, 2 or 4."_s);
        }
        command.scale = value(scaleOption).toInt();
    }
    if (command.file.isEmpty()) {
        return Unexpected<QString>(u"There is no joystick file to make the sheet of."_s);
    }
    return command;
}

Expected<void, QString> writeSheet(const SheetCommand &command, const QString &appFolder,
                                   const QDateTime &now)
{
    const QString existing = existingPath(command.file);
    const QString path = QDir::toNativeSeparators(
        QFileInfo(existing.isEmpty() ? command.file : existing).absoluteFilePath());
    const auto bytes = readWholeFile(path);
    if (!bytes) {
        return Unexpected<QString>(told(bytes.error()));
    }
    const auto text = documentText(*bytes);
    if (!text) {
        return Unexpected<QString>(path + u": it is no text file."_s);
    }
    const QString folder = withClosingSeparator(appFolder);
    const SettingsFiles files = settingsFilesOf({ appFolder, folder, folder + u"Zeph.ini"_s });
    Settings settings = settingsFrom(files);
    const LayoutsSettings &layouts = settings.of<LayoutsSettings>();

    const SheetKind kind = command.sheet;
    const auto analysed = AnalyseAndExtract(*text);
    const FileCaption caption{ path, now };
    const QStringList texts =
        analysed ? AnalyseJoystickFile(kind, *analysed, caption) : ClearAllTextboxes(kind);
    const ControlsImage image = controlsImage(kind, appFolder, files.store);
    const CharFormat plain = plainOf(layouts);
    SheetLook look = lookOf(image, plain);
    look.leaderLines = layouts.LeaderLines;
    const Sheet sheet = firstSheetForAll(kind, QSize(layouts.DefImageX, layouts.DefImageY),
                                         colouredTexts(kind, texts, settings, files), image, plain);
    const auto file = exportSheet(endingOf(command.out), sheet, look,
                                  QFileInfo(path).completeBaseName(), command.scale);
    if (!file) {
        return Unexpected<QString>(command.out + u": "_s + file.error());
    }
    if (const auto written = writeFileAtomically(command.out, *file); !written) {
        return Unexpected<QString>(told(written.error()));
    }
    return {};
}

SheetExit runSheetCommand(const QStringList &arguments, const QString &appFolder,
                          const QDateTime &now)
{
    const auto tell = [](const QString &line) {
        tellConsole(Stream::Errors, line + u'\n');
    };
    const auto command = sheetCommandOf(arguments);
    if (!command) {
        tell(command.error());
        tell(u"Usage: "_s + sheetUsage());
        return SheetExit::WrongArguments;
    }
    if (const auto written = writeSheet(*command, appFolder, now); !written) {
        tell(written.error());
        return SheetExit::Failed;
    }
    return SheetExit::Done;
}

QString sheetCommandFolder(const QString &executableFolder, const QString &perUser)
{
    // The program makes a folder of the user's own where it cannot or may not write beside itself.
    const bool isOthers =
        readPackage(executableFolder).isShared || !canMakeFilesIn(executableFolder);
    return nativeSeparators(
        isOthers && QFileInfo::exists(perUser + u"/Zeph.ini"_s) ? perUser : executableFolder);
}

} // namespace zeph
