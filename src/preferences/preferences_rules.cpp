// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/preferences_rules.h"

#include "platform/core/storable.h"
#include "platform/core/units.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zeph {

namespace {

constexpr qint16 largest = std::numeric_limits<qint16>::max();

constexpr std::array rules = {
    NumberRule{ u"AutoSaveTime", 1, largest, 1, largest, 1 },
    NumberRule{ u"UndoMax", 10, 30000, 10, 30000, 10 },
    NumberRule{ u"StatusMonitoringInterval", 0, 60, 3, 3, 3 },
    NumberRule{ u"DefaultDLYvalue", 0, largest, 0, largest, 60 },
    NumberRule{ u"IndentSpaces", 0, 80, 0, 80, 5 },
};

constexpr qint16 autoSaveWithoutNumber = 10;

struct Replacement {
    QStringView key;
    QStringView text;
};

constexpr std::array replacements = {
    Replacement{ u"GamesCaption", u"&Games" },
    Replacement{ u"PilotCallsign", u"buddy" },
    Replacement{ u"ValidUser", u"User unknown" },
};

constexpr std::array<QStringView, 15> captions = {
    u"&Games",        u"Flight &sims", u"Flight &simulations", u"Fighter &simulations",
    u"Fighter &sims", u"Check si&x",   u"Combat &sims",        u"Combat &simulations",
    u"&Sims",         u"Fl&y",         u"&Shoot! Shoot!",      u"Eat thi&s!",
    u"En&gage!",      u"&Scramble!",   u"Air&borne!",
};

bool beginsWithNumber(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    const qsizetype sign = !trimmed.isEmpty() && (trimmed[0] == u'-' || trimmed[0] == u'+') ? 1 : 0;
    return trimmed.size() > sign && trimmed[sign].unicode() >= u'0'
        && trimmed[sign].unicode() <= u'9';
}

} // namespace

std::span<const NumberRule> numberRules()
{
    return rules;
}

const NumberRule &numberRuleOf(QStringView key)
{
    return *std::ranges::find(rules, key, &NumberRule::key);
}

qint16 takenNumber(QStringView text, const NumberRule &rule)
{
    if (!beginsWithNumber(text)) {
        return rule.ifNone;
    }
    const double number = roundHalfEven(leadingNumber(text));
    return number < rule.least ? rule.ifBelow : number > rule.most ? rule.ifAbove : qint16(number);
}

AutoSaveFields takenAutoSave(QStringView text, bool ticked)
{
    if (text.trimmed().isEmpty()) {
        return { autoSaveWithoutNumber, 0 };
    }
    return { takenNumber(text, numberRuleOf(u"AutoSaveTime")), ticked ? qint16(1) : qint16(0) };
}

QString takenText(QStringView key, const QString &text, const QString &before)
{
    const QString trimmed = storableOr(text, before);
    const auto *replacement = std::ranges::find(replacements, key, &Replacement::key);
    return trimmed.isEmpty() && replacement != replacements.end() ? replacement->text.toString()
                                                                  : trimmed;
}

std::span<const QStringView> gamesCaptions()
{
    return captions;
}

QString filesDirectoryCommand(const QString &windowsFolder, const QString &filesFolder)
{
    return windowsFolder + u"\\explorer.exe "_s + filesFolder;
}

} // namespace zeph
