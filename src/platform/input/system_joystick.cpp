// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/input/system_joystick.h"

// The program has its own main(), which SDL must not replace.
#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace zeph {

namespace {

constexpr quint32 unreadable = 166;
constexpr SDL_JoystickID nobody = -1;
constexpr int mostButtons = 32;

struct HatRow {
    int hat;
    quint32 pov;
};

constexpr std::array hatRows = {
    HatRow{ SDL_HAT_UP, 0 },           HatRow{ SDL_HAT_RIGHTUP, 4500 },
    HatRow{ SDL_HAT_RIGHT, 9000 },     HatRow{ SDL_HAT_RIGHTDOWN, 13500 },
    HatRow{ SDL_HAT_DOWN, 18000 },     HatRow{ SDL_HAT_LEFTDOWN, 22500 },
    HatRow{ SDL_HAT_LEFT, 27000 },     HatRow{ SDL_HAT_LEFTUP, 31500 },
    HatRow{ SDL_HAT_CENTERED, 65535 },
};

quint32 povOf(SDL_Joystick *stick)
{
    const int hat = SDL_JoystickNumHats(stick) > 0 ? SDL_JoystickGetHat(stick, 0) : 0;
    const auto row = std::ranges::find(hatRows, hat, &HatRow::hat);
    return row == hatRows.end() ? hatRows.back().pov : row->pov;
}

quint32 buttonsOf(SDL_Joystick *stick)
{
    quint32 bits = 0;
    const int count = std::min(SDL_JoystickNumButtons(stick), mostButtons);
    for (int button = 0; button < count; ++button) {
        if (SDL_JoystickGetButton(stick, button) != 0) {
            bits |= quint32(1) << button;
        }
    }
    return bits;
}

/// A controller, whose index stays its own while it is pulled out.
struct Controller {
    SDL_JoystickGUID model;
    SDL_JoystickID instance = nobody;
    SDL_Joystick *stick = nullptr;

    void close()
    {
        if (stick) {
            SDL_JoystickClose(stick);
        }
        stick = nullptr;
        instance = nobody;
    }
};

void setUp()
{
    // SDL does not know Zeph's windows and takes the program to be always in the background. It
    // must not catch the signals that end the program either.
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    // The raw drivers would open game pads for themselves, which other programs may need.
    SDL_SetHint(SDL_HINT_JOYSTICK_HIDAPI, "0");
    SDL_SetHint(SDL_HINT_JOYSTICK_RAWINPUT, "0");
    SDL_SetMainReady();
}

} // namespace

/// The running subsystem and the controllers that it has ever shown.
class SystemJoystick::Devices
{
public:
    Devices()
    {
        setUp();
        m_running = SDL_InitSubSystem(SDL_INIT_JOYSTICK) == 0;
        // States are polled; a queue of events would never be emptied.
        SDL_JoystickEventState(SDL_IGNORE);
    }
    ~Devices()
    {
        for (Controller &controller : m_controllers) {
            controller.close();
        }
        if (m_running) {
            SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
        }
    }
    Devices(const Devices &) = delete;
    Devices &operator=(const Devices &) = delete;

    JoystickReading read(int id)
    {
        if (!m_running) {
            return { .result = badId };
        }
        SDL_JoystickUpdate();
        dropVanished();
        if (openNew()) {
            // What a controller holds is known only from the update after its opening on.
            SDL_JoystickUpdate();
        }
        if (id < 0 || size_t(id) >= m_controllers.size()) {
            return { .result = badId };
        }
        return readingOf(m_controllers[size_t(id)]);
    }

private:
    static int indexOf(SDL_JoystickID instance)
    {
        const int count = SDL_NumJoysticks();
        for (int index = 0; index < count; ++index) {
            if (SDL_JoystickGetDeviceInstanceID(index) == instance) {
                return index;
            }
        }
        return -1;
    }

    static JoystickReading readingOf(Controller &controller)
    {
        if (controller.instance == nobody) {
            return { .result = unplugged };
        }
        if (!controller.stick) {
            // The system may grant the access only a moment after it shows the device.
            controller.stick = SDL_JoystickOpen(indexOf(controller.instance));
        }
        if (!controller.stick) {
            return { .result = unreadable };
        }
        return { answered, buttonsOf(controller.stick), povOf(controller.stick) };
    }

    void dropVanished()
    {
        for (Controller &controller : m_controllers) {
            if (controller.instance != nobody && indexOf(controller.instance) < 0) {
                controller.close();
            }
        }
    }

    /// Opens what was plugged in since the last reading; false when there is nothing new.
    bool openNew()
    {
        bool isNew = false;
        const int count = SDL_NumJoysticks();
        for (int index = 0; index < count; ++index) {
            const SDL_JoystickID instance = SDL_JoystickGetDeviceInstanceID(index);
            if (std::ranges::find(m_controllers, instance, &Controller::instance)
                == m_controllers.end()) {
                Controller &controller = controllerFor(SDL_JoystickGetDeviceGUID(index));
                controller.instance = instance;
                controller.stick = SDL_JoystickOpen(index);
                isNew = true;
            }
        }
        return isNew;
    }

    /// A controller of that model that is pulled out, or a fresh one after all others.
    Controller &controllerFor(const SDL_JoystickGUID &model)
    {
        const auto left =
            std::ranges::find_if(m_controllers, [&model](const Controller &controller) {
                return controller.instance == nobody
                    && std::memcmp(&controller.model, &model, sizeof model) == 0;
            });
        return left != m_controllers.end()
            ? *left
            : m_controllers.emplace_back(Controller{ .model = model });
    }

    bool m_running = false;
    std::vector<Controller> m_controllers;
};

SystemJoystick::SystemJoystick() = default;
SystemJoystick::~SystemJoystick() = default;

JoystickReading SystemJoystick::read(int id)
{
    if (!m_devices) {
        m_devices = std::make_unique<Devices>();
    }
    return m_devices->read(id);
}

} // namespace zeph
