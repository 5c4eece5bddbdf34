// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The settings of a run: the structs of all rooms, and how they are read from the files and written
// to them. How a room declares its settings is said in setting_row.h.

#include "settings/setting_row.h"
#include "settings/settings_files.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <typeindex>
#include <vector>

namespace zeph {

class Dialogs;
class StatusLine;

/// The structs of all rooms, each made with its defaults when it is first asked for, and at the
/// same address until the end.
class Settings
{
public:
    /// The values of one room.
    template <class Struct> Struct &of() { return owned<Struct>().values; }

    /// The same values by their keys.
    template <class Struct> SettingsGroup &group() { return owned<Struct>().view; }

    /// All groups that have been asked for, in that order.
    QList<SettingsGroup *> groups() const;

private:
    struct Member {
        virtual ~Member() = default;
        virtual SettingsGroup &group() = 0;
    };
    template <class Struct> struct Owned final : Member {
        Struct values;
        SettingsOf<Struct> view{ values };

        SettingsGroup &group() override { return view; }
    };
    struct Entry {
        std::type_index type;
        std::unique_ptr<Member> member;
    };

    template <class Struct> Owned<Struct> &owned()
    {
        const std::type_index type = typeid(Struct);
        auto found = std::ranges::find(m_entries, type, &Entry::type);
        if (found == m_entries.end()) {
            m_entries.push_back({ type, std::make_unique<Owned<Struct>>() });
            found = std::prev(m_entries.end());
        }
        return static_cast<Owned<Struct> &>(*found->member);
    }

    std::vector<Entry> m_entries;
};

/// One setting of any room, named by its member: &DocumentSettings::UndoMax.
class SettingRef
{
public:
    template <class Struct, class Value>
    SettingRef(Value Struct::*member)
        : m_key(&rowOf(member)),
          m_group([](Settings &settings) -> SettingsGroup & { return settings.group<Struct>(); })
    {
    }
    /// The setting of a row of Struct::rows().
    template <class Struct>
    explicit SettingRef(const SettingRow<Struct> &row)
        : m_key(&row),
          m_group([](Settings &settings) -> SettingsGroup & { return settings.group<Struct>(); })
    {
    }

    const SettingKey &key() const { return *m_key; }
    SettingsGroup &group(Settings &settings) const { return m_group(settings); }
    SettingValue value(Settings &settings) const { return group(settings).value(*m_key); }
    /// The value of a flag.
    bool isOn(Settings &settings) const { return std::get<bool>(value(settings)); }
    void set(Settings &settings, const SettingValue &value) const
    {
        group(settings).set(*m_key, value);
    }

    friend bool operator==(const SettingRef &a, const SettingRef &b) { return a.m_key == b.m_key; }

private:
    const SettingKey *m_key;
    SettingsGroup &(*m_group)(Settings &);
};

/// A value in a file that could not be read; the setting has its default instead.
struct SettingProblem {
    QString file;
    QString section;
    QString key;
    QString text;

    friend bool operator==(const SettingProblem &, const SettingProblem &) = default;
};
using SettingProblems = QList<SettingProblem>;

/// Reads every setting of the step Global. Numbers outside of their range take its nearest end.
[[nodiscard]] SettingProblems readGlobalSettings(Settings &settings, const SettingsFiles &files);
/// Reads single settings again.
[[nodiscard]] SettingProblems readSettings(Settings &settings, const SettingsFiles &files,
                                           std::initializer_list<SettingRef> wanted);
/// Reads all settings of a group.
[[nodiscard]] SettingProblems readGroup(SettingsGroup &group, const SettingsFiles &files);

/// Writes the keys of the global save, each file in one replacement. All files are tried; the error
/// is the first one.
Expected<void, FileError> saveGlobalSettings(const Settings &settings, const SettingsFiles &files);
/// Writes single settings in the order given, each file in one replacement.
Expected<void, FileError> saveSettings(Settings &settings, const SettingsFiles &files,
                                       std::initializer_list<SettingRef> wanted);
/// Writes all settings of a group, each file in one replacement.
Expected<void, FileError> saveGroup(SettingsGroup &group, const SettingsFiles &files);
/// Writes those settings of a group that the function wants, each file in one replacement.
Expected<void, FileError> saveGroup(SettingsGroup &group, const SettingsFiles &files,
                                    const std::function<bool(const SettingKey &)> &wanted);

/// Tells all problems in one box; no box when there are none.
void tellProblems(Dialogs &dialogs, const SettingProblems &problems);

/// Tells in panel 1 that settings could not be written.
void tellNotKept(StatusLine &status, const FileError &error);

} // namespace zeph
