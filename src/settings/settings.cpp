// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/settings.h"

#include "platform/core/portable_paths.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"

#include <QStringList>

#include <array>
#include <limits>

namespace zeph {

namespace {

/// A setting, and the group that holds its value.
struct Place {
    SettingsGroup *group;
    const SettingKey *key;
};

constexpr std::array stores = { SettingsStore::Zeph, SettingsStore::Hotas, SettingsStore::Layouts };

/// Whether a store lies in the program's folder, so that its paths are relative to it.
bool isOurs(SettingsStore store)
{
    return store != SettingsStore::Hotas;
}

/// The whole text as a number within 32 bits. Files from some countries have a decimal comma.
std::optional<double> wholeNumber(QString text)
{
    bool good = false;
    const double number = text.trimmed().replace(u',', u'.').toDouble(&good);
    const bool fits = number >= anyNumber.least && number <= anyNumber.most;
    return good && fits ? std::optional(number) : std::nullopt;
}

/// The number at the text's start, unless it has more than 16 bits.
std::optional<qint32> shortInteger(const QString &text, qint32 missing)
{
    const qint32 number = profile::integerOf(text, missing);
    return anyInteger.nearest(number) == number ? std::optional(number) : std::nullopt;
}

/// Reads a text as a value of the default's type; no value when that is impossible.
struct ValueReader {
    const SettingKey &key;
    const QString &text;

    std::optional<SettingValue> operator()(QStringView) const { return text; }
    std::optional<SettingValue> operator()(bool missing) const
    {
        const auto number = shortInteger(text, missing ? 1 : 0);
        return number ? std::optional<SettingValue>(*number != 0) : std::nullopt;
    }
    std::optional<SettingValue> operator()(int missing) const
    {
        const auto number = shortInteger(text, missing);
        return number ? std::optional<SettingValue>(int(key.range.nearest(*number))) : std::nullopt;
    }
    std::optional<SettingValue> operator()(double) const
    {
        const auto number = wholeNumber(text);
        return number ? std::optional<SettingValue>(key.range.nearest(*number)) : std::nullopt;
    }
    std::optional<SettingValue> operator()(ColorRef) const
    {
        const auto colour = colorRefFromText(text);
        return colour ? std::optional<SettingValue>(*colour) : std::nullopt;
    }
};

struct ValueWriter {
    QString operator()(const QString &text) const { return text; }
    QString operator()(bool flag) const { return flag ? u"1"_s : u"0"_s; }
    QString operator()(int number) const { return QString::number(number); }
    /// Without an exponent, with as many digits as are needed.
    QString operator()(double number) const
    {
        return QString::number(number, 'f', QLocale::FloatingPointShortest);
    }
    QString operator()(ColorRef colour) const { return textFromColorRef(colour); }
};

SettingProblems readPlaces(const QList<Place> &places, const SettingsFiles &files)
{
    // Each file is read once for all of its keys.
    std::array<QByteArray, stores.size()> bytes;
    for (const SettingsStore store : stores) {
        bytes[size_t(store)] = files.at(store).bytes().value_or(QByteArray());
    }
    SettingProblems problems;
    for (const auto &[group, key] : places) {
        const auto found = profile::value(bytes[size_t(key->store)], key->section, key->key);
        if (!found) {
            group->set(*key, defaultOf(*key));
            continue;
        }
        const QString held = found->left(key->buffer() - 1);
        const QString text = isOurs(key->store)
            ? resolvedValue(files.at(key->store), key->section, key->key, held)
            : held;
        const auto value = std::visit(ValueReader{ *key, text }, key->missing);
        group->set(*key, value.value_or(defaultOf(*key)));
        if (!value) {
            problems.append({ files.at(key->store).path(), key->section.toString(),
                              key->key.toString(), text });
        }
    }
    return problems;
}

Expected<void, FileError> savePlaces(const QList<Place> &places, const SettingsFiles &files)
{
    Expected<void, FileError> result;
    for (const SettingsStore store : stores) {
        QList<ProfileEntry> entries;
        for (const auto &[group, key] : places) {
            if (key->store == store) {
                const QString text = std::visit(ValueWriter(), group->value(*key));
                entries.append({ key->section.toString(), key->key.toString(),
                                 isOurs(store)
                                     ? storedValue(files.at(store), key->section, key->key, text)
                                     : text });
            }
        }
        auto written = files.at(store).write(entries);
        if (result && !written) {
            result = written;
        }
    }
    return result;
}

template <class Wanted> QList<Place> placesOf(const QList<SettingsGroup *> &groups, Wanted wanted)
{
    QList<Place> places;
    for (SettingsGroup *group : groups) {
        for (const SettingKey *key : group->keys()) {
            if (wanted(*key)) {
                places.append({ group, key });
            }
        }
    }
    return places;
}

QList<Place> placesOf(Settings &settings, std::initializer_list<SettingRef> wanted)
{
    QList<Place> places;
    for (const SettingRef &setting : wanted) {
        places.append({ &setting.group(settings), &setting.key() });
    }
    return places;
}

bool isAny(const SettingKey &)
{
    return true;
}

} // namespace

SettingValue defaultOf(const SettingKey &key)
{
    return std::visit(
        [](const auto &missing) -> SettingValue {
            if constexpr (std::is_same_v<decltype(missing), const QStringView &>) {
                return missing.toString();
            } else {
                return missing;
            }
        },
        key.missing);
}

void SettingsGroup::setDefaults()
{
    for (const SettingKey *key : keys()) {
        set(*key, defaultOf(*key));
    }
}

QList<SettingsGroup *> Settings::groups() const
{
    QList<SettingsGroup *> groups;
    for (const Entry &entry : m_entries) {
        groups.append(&entry.member->group());
    }
    return groups;
}

SettingProblems readGlobalSettings(Settings &settings, const SettingsFiles &files)
{
    const auto isGlobal = [](const SettingKey &key) {
        return key.step == SettingsStep::Global;
    };
    return readPlaces(placesOf(settings.groups(), isGlobal), files);
}

SettingProblems readSettings(Settings &settings, const SettingsFiles &files,
                             std::initializer_list<SettingRef> wanted)
{
    return readPlaces(placesOf(settings, wanted), files);
}

SettingProblems readGroup(SettingsGroup &group, const SettingsFiles &files)
{
    return readPlaces(placesOf({ &group }, isAny), files);
}

Expected<void, FileError> saveGlobalSettings(const Settings &settings, const SettingsFiles &files)
{
    QList<Place> places = placesOf(settings.groups(), std::mem_fn(&SettingKey::isSaved));
    std::ranges::sort(places, {}, [](const Place &place) { return place.key->saved.place; });
    return savePlaces(places, files);
}

Expected<void, FileError> saveSettings(Settings &settings, const SettingsFiles &files,
                                       std::initializer_list<SettingRef> wanted)
{
    return savePlaces(placesOf(settings, wanted), files);
}

Expected<void, FileError> saveGroup(SettingsGroup &group, const SettingsFiles &files)
{
    return savePlaces(placesOf({ &group }, isAny), files);
}

Expected<void, FileError> saveGroup(SettingsGroup &group, const SettingsFiles &files,
                                    const std::function<bool(const SettingKey &)> &wanted)
{
    return savePlaces(placesOf({ &group }, wanted), files);
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

} // namespace zeph
