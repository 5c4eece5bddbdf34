// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_test_rules.h"

#include "livetools/virtual_keys.h"

#include <array>
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

namespace {

constexpr std::array menus = {
    MenuRow{ u"mnuEmergency", u"EMERGENCY" },
    MenuRow{ u"mnuClear", u"Clear" },
    MenuRow{ u"mnuView", u"View" },
    MenuRow{ u"mnuCopy", u"Copy" },
};

constexpr ActionRow entry(const char16_t *menu, const char16_t *name, const char16_t *caption,
                          ActionKind kind = ActionKind::Entry)
{
    return { menu, name, caption, u"", u"", u"", CommonWhen::Always, kind };
}

constexpr ActionRow tick(const char16_t *menu, const char16_t *name, const char16_t *caption)
{
    return entry(menu, name, caption, ActionKind::Tick);
}

constexpr std::array actions = {
    entry(u"mnuEmergency", u"mnuEmergencyOff", u"Emergency &OFF (switch to Windows mode)"),
    separator(u"mnuEmergency"),
    entry(u"mnuEmergency", u"mnuMemoryClear_0", u"&Empty memory buffers"),
    entry(u"mnuEmergency", u"mnuMemoryClear_1", u"&Clear memory of program"),
    separator(u"mnuEmergency"),
    entry(u"mnuEmergency", u"mnuYankCord", u"&Sod it, just yank the damned cord out!"),
    tick(u"mnuClear", u"mnuClearDelay_0", u"After &200ms from key up"),
    tick(u"mnuClear", u"mnuClearDelay_1", u"After &400ms from key up"),
    tick(u"mnuClear", u"mnuClearDelay_2", u"After &600ms from key up"),
    tick(u"mnuClear", u"mnuClearDelay_3", u"After &800ms from key up"),
    tick(u"mnuClear", u"mnuClearDelay_4", u"After &1000ms from key up"),
    separator(u"mnuClear"),
    entry(u"mnuClear", u"mnuClearAll", u"&Clear now"),
    tick(u"mnuView", u"mnuViewKeyEvents", u"&Key events"),
    separator(u"mnuView"),
    tick(u"mnuView", u"mnuFontSize_0", u"&Small text"),
    tick(u"mnuView", u"mnuFontSize_1", u"&Medium text"),
    tick(u"mnuView", u"mnuFontSize_2", u"&Large text"),
    entry(u"mnuCopy", u"mnuCopyList_0", u"The &keys"),
    entry(u"mnuCopy", u"mnuCopyList_1", u"The key &events"),
    entry(u"", u"mnuDX8KeyTester", u"Zeph's DX8 KeyTester"),
};

} // namespace

std::span<const MenuRow> keyTestMenus()
{
    return menus;
}

std::span<const ActionRow> keyTestActions()
{
    return actions;
}

} // namespace zeph
