// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/setting_fields.h"

#include "preferences/preferences_rules.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

namespace zeph {

namespace {

/// The line in which a text field or a list with free entry is edited.
QLineEdit *lineOf(QWidget *control)
{
    auto *list = qobject_cast<QComboBox *>(control);
    return list ? list->lineEdit() : qobject_cast<QLineEdit *>(control);
}

qint16 takenInteger(const PreferencesKey &key, QWidget *control)
{
    switch (key.kind) {
    case FieldKind::Tick:
        return qobject_cast<QCheckBox *>(control)->isChecked() ? 1 : 0;
    case FieldKind::Choice:
        return qint16(qobject_cast<QComboBox *>(control)->currentIndex() + key.first);
    default:
        return takenNumber(lineOf(control)->text(), numberRuleOf(key.key));
    }
}

void showInteger(const PreferencesKey &key, QWidget *control, qint16 value)
{
    if (key.kind == FieldKind::Tick) {
        qobject_cast<QCheckBox *>(control)->setChecked(value == 1);
    } else if (key.kind == FieldKind::Choice) {
        auto *list = qobject_cast<QComboBox *>(control);
        list->setCurrentIndex(std::clamp(value - key.first, 0, list->count() - 1));
    } else {
        lineOf(control)->setText(QString::number(value));
    }
}

} // namespace

SettingFields::SettingFields(const QWidget &page, PreferencesTab tab)
{
    for (const PreferencesKey &key : preferencesKeys()) {
        const auto setting = std::ranges::find(settingsTable(), key.key, &Setting::key);
        if (key.tab != tab || setting == settingsTable().end()) {
            continue;
        }
        auto *control = page.findChild<QWidget *>(key.control.toString());
        m_fields.append({ key, setting->field, control });
        if (key.kind == FieldKind::Number) {
            QLineEdit *line = lineOf(control);
            QObject::connect(line, &QLineEdit::editingFinished, line, [line, &key] {
                // An empty line may mean more to its page than a number.
                if (!line->text().trimmed().isEmpty()) {
                    line->setText(
                        QString::number(takenNumber(line->text(), numberRuleOf(key.key))));
                }
            });
        }
    }
}

void SettingFields::show(const GlobalSettings &settings) const
{
    for (const Field &field : m_fields) {
        if (const auto *text = std::get_if<QString GlobalSettings::*>(&field.setting)) {
            lineOf(field.control)->setText(settings.**text);
        } else {
            showInteger(field.key, field.control,
                        settings.*std::get<qint16 GlobalSettings::*>(field.setting));
        }
    }
}

void SettingFields::take(GlobalSettings &settings) const
{
    for (const Field &field : m_fields) {
        if (const auto *text = std::get_if<QString GlobalSettings::*>(&field.setting)) {
            settings.**text =
                takenText(field.key.key, lineOf(field.control)->text(), settings.**text);
        } else {
            settings.*std::get<qint16 GlobalSettings::*>(field.setting) =
                takenInteger(field.key, field.control);
        }
    }
}

} // namespace zeph
