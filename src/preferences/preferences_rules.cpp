// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/preferences_rules.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "menus/menu_settings.h"
#include "platform/core/storable.h"
#include "platform/core/units.h"
#include "toolchain/toolchain_settings.h"

#include <algorithm>

namespace zeph {

namespace {

enum class Bad { NearestEnd, Default };

/// What a number field takes for a number outside of the range, and for a text without one.
struct NumberRule {
    SettingRef setting;
    Bad outside = Bad::NearestEnd;
    Bad none = Bad::Default;
};

/// The fields that differ from the others.
const NumberRule rules[] = {
    { .setting = &EditorSettings::AutoSaveTime, .none = Bad::NearestEnd },
    { .setting = &DocumentSettings::UndoMax, .none = Bad::NearestEnd },
    { .setting = &ToolchainSettings::StatusMonitoringInterval, .outside = Bad::Default },
};

/// The default is one more.
constexpr QStringView furtherCaptions[] = {
    u"Flight &sims", u"Flight &simulations", u"Fighter &simulations", u"Fighter &sims",
    u"Check si&x",   u"Combat &sims",        u"Combat &simulations",  u"&Sims",
    u"Fl&y",         u"&Shoot! Shoot!",      u"Eat thi&s!",           u"En&gage!",
    u"&Scramble!",   u"Air&borne!",
};

bool beginsWithNumber(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    const qsizetype sign = !trimmed.isEmpty() && (trimmed[0] == u'-' || trimmed[0] == u'+') ? 1 : 0;
    return trimmed.size() > sign && trimmed[sign].unicode() >= u'0'
        && trimmed[sign].unicode() <= u'9';
}

} // namespace

int takenNumber(QStringView text, const SettingRef &setting)
{
    const auto *own = std::ranges::find(rules, setting, &NumberRule::setting);
    const NumberRule rule = own != std::end(rules) ? *own : NumberRule{ setting };
    const SettingRange range = setting.key().range;
    const int missing = std::get<int>(defaultOf(setting.key()));
    if (!beginsWithNumber(text)) {
        return rule.none == Bad::Default ? missing : int(range.nearest(0));
    }
    const double number = roundHalfEven(leadingNumber(text));
    const double nearest = range.nearest(number);
    return nearest != number && rule.outside == Bad::Default ? missing : int(nearest);
}

AutoSaveFields takenAutoSave(QStringView text, bool ticked)
{
    if (text.trimmed().isEmpty()) {
        return { defaultOf(&EditorSettings::AutoSaveTime), false };
    }
    return { takenNumber(text, &EditorSettings::AutoSaveTime), ticked };
}

QString takenText(const SettingRef &setting, const QString &text, const QString &before)
{
    const QString taken = storableOr(text, before);
    return taken.isEmpty() ? std::get<QString>(defaultOf(setting.key())) : taken;
}

QStringList gamesCaptions()
{
    QStringList captions{ defaultOf(&MenuSettings::GamesCaption) };
    for (const QStringView caption : furtherCaptions) {
        captions.append(caption.toString());
    }
    return captions;
}

QString filesDirectoryCommand(const QString &windowsFolder, const QString &filesFolder)
{
    return windowsFolder + u"\\explorer.exe "_s + filesFolder;
}

} // namespace zeph
