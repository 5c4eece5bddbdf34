// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/setting_fields.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "menus/menu_settings.h"
#include "platform/core/profile_list.h"
#include "platform/core/units.h"
#include "toolchain/toolchain_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

namespace zeph {

namespace {

/// The line edit of a text field or of an editable list.
QLineEdit *lineOf(QWidget *control)
{
    auto *list = qobject_cast<QComboBox *>(control);
    return list ? list->lineEdit() : qobject_cast<QLineEdit *>(control);
}

/// What a field shows, to tell later whether it was changed.
QVariant stateOf(const PreferencesKey &key, QWidget *control)
{
    switch (key.kind) {
    case FieldKind::Tick:
        return qobject_cast<QCheckBox *>(control)->isChecked();
    case FieldKind::Choice:
        return qobject_cast<QComboBox *>(control)->currentIndex();
    default:
        return lineOf(control)->text();
    }
}

SettingValue taken(const PreferencesKey &key, QWidget *control, const SettingValue &before)
{
    switch (key.kind) {
    case FieldKind::Tick:
        return qobject_cast<QCheckBox *>(control)->isChecked();
    case FieldKind::Choice:
        return qobject_cast<QComboBox *>(control)->currentIndex() + key.first;
    case FieldKind::Number:
        return takenNumber(lineOf(control)->text(), *key.setting);
    default:
        return takenText(*key.setting, lineOf(control)->text(), std::get<QString>(before));
    }
}

void showValue(const PreferencesKey &key, QWidget *control, const SettingValue &value)
{
    switch (key.kind) {
    case FieldKind::Tick:
        qobject_cast<QCheckBox *>(control)->setChecked(std::get<bool>(value));
        break;
    case FieldKind::Choice: {
        auto *list = qobject_cast<QComboBox *>(control);
        list->setCurrentIndex(std::clamp(std::get<int>(value) - key.first, 0, list->count() - 1));
        break;
    }
    case FieldKind::Number:
        lineOf(control)->setText(QString::number(std::get<int>(value)));
        break;
    default:
        lineOf(control)->setText(std::get<QString>(value));
    }
}

} // namespace

SettingFields::SettingFields(const QWidget &page, PreferencesTab tab)
{
    for (const PreferencesKey &key : fieldsOf(page, tab)) {
        auto *control = page.findChild<QWidget *>(key.control.toString());
        m_fields.append({ key, control });
        if (key.kind == FieldKind::Number) {
            QLineEdit *line = lineOf(control);
            QObject::connect(line, &QLineEdit::editingFinished, line, [line, key] {
                // An empty line may mean more to its page than a number.
                if (!line->text().trimmed().isEmpty()) {
                    line->setText(QString::number(takenNumber(line->text(), *key.setting)));
                }
            });
        }
    }
}

void SettingFields::show(Settings &settings)
{
    for (Field &field : m_fields) {
        showValue(field.key, field.control, field.key.setting->value(settings));
        field.shown = stateOf(field.key, field.control);
    }
}

void SettingFields::take(Settings &settings) const
{
    for (const auto &[key, control, shown] : m_fields) {
        if (stateOf(key, control) != shown) {
            key.setting->set(settings, taken(key, control, key.setting->value(settings)));
        }
    }
}

namespace {

enum class Bad { NearestEnd, Default };

/// What replaces a number outside of the range, and a text without a number.
struct NumberRule {
    SettingRef setting;
    Bad outside = Bad::NearestEnd;
    Bad none = Bad::Default;
};

/// The settings whose rule differs from the usual one.
const NumberRule rules[] = {
    { .setting = &EditorSettings::AutoSaveTime, .none = Bad::NearestEnd },
    { .setting = &DocumentSettings::UndoMax, .none = Bad::NearestEnd },
    { .setting = &ToolchainSettings::StatusMonitoringInterval, .outside = Bad::Default },
};

/// Offered after the default caption.
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
