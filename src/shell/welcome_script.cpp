// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/welcome_script.h"

#include <QStringList>

#include <array>

namespace zeph {

namespace {

// clang-format off
constexpr std::array script = {
    WelcomeStep{u"Getting ready to run Zeph for the first time ... please wait ...", 6, false, false, WelcomePage::None},
    WelcomeStep{u"Checking installation ...", 6, false, false, WelcomePage::Name},
    WelcomeStep{u"Checking pilot identity ", 8, true, true, WelcomePage::None},
    WelcomeStep{u"Searching for Cougar software ", 8, true, false, WelcomePage::Hotas},
    WelcomeStep{u"Setting up support for current flight sims ", 8, true, false, WelcomePage::Experience},
};
// clang-format on

constexpr std::array options = {
    u"I'm a complete beginner - I've no idea how to program the HOTAS Cougar, but I just want to "
    u"get flying. A brief introduction will do.",
    u"I'm a complete beginner - but I'm keen to have a crack at programming these beauties. Show "
    u"me how.",
    u"I'm one of the old school - I was writing joystick files when controllers still plugged into "
    u"the keyboard port. Just tell me what's different this time round.",
    u"Now look here, I'm a human, you're a computer. I give the orders, you carry them out. So "
    u"stop asking questions and let me get on with it.",
};

} // namespace

QString composeValidUser(const QString &firstName, const QString &callsign, const QString &lastName)
{
    const QString nickname = callsign.trimmed();
    QStringList parts{ firstName.trimmed(), nickname.isEmpty() ? QString() : u'"' + nickname + u'"',
                       lastName.trimmed() };
    parts.removeAll(QString());
    return parts.join(u' ');
}

WelcomeAnswers partsOfValidUser(const QString &validUser, const QString &callsign)
{
    const QString name = validUser.trimmed();
    const QString quoted = u'"' + callsign.trimmed() + u'"';
    const qsizetype at = callsign.trimmed().isEmpty() ? -1 : name.indexOf(quoted);
    const QString first = at >= 0 ? name.left(at) : name.section(u' ', 0, 0);
    const QString last = at >= 0 ? name.mid(at + quoted.size()) : name.section(u' ', 1);
    return { .firstName = first.trimmed(),
             .lastName = last.trimmed(),
             .callsign = callsign.trimmed() };
}

int firstTimeUsedAfter(int experience)
{
    return experience < 0 ? 1 : experience + 2;
}

std::span<const WelcomeStep> welcomeScript()
{
    return script;
}

std::span<const char16_t *const> experienceOptions()
{
    return options;
}

} // namespace zeph
