// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "joystick_steps.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <algorithm>

namespace {

// Those of the Cougar; the 32nd is the last that a reading can tell.
constexpr int cougarButtons = 28;
constexpr int axisCount = 8;
constexpr Uint16 vendor = 0x044f;
constexpr Uint16 product = 0x0400;

struct HatRow {
    const char *name;
    Uint8 value;
};

constexpr HatRow hatRows[] = {
    { "U", SDL_HAT_UP },      { "UR", SDL_HAT_RIGHTUP },   { "R", SDL_HAT_RIGHT },
    { "D", SDL_HAT_DOWN },    { "DL", SDL_HAT_LEFTDOWN },  { "L", SDL_HAT_LEFT },
    { "UL", SDL_HAT_LEFTUP }, { "DR", SDL_HAT_RIGHTDOWN }, { "M", SDL_HAT_CENTERED },
};

int indexOf(SDL_Joystick *stick)
{
    const SDL_JoystickID instance = SDL_JoystickInstanceID(stick);
    for (int index = 0; index < SDL_NumJoysticks(); ++index) {
        if (SDL_JoystickGetDeviceInstanceID(index) == instance) {
            return index;
        }
    }
    return -1;
}

/// The visible labels of Quick View's controls that are bold, by their numbers.
QStringList boldLabels()
{
    const QString start = QStringLiteral("Label1_");
    QList<int> numbers;
    for (const QWidget *widget : QApplication::allWidgets()) {
        const QString name = widget->objectName();
        if (name.startsWith(start) && widget->isVisible() && widget->font().bold()) {
            numbers.append(name.mid(start.size()).toInt());
        }
    }
    std::sort(numbers.begin(), numbers.end());
    QStringList names;
    for (const int number : numbers) {
        names.append(start + QString::number(number));
    }
    return names;
}

} // namespace

JoystickSteps::~JoystickSteps()
{
    if (m_stick) {
        SDL_JoystickClose(m_stick);
    }
    if (m_runs) {
        SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
    }
}

std::optional<bool> JoystickSteps::perform(const QString &verb, const QString &rest)
{
    const QStringList words = rest.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (verb == QLatin1String("stick")) {
        m_ticks = 0;
        countTicks();
        return act(words.value(0), words.mid(1));
    }
    if (verb == QLatin1String("bold")) {
        countTicks();
        return bold(words);
    }
    if (verb == QLatin1String("ticks")) {
        countTicks();
        return m_ticks >= rest.toInt();
    }
    return std::nullopt;
}

bool JoystickSteps::act(const QString &verb, const QStringList &words)
{
    const QString first = words.value(0);
    if (verb == QLatin1String("in")) {
        return plugIn(first.isEmpty() ? cougarButtons : first.toInt());
    }
    if (!m_stick) {
        return false;
    }
    if (verb == QLatin1String("out")) {
        return pullOut();
    }
    if (verb == QLatin1String("down") || verb == QLatin1String("up")) {
        setButtons(words, verb == QLatin1String("down"));
        return true;
    }
    if (verb == QLatin1String("hat")) {
        const auto *row =
            std::find_if(std::begin(hatRows), std::end(hatRows), [&first](const HatRow &each) {
                return first == QLatin1String(each.name);
            });
        return row != std::end(hatRows) && SDL_JoystickSetVirtualHat(m_stick, 0, row->value) == 0;
    }
    return verb == QLatin1String("axis")
        && SDL_JoystickSetVirtualAxis(m_stick, first.toInt(), Sint16(words.value(1).toInt())) == 0;
}

bool JoystickSteps::plugIn(int buttons)
{
    if (!m_runs) {
        // The program may not have looked at a controller yet, and the pilot's must outlive its
        // looks. Both share the subsystem.
        SDL_SetMainReady();
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        m_runs = SDL_InitSubSystem(SDL_INIT_JOYSTICK) == 0;
    }
    SDL_VirtualJoystickDesc desc{};
    desc.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
    desc.type = SDL_JOYSTICK_TYPE_FLIGHT_STICK;
    desc.naxes = axisCount;
    desc.nbuttons = Uint16(buttons);
    desc.nhats = 1;
    desc.vendor_id = vendor;
    desc.product_id = product;
    desc.name = "Virtual stick";
    const int index = m_stick ? -1 : SDL_JoystickAttachVirtualEx(&desc);
    if (index < 0) {
        return false;
    }
    m_stick = SDL_JoystickOpen(index);
    m_notes.note(QStringLiteral("stick is controller %1").arg(index));
    return m_stick != nullptr;
}

bool JoystickSteps::pullOut()
{
    const bool isOut = SDL_JoystickDetachVirtual(indexOf(m_stick)) == 0;
    SDL_JoystickClose(m_stick);
    m_stick = nullptr;
    return isOut;
}

void JoystickSteps::setButtons(const QStringList &numbers, bool isDown)
{
    for (const QString &number : numbers) {
        SDL_JoystickSetVirtualButton(m_stick, number.toInt(), isDown ? SDL_PRESSED : SDL_RELEASED);
    }
}

bool JoystickSteps::bold(const QStringList &wanted)
{
    const QStringList labels = boldLabels();
    const bool any = wanted == QStringList{ QStringLiteral("any") };
    const bool none = wanted == QStringList{ QStringLiteral("none") };
    if (!any && labels != (none ? QStringList() : wanted)) {
        return false;
    }
    m_notes.note(
        QStringLiteral("bold after %1 ticks: %2").arg(m_ticks).arg(labels.join(QLatin1Char(' '))));
    return true;
}

/// The window's timer comes and goes with the window.
void JoystickSteps::countTicks()
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        auto *timer = window->findChild<QTimer *>(QStringLiteral("JoyTimer"));
        if (timer && timer != m_timer) {
            m_timer = timer;
            connect(timer, &QTimer::timeout, this, [this] { ++m_ticks; });
        }
    }
}
