// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/preferences_keys.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "menus/menu_settings.h"
#include "settings/colour_settings.h"
#include "settings/shared_settings.h"
#include "toolchain/default_options.h"
#include "toolchain/toolchain_settings.h"
#include "ui_filespage.h"
#include "ui_miscpage.h"
#include "ui_openpage.h"
#include "ui_zephpage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace zeph {

namespace {

using enum PreferencesTab;
using enum FieldKind;

FieldKind usualKind(const SettingKey &key)
{
    switch (defaultOf(key).index()) {
    case 0:
        return Text;
    case 1:
        return Tick;
    default:
        return Number;
    }
}

PreferencesKey field(PreferencesTab tab, const SettingRef &setting, FieldKind kind)
{
    const SettingKey &key = setting.key();
    return { tab, key.section, key.key, kind, key.key, 0, setting };
}
PreferencesKey field(PreferencesTab tab, const SettingRef &setting)
{
    return field(tab, setting, usualKind(setting.key()));
}

PreferencesKey colour(const SettingRef &setting, int line)
{
    PreferencesKey result = field(ColoursFonts, setting, Colour);
    result.control = u"List1";
    result.first = line;
    return result;
}

PreferencesKey inDefaults(const SettingRef &setting, QStringView control, FieldKind kind = Tick,
                          int first = 0)
{
    PreferencesKey result = field(PreferencesTab::DefaultOptions, setting, kind);
    result.control = control;
    result.first = first;
    return result;
}

PreferencesKey ofList(PreferencesTab tab, QStringView section, QStringView key, FieldKind kind,
                      QStringView control)
{
    return { tab, section, key, kind, control };
}

/// The fields that are not found by their names.
const PreferencesKey table[] = {
    colour(&ColourSettings::BTNColour, 0),
    colour(&ColourSettings::BackgroundColour, 1),
    colour(&ColourSettings::RemStatements, 2),
    colour(&ColourSettings::SlashColour, 3),
    colour(&ColourSettings::RAWColour, 4),
    colour(&ColourSettings::MiscellaneousColour, 5),
    colour(&ColourSettings::MacroBackgroundColour, 6),
    colour(&ColourSettings::JoystickTextDefaultColour, 7),
    colour(&ColourSettings::MacroTextDefaultColour, 8),
    colour(&ColourSettings::MacroListBackground, 9),
    colour(&ColourSettings::MacroListText, 10),
    colour(&ColourSettings::MacroHeadingsBackground, 11),
    colour(&ColourSettings::MacroHeadingsText, 12),
    field(ColoursFonts, &ColourSettings::TextFontName, Entry),
    field(ColoursFonts, &ColourSettings::TextFontSize, Amount),
    field(ColoursFonts, &ColourSettings::TextFontBold),

    field(Apps, &SharedSettings::ImageFilePath),
    field(Apps, &SharedSettings::TextFilePath),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppName1", Text, u"CustomAppName_1"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppPath1", Text, u"CustomAppPath_1"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppUse1", Tick, u"CustomAppUse_1"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppName2", Text, u"CustomAppName_2"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppPath2", Text, u"CustomAppPath_2"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppUse2", Tick, u"CustomAppUse_2"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppName3", Text, u"CustomAppName_3"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppPath3", Text, u"CustomAppPath_3"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppUse3", Tick, u"CustomAppUse_3"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppName4", Text, u"CustomAppName_4"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppPath4", Text, u"CustomAppPath_4"),
    ofList(PreferencesTab::Apps, u"Apps", u"CustomAppUse4", Tick, u"CustomAppUse_4"),

    // One row a field: the first entry's key represents those of all entries.
    ofList(Favourites, u"Favourites", u"FavName1", Text, u"FavName"),
    ofList(Favourites, u"Favourites", u"FavJFPath1", Text, u"FavJFPath"),
    ofList(Favourites, u"Favourites", u"FavMFPath1", Text, u"FavMFPath"),
    ofList(Favourites, u"Favourites", u"FavNameToLoad", MakeDefault, u"cmdMakeDefault"),
    ofList(Favourites, u"Favourites", u"FavLoadOnStart", Tick, u"FavLoadOnStart"),

    ofList(Games, u"Games", u"GameName1", Text, u"GameName"),
    ofList(Games, u"Games", u"GamePath1", Text, u"GamePath"),
    ofList(Games, u"Games", u"GameDIRPath1", Text, u"GameDIRPath"),
    ofList(Games, u"Games", u"GameJF1", Text, u"GameJF"),
    ofList(Games, u"Games", u"GameJFmode1", Tick, u"CheckWindowsMode"),

    inDefaults(&zeph::DefaultOptions::POVhat, u"Combo_defaultPOV", Choice, 1),
    inDefaults(&zeph::DefaultOptions::POVUD, u"CHK_Default_0"),
    inDefaults(&zeph::DefaultOptions::MicrostickMouse, u"CHK_Default_1"),
    inDefaults(&zeph::DefaultOptions::MicrostickUD, u"CHK_Default_2"),
    inDefaults(&zeph::DefaultOptions::TG1enabled, u"CHK_Default_3"),
    inDefaults(&zeph::DefaultOptions::S2enabled, u"CHK_Default_4"),
    inDefaults(&zeph::DefaultOptions::RCSType, u"CHK_Default_5"),
    inDefaults(&zeph::DefaultOptions::MDEFrequired, u"CHK_Default_6"),
    inDefaults(&zeph::DefaultOptions::DownloadMode, u"CHK_Default_7"),
};

/// The settings of a struct with a key of that name, in that section or in any if it is empty.
template <class Struct>
void addNamed(QStringView key, QStringView section, QList<SettingRef> &found)
{
    for (const SettingRow<Struct> &row : Struct::rows()) {
        if (row.key == key && (section.isEmpty() || row.section == section)) {
            found.append(SettingRef(row));
        }
    }
}

/// The setting that a widget edits, by its name; none for a widget without such a name.
std::optional<SettingRef> settingOf(const QWidget &widget)
{
    const QString key = widget.objectName();
    const QString section = widget.property("section").toString();
    QList<SettingRef> found;
    addNamed<SharedSettings>(key, section, found);
    addNamed<MenuSettings>(key, section, found);
    addNamed<DocumentSettings>(key, section, found);
    addNamed<EditorSettings>(key, section, found);
    addNamed<ToolchainSettings>(key, section, found);
    Q_ASSERT_X(found.size() <= 1, "settingOf", qPrintable(key + u" is in several sections"_s));
    return found.isEmpty() ? std::nullopt : std::optional(found.front());
}

template <class Form> QList<PreferencesKey> keysOf(PreferencesTab tab)
{
    QWidget page;
    Form().setupUi(&page);
    return fieldsOf(page, tab);
}

} // namespace

QList<PreferencesKey> fieldsOf(const QWidget &page, PreferencesTab tab)
{
    QList<PreferencesKey> fields;
    for (const QWidget *each : page.findChildren<QWidget *>()) {
        const auto *list = qobject_cast<const QComboBox *>(each);
        const auto *line = qobject_cast<const QLineEdit *>(each);
        const bool isField =
            list || (line && !line->isReadOnly()) || qobject_cast<const QCheckBox *>(each);
        const auto setting = isField ? settingOf(*each) : std::nullopt;
        if (!setting) {
            continue;
        }
        PreferencesKey key = field(tab, *setting);
        if (list && !list->isEditable()) {
            key.kind = Choice;
            key.first = int(setting->key().range.least);
        }
        fields.append(key);
    }
    return fields;
}

const QList<PreferencesKey> &preferencesKeys()
{
    static const QList<PreferencesKey> all = keysOf<Ui::FilesPage>(FileLocations)
        + QList<PreferencesKey>(std::begin(table), std::end(table))
        + keysOf<Ui::OpenPage>(OpenSaveUndo) + keysOf<Ui::MiscPage>(Misc)
        + keysOf<Ui::ZephPage>(Zeph);
    return all;
}

} // namespace zeph
