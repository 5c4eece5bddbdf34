// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/mode_rules.h"
#include "toolchain/toolchain_settings.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zeph {

namespace {

constexpr qint16 changeFailed = -1;
constexpr int perSecond = 1000;

/// The halves of the sentence for one reported value.
struct Words {
    qint16 value;
    QStringView axes;
    QStringView buttons;
};

constexpr std::array words = {
    Words{ changeFailed, u"Last mode change reported: Error changing axis mode, ",
           u"error changing buttons mode." },
    Words{ 0, u"Last mode change reported: Windows axes, ", u"Windows buttons." },
    Words{ 1, u"Last mode change reported: User defined axes, ", u"Programmed buttons." },
};
constexpr Words otherWords = { 0, u"Last mode change reported: Unknown axis mode, ",
                               u"unknown buttons mode." };

const Words &wordsOf(qint16 value)
{
    const auto row = std::ranges::find(words, value, &Words::value);
    return row == words.end() ? otherWords : *row;
}

} // namespace

ModePicture pictureOf(qint16 buttons)
{
    switch (buttons) {
    case 0:
        return ModePicture::Windows;
    case 1:
        return ModePicture::Programmed;
    default:
        return ModePicture::Unknown;
    }
}

QString reportInWords(qint16 axes, qint16 buttons)
{
    return wordsOf(axes).axes.toString() + wordsOf(buttons).buttons.toString();
}

QString noJoystickInWords(int joyIdNumber)
{
    return u"No joystick detected on ID"_s + QString::number(joyIdNumber + 1);
}

ModeChange changeAtClick(ModePicture picture, qint16 buttons)
{
    switch (picture) {
    case ModePicture::SelectorOff:
        return buttons == changeFailed ? ModeChange::ToWindows : ModeChange::None;
    case ModePicture::Windows:
        return ModeChange::ToProgrammed;
    case ModePicture::Programmed:
    case ModePicture::Unknown:
        break;
    }
    return ModeChange::ToWindows;
}

std::optional<qint16> detectorInterval(int seconds)
{
    const int interval =
        (seconds < 1 ? defaultOf(&ToolchainSettings::StatusMonitoringInterval) : seconds)
        * perSecond;
    if (interval > std::numeric_limits<qint16>::max()) {
        return std::nullopt;
    }
    return qint16(interval);
}

} // namespace zeph
