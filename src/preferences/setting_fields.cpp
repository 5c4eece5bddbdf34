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
    for (const PreferencesKey &key : preferencesKeys()) {
        if (key.tab != tab || !key.setting) {
            continue;
        }
        auto *control = page.findChild<QWidget *>(key.control.toString());
        m_fields.append({ key, control });
        if (key.kind == FieldKind::Number) {
            QLineEdit *line = lineOf(control);
            QObject::connect(line, &QLineEdit::editingFinished, line, [line, &key] {
                // An empty line may mean more to its page than a number.
                if (!line->text().trimmed().isEmpty()) {
                    line->setText(QString::number(takenNumber(line->text(), *key.setting)));
                }
            });
        }
    }
}

void SettingFields::show(Settings &settings) const
{
    for (const auto &[key, control] : m_fields) {
        showValue(key, control, key.setting->value(settings));
    }
}

void SettingFields::take(Settings &settings) const
{
    for (const auto &[key, control] : m_fields) {
        key.setting->set(settings, taken(key, control, key.setting->value(settings)));
    }
}

} // namespace zeph
