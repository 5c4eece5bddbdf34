// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/global_settings.h"
#include "platform/handlers.h"
#include "platform/status_line.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zeph {

namespace {

bool isWithin32Bits(double number)
{
    return number >= std::numeric_limits<qint32>::min()
        && number <= std::numeric_limits<qint32>::max();
}

/// The whole text as a number within 32 bits. Files from other countries have a decimal comma.
std::optional<double> wholeNumber(QString text)
{
    bool good = false;
    const double number = text.trimmed().replace(u',', u'.').toDouble(&good);
    return good && isWithin32Bits(number) ? std::optional(number) : std::nullopt;
}

/// Sets a field from a text of its form. False, and the field as it was, when the text is none.
struct FieldSetter {
    GlobalSettings &settings;
    const Setting &setting;
    const QString &text;

    bool operator()(QString GlobalSettings::*field) const
    {
        if (setting.form == SettingForm::Number && !wholeNumber(text)) {
            return false;
        }
        settings.*field = text;
        return true;
    }
    bool operator()(qint16 GlobalSettings::*field) const
    {
        const qint32 number = profile::integerOf(text, profile::integerOf(missing(), 0));
        if (number != qint16(number)) {
            return false;
        }
        settings.*field = qint16(number);
        return true;
    }
    bool operator()(ColorRef GlobalSettings::*field) const
    {
        const auto colour = colorRefFromText(text);
        if (colour) {
            settings.*field = *colour;
        }
        return colour.has_value();
    }
    QString missing() const { return setting.missing.toString(); }
};

bool setField(GlobalSettings &settings, const Setting &setting, const QString &text)
{
    return std::visit(FieldSetter{ settings, setting, text }, setting.field);
}

QString fieldText(const GlobalSettings &settings, const Setting &setting)
{
    struct {
        const GlobalSettings &settings;
        QString operator()(QString GlobalSettings::*field) const { return settings.*field; }
        QString operator()(qint16 GlobalSettings::*field) const
        {
            return QString::number(settings.*field);
        }
        QString operator()(ColorRef GlobalSettings::*field) const
        {
            return textFromColorRef(settings.*field);
        }
    } const toText{ settings };
    return std::visit(toText, setting.field);
}

/// Both files' bytes, read once for a walk over the table.
class Snapshot
{
public:
    explicit Snapshot(const SettingsFiles &files)
        : m_store(bytesOf(files.store)), m_hotasIni(bytesOf(files.hotasIni))
    {
    }

    QString text(const Setting &setting) const
    {
        const QByteArray &file = setting.place == SettingsPlace::Store ? m_store : m_hotasIni;
        return profile::value(file, setting.section, setting.key)
            .value_or(setting.missing.toString())
            .left(setting.buffer() - 1);
    }

private:
    static QByteArray bytesOf(const ProfileFile &file)
    {
        return file.bytes().value_or(QByteArray());
    }

    QByteArray m_store;
    QByteArray m_hotasIni;
};

/// Reads the rows that are wanted.
template <class Wanted>
SettingProblems readRows(GlobalSettings &settings, const SettingsFiles &files, Wanted wanted)
{
    SettingProblems problems;
    const Snapshot snapshot(files);
    for (const Setting &setting : settingsTable()) {
        if (!wanted(setting)) {
            continue;
        }
        const QString text = snapshot.text(setting);
        if (!setField(settings, setting, text)) {
            setField(settings, setting, setting.missing.toString());
            problems.append({ files.at(setting.place).path(), setting.section.toString(),
                              setting.key.toString(), text });
        }
    }
    return problems;
}

/// Writes the rows that are wanted.
template <class Wanted>
Expected<void, FileError> saveRows(const GlobalSettings &settings, const SettingsFiles &files,
                                   Wanted wanted)
{
    Expected<void, FileError> result;
    for (const SettingsPlace place : { SettingsPlace::Store, SettingsPlace::HotasIni }) {
        QList<ProfileEntry> entries;
        for (const Setting &setting : settingsTable()) {
            if (setting.place == place && wanted(setting)) {
                entries.append({ setting.section.toString(), setting.key.toString(),
                                 fieldText(settings, setting) });
            }
        }
        auto written = files.at(place).write(entries);
        if (result && !written) {
            result = written;
        }
    }
    return result;
}

auto isOneOf(std::initializer_list<SettingField> fields)
{
    return [fields](const Setting &setting) {
        return std::ranges::find(fields, setting.field) != fields.end();
    };
}

bool isColour(const Setting &setting)
{
    return setting.step == SettingsStep::Colours;
}

} // namespace

GlobalSettings::GlobalSettings()
{
    for (const Setting &setting : settingsTable()) {
        setField(*this, setting, setting.missing.toString());
    }
}

const Setting &settingOf(SettingField field)
{
    return *std::ranges::find(settingsTable(), field, &Setting::field);
}

SettingProblems readGlobalSettings(GlobalSettings &settings, const SettingsFiles &files)
{
    return readRows(settings, files, [](const Setting &setting) { return !isColour(setting); });
}

SettingProblems readColours(GlobalSettings &settings, const SettingsFiles &files)
{
    return readRows(settings, files, isColour);
}

SettingProblems readSettings(GlobalSettings &settings, const SettingsFiles &files,
                             std::initializer_list<SettingField> fields)
{
    return readRows(settings, files, isOneOf(fields));
}

void setFirstRunColours(GlobalSettings &settings)
{
    for (const Setting &setting : settingsTable()) {
        if (isColour(setting)) {
            setField(settings, setting, setting.firstRun.toString());
        }
    }
}

void tellProblems(Dialogs &dialogs, const SettingProblems &problems)
{
    if (problems.isEmpty()) {
        return;
    }
    QStringList lines;
    for (const SettingProblem &problem : problems) {
        lines.append(
            u"%1, [%2] %3=%4"_s.arg(problem.file, problem.section, problem.key, problem.text));
    }
    tellEscaped(
        dialogs,
        u"I can't make a number of what these settings say, so I'm using the defaults:\n\n"_s
            + lines.join(u'\n'));
}

void tellNotKept(StatusLine &status, const FileError &error)
{
    status.setText(u"The settings couldn't be written: "_s + error.path + u": "_s + error.reason);
}

double numberOf(const GlobalSettings &settings, QString GlobalSettings::*field)
{
    return wholeNumber(settings.*field).value_or(leadingNumber(settingOf(field).missing));
}

qint32 regainControlAfterMs(const GlobalSettings &settings)
{
    return qint32(roundHalfEven(numberOf(settings, &GlobalSettings::RegainControlAfter)));
}

qint32 checkForCompletionTimeMs(const GlobalSettings &settings)
{
    return qint32(roundHalfEven(numberOf(settings, &GlobalSettings::CheckForCompletionTime)));
}

Expected<void, FileError> saveGlobalSettings(const GlobalSettings &settings,
                                             const SettingsFiles &files)
{
    return saveRows(settings, files, [](const Setting &setting) { return setting.saved; });
}

Expected<void, FileError> saveSettings(const GlobalSettings &settings, const SettingsFiles &files,
                                       std::initializer_list<SettingField> fields)
{
    return saveRows(settings, files, isOneOf(fields));
}

Expected<void, FileError> SaveColourScheme(const GlobalSettings &settings,
                                           const SettingsFiles &files)
{
    return saveRows(settings, files, isColour);
}

} // namespace zeph
