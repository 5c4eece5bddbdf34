// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "preferences/preferences_keys.h"
#include "settings/settings.h"

#include <QList>
#include <QStringList>

class QWidget;

namespace zeph {

/// The fields of a page that each edit one setting: those that fieldsOf() finds by their names.
class SettingFields
{
public:
    SettingFields(const QWidget &page, PreferencesTab tab);

    /// Number fields show what will be taken of them as soon as they are left.
    void show(Settings &settings) const;
    /// Takes every field by its rule.
    void take(Settings &settings) const;

private:
    struct Field {
        PreferencesKey key;
        QWidget *control;
    };

    QList<Field> m_fields;
};

// What becomes of a field of Preferences when it is taken: nothing is refused, a bad value is
// replaced.

/// A field's text as a number in the setting's range; fractions are rounded, halves to even.
int takenNumber(QStringView text, const SettingRef &setting);

/// The period of the autosave, and its tick.
struct AutoSaveFields {
    int AutoSaveTime;
    bool AutoSaveEnabled;

    friend bool operator==(const AutoSaveFields &, const AutoSaveFields &) = default;
};
/// An empty field gives the default and turns the autosave off.
AutoSaveFields takenAutoSave(QStringView text, bool ticked);

/// A text without the blanks around it; what the field had before when the store cannot hold it;
/// the setting's default when it is empty ("&Games", "buddy", "User unknown").
QString takenText(const SettingRef &setting, const QString &text, const QString &before);

/// What Preferences offers for the caption of the Games menu.
QStringList gamesCaptions();

/// The command line with which the Launcher shows the Files folder.
QString filesDirectoryCommand(const QString &windowsFolder, const QString &filesFolder);

} // namespace zeph
