// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_test_rules.h"

#include "livetools/virtual_keys.h"

#include <utility>

namespace zeph {

namespace {

constexpr char16_t firstShownCharacter = 19;

} // namespace

KeyDownEffect KeyTestRules::keyDown(int keycode, int shift)
{
    KeyDownEffect effect;
    if (keycode == pauseKeyCode && shift == ShiftDown) {
        effect.emergency = true;
        return effect;
    }
    if (!std::exchange(m_firstKey, false)) {
        m_suppressNextPress = false;
        effect.clearsLists = m_clearOnNextDown;
        m_clearOnNextDown = false;
    }
    effect.turnsOffCapsLock = keycode == capsLockKeyCode;
    effect.eventText = eventLine(m_table, KeyDirection::Down, keycode) + u'\n';
    const KeyText named = WhichKey(m_table, keycode, shift);
    m_suppressNextPress = m_suppressNextPress || named.suppressesPress || !named.text.isEmpty();
    if (!named.text.isEmpty()) {
        effect.keyText = named.text + u'\n';
    }
    return effect;
}

QString KeyTestRules::keyPress(char16_t character)
{
    const bool suppressed = std::exchange(m_suppressNextPress, false);
    if (suppressed || character < firstShownCharacter) {
        return {};
    }
    return u' ' + QString(QChar(character)) + u'\n';
}

QString KeyTestRules::keyUp(int keycode)
{
    m_clearOnNextDown = false;
    return eventLine(m_table, KeyDirection::Up, keycode) + u'\n';
}

std::optional<int> clearDelayMs(int clearDelay)
{
    const bool isEntry = clearDelay >= 0 && clearDelay < clearDelayCount;
    return isEntry ? std::optional((clearDelay + 1) * clearDelayStepMs) : std::nullopt;
}

} // namespace zeph
