// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "preferences/preferences_keys.h"
#include "settings/settings.h"

#include <QList>
#include <QStringList>
#include <QVariant>

class QWidget;

namespace zeph {

/// The fields of a page that edit one setting each: those that fieldsOf() finds by their names. A
/// number field that is left shows the number that take() would read from it.
class SettingFields
{
public:
    SettingFields(const QWidget &page, PreferencesTab tab);

    /// Shows the settings in the fields.
    void show(Settings &settings);
    /// Writes each field that has changed since show() into its setting; a bad value is replaced. A
    /// setting that its field cannot show as it is, such as a text that is too long, stays.
    void take(Settings &settings) const;

private:
    struct Field {
        PreferencesKey key;
        QWidget *control;
        QVariant shown = {}; ///< the field's state after show()
    };

    QList<Field> m_fields;
};

// How the text of a field becomes a value: nothing is refused, a bad value is replaced.

/// The number in a field's text, brought into the setting's range; fractions are rounded, halves to
/// even.
int takenNumber(QStringView text, const SettingRef &setting);

/// The autosave's period in minutes and its tick.
struct AutoSaveFields {
    int AutoSaveTime;
    bool AutoSaveEnabled;

    friend bool operator==(const AutoSaveFields &, const AutoSaveFields &) = default;
};
/// An empty text gives the default period and switches the autosave off.
AutoSaveFields takenAutoSave(QStringView text, bool ticked);

/// The trimmed text; `before` when the store cannot hold it; the setting's default when it is empty
/// ("&Games", "buddy", "User unknown").
QString takenText(const SettingRef &setting, const QString &text, const QString &before);

/// The captions that Preferences offers for the Games menu.
QStringList gamesCaptions();

/// The command line with which the Launcher shows the Files folder.
QString filesDirectoryCommand(const QString &windowsFolder, const QString &filesFolder);

} // namespace zeph
