// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "config.h"

#include "platform/core/paths.h"
#include "platform/core/profile_file.h"

#include <algorithm>
#include <iterator>

namespace zeph::standin {

namespace {

enum class Memory : quint8 { Keep, Clear };

/// What a switch does to the modes and the memory.
struct Switch {
    QStringView word;
    std::optional<int> axes;
    std::optional<int> buttons;
    Memory memory;
    QStringView told;
};

constexpr Switch switches[] = {
    { u"/BW", {}, 0, Memory::Keep, u"Buttons in Windows mode." },
    { u"/BU", {}, 1, Memory::Keep, u"Buttons in Programmed mode." },
    { u"/NM", {}, {}, Memory::Keep, u"Modes reported." },
    { u"/AW", 0, {}, Memory::Keep, u"Axes in Windows mode." },
    { u"/AU", 1, {}, Memory::Keep, u"Axes user defined." },
    { u"/EB", {}, {}, Memory::Keep, u"Buffers emptied." },
    { u"/CM", {}, {}, Memory::Clear, u"Memory cleared." },
    // After a reset, as after plugging in, the Cougar is a plain game controller.
    { u"/RS", 0, 0, Memory::Keep, u"Reset." },
};

const Switch *switchOf(const QString &argument)
{
    for (const Switch &row : switches) {
        if (row.word.compare(argument, Qt::CaseInsensitive) == 0)
            return &row;
    }
    return nullptr;
}

/// A switch of the real tool that opens one of its windows.
struct PageSwitch {
    QStringView word;
    QStringView window;
};

constexpr PageSwitch pages[] = {
    { u"/CALIBRATE", u"calibration" },
    { u"/CURVES", u"response curves, trim and deadzones" },
};

struct ModeRequest {
    QList<const Switch *> changes;
    bool isMode = false;
    bool isProfile = false;
    QString profile;
    bool manualCalibration = false;
};

// The profile's name follows /P directly or is the next argument.
ModeRequest requestFrom(const QStringList &arguments)
{
    ModeRequest request;
    for (const QString &argument : arguments) {
        const QString upper = argument.toUpper();
        if (upper == u"/MODE") {
            request.isMode = true;
        } else if (const Switch *change = switchOf(argument)) {
            request.changes.append(change);
        } else if (upper == u"/DM" || upper == u"/DA") {
            request.manualCalibration = upper == u"/DM";
        } else if (upper.startsWith(u"/P")) {
            request.isProfile = true;
            request.profile = argument.sliced(2);
        } else if (request.isProfile && request.profile.isEmpty()) {
            request.profile = argument;
        }
    }
    return request;
}

Outcome finished(Outcome outcome, const Expected<void, FileError> &written)
{
    if (!written)
        outcome.lines.append(u"%1: %2"_s.arg(written.error().path, written.error().reason));
    outcome.exitCode = written ? 0 : 1;
    return outcome;
}

Outcome applyProfile(const ModeRequest &request, const QString &hotasFolder, const ProfileFile &ini,
                     Outcome outcome)
{
    const QString path = hotasFolder + u"Profiles/"_s + nativeSeparators(request.profile);
    if (request.profile.isEmpty() || !fileExists(path)) {
        outcome.lines.append(u"Profile %1 was not found."_s.arg(request.profile));
        return outcome;
    }
    const QString calibration = request.manualCalibration ? u"manual"_s : u"auto"_s;
    outcome.lines.append(u"Profile %1 kept, %2 calibration."_s.arg(request.profile, calibration));
    const QString section = memorySection.toString();
    return finished(outcome,
                    ini.write({ { section, u"LoadedProfile"_s, request.profile },
                                { section, u"Calibration"_s, calibration } }));
}

/// Names the window that the real tool would open.
Outcome panelWindow(const QStringList &arguments, Outcome outcome)
{
    QString window = u"main"_s;
    for (const QString &argument : arguments) {
        const auto *page =
            std::find_if(std::begin(pages), std::end(pages), [&argument](const PageSwitch &row) {
                return row.word.compare(argument, Qt::CaseInsensitive) == 0;
            });
        if (page == std::end(pages)) {
            outcome.lines.append(u"The request was not understood."_s);
            return outcome;
        }
        window = page->window.toString();
    }
    outcome.lines.append(
        u"The Control Panel's windows belong to the real tool. Asked for: %1."_s.arg(window));
    outcome.exitCode = 0;
    return outcome;
}

Outcome changeModes(const ModeRequest &request, const ProfileFile &ini, const Options &options,
                    Outcome outcome)
{
    qint32 axes = ini.integer(modeSection, u"Axes", 0);
    qint32 buttons = ini.integer(modeSection, u"Buttons", 0);
    QList<ProfileEntry> entries;
    for (const Switch *change : request.changes) {
        axes = change->axes.value_or(axes);
        buttons = change->buttons.value_or(buttons);
        if (change->memory == Memory::Clear)
            entries.append({ memorySection.toString(), u"LoadedFile"_s, {} });
        outcome.lines.append(change->told.toString());
    }
    const QString section = modeSection.toString();
    entries.append({ section, u"Axes"_s, QString::number(options.axes.value_or(axes)) });
    entries.append({ section, u"Buttons"_s, QString::number(options.buttons.value_or(buttons)) });
    entries.append({ section, u"Status"_s, u"OKAY"_s });
    return finished(outcome, ini.write(entries));
}

} // namespace

Outcome runConfig(const QStringList &arguments, const QString &hotasFolder, const Options &options)
{
    Outcome outcome{ 1, { introduction(u"HOTASConfig") } };
    const ModeRequest request = requestFrom(arguments);
    if (!request.isMode) {
        return panelWindow(arguments, outcome);
    }
    if (!request.isProfile && request.changes.isEmpty()) {
        outcome.lines.append(u"The request was not understood."_s);
        return outcome;
    }
    waitFor(options);
    if (options.silent) {
        outcome.lines.append(u"No answer is written, as ordered."_s);
        return outcome;
    }
    const QString found = existingPath(hotasFolder + u"HOTAS.ini"_s);
    const ProfileFile ini(found.isEmpty() ? hotasFolder + u"HOTAS.ini"_s : found,
                          ProfileUse::Shared);
    if (request.isProfile)
        return applyProfile(request, hotasFolder, ini, outcome);
    return changeModes(request, ini, options, outcome);
}

} // namespace zeph::standin
