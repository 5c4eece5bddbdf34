// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/tumbo_menus.h"

#include <array>

namespace zeph {

namespace {

constexpr std::array menus = {
    MenuRow{ u"mnuTumboStatement", u"&Statement" },
    MenuRow{ u"mnuTumboView", u"&View" },
    MenuRow{ u"mnuTumboOptions", u"&Options" },
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

// clang-format off
constexpr std::array actions = {
    entry(u"mnuTumboStatement", u"mnuCreatePRraw", u"&Create /P /R statement using KD, KU codes"),
    entry(u"mnuTumboStatement", u"mnuAddRemCombined", u"Create statement from USB combined with &REM"),
    tick(u"mnuTumboView", u"mnuViewKDKUUSB_0", u"&KD, KU"),
    tick(u"mnuTumboView", u"mnuViewKDKUUSB_1", u"&USB codes"),
    separator(u"mnuTumboView"),
    tick(u"mnuTumboView", u"mnuViewCodes", u"C&ode boxes"),
    tick(u"mnuTumboView", u"mnuViewUSBcodes", u"&Controllers"),
    tick(u"mnuTumboView", u"mnuHideBasicHelp", u"&Hide the help for beginners"),
    tick(u"mnuTumboOptions", u"mnuOption1_0", u"Add a carriage &return when inserting"),
    tick(u"mnuTumboOptions", u"mnuOption1_1", u"Add &KD(), KU()"),
    tick(u"mnuTumboOptions", u"mnuOption1_2", u"Write shifted symbols with &SHF"),
};
// clang-format on

} // namespace

std::span<const MenuRow> tumboMenus()
{
    return menus;
}

std::span<const ActionRow> tumboActions()
{
    return actions;
}

} // namespace zeph
