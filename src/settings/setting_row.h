// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A room keeps its settings in a struct with one member a key, named as the key:
//
//     struct DocumentSettings {
//         DocumentSettings();                                        // setDefaults(*this)
//         static std::span<const SettingRow<DocumentSettings>> rows();
//         int UndoMax;
//         bool LineNumbers;
//     };
//
// Its rows say everything else about each key once. They are written in the .cpp file, so that a
// new default compiles that one file again.

#include "platform/core/profile_file.h"
#include "platform/core/units.h"

#include <algorithm>
#include <span>
#include <variant>

namespace zeph {

/// The files in which settings are kept.
enum class SettingsStore {
    Zeph, ///< the instance's own file, Zeph.ini
    Hotas, ///< HOTAS.ini, which the toolchain shares
    Layouts ///< Layouts.ini, which all instances share
};

/// When a setting is read.
enum class SettingsStep {
    Global, ///< at the start, with all others
    Colours, ///< when the Editor loads
    Own ///< only when the window that edits it asks
};

/// A flag is written as 1 or 0 and is true for every number but 0. An int has 16 bits in the file,
/// a double is a decimal number within 32 bits.
using SettingValue = std::variant<QString, bool, int, double, ColorRef>;

/// The numbers that a setting can have, both ends included.
struct SettingRange {
    double least = 0;
    double most = 0;

    constexpr double nearest(double number) const { return std::clamp(number, least, most); }
};

constexpr SettingRange anyInteger{ -32768, 32767 };
constexpr SettingRange anyNumber{ -2147483648.0, 2147483647.0 };

/// The place of a key in the global save, which is also the order of the keys in a new file. Keys
/// without a place are not part of it. A new key takes the next free number.
struct SavedAs {
    int place = 0;
};

/// All that a row says except the member.
struct SettingKey {
    SettingsStore store = SettingsStore::Zeph;
    QStringView section = {};
    QStringView key = {};
    /// What an absent key reads as.
    std::variant<QStringView, bool, int, double, ColorRef> missing = {};
    SettingRange range = {}; ///< numbers only
    SavedAs saved = {};
    SettingsStep step = SettingsStep::Global;
    /// What the first run sets, where that is not what an absent key reads as.
    std::variant<std::monostate, ColorRef> firstRun = {};

    bool isSaved() const { return saved.place > 0; }
    /// How many characters of a value are read, counting a closing NUL; the rest is cut off.
    int buffer() const
    {
        return step == SettingsStep::Colours ? profileColourBuffer : profileTextBuffer;
    }
};

template <class Struct>
using SettingMember = std::variant<QString Struct::*, bool Struct::*, int Struct::*,
                                   double Struct::*, ColorRef Struct::*>;

template <class Struct> struct SettingRow : SettingKey {
    SettingMember<Struct> member = {};
};

template <class Struct>
constexpr SettingRow<Struct> row(QStringView section, QStringView key, QString Struct::*member,
                                 QStringView missing, SavedAs saved = {})
{
    return { { .section = section, .key = key, .missing = missing, .saved = saved }, member };
}

template <class Struct>
constexpr SettingRow<Struct> row(QStringView section, QStringView key, bool Struct::*member,
                                 bool missing, SavedAs saved = {})
{
    return { { .section = section, .key = key, .missing = missing, .saved = saved }, member };
}

template <class Struct>
constexpr SettingRow<Struct> row(QStringView section, QStringView key, int Struct::*member,
                                 int missing, SettingRange range, SavedAs saved = {})
{
    return { { .section = section, .key = key, .missing = missing, .range = range, .saved = saved },
             member };
}

template <class Struct>
constexpr SettingRow<Struct> row(QStringView section, QStringView key, double Struct::*member,
                                 double missing, SettingRange range, SavedAs saved = {})
{
    return { { .section = section, .key = key, .missing = missing, .range = range, .saved = saved },
             member };
}

template <class Struct>
constexpr SettingRow<Struct> row(QStringView section, QStringView key, ColorRef Struct::*member,
                                 ColorRef missing, SavedAs saved = {})
{
    return { { .section = section, .key = key, .missing = missing, .saved = saved }, member };
}

/// The same row, for a setting that another file than Zeph.ini holds.
template <class Struct> constexpr SettingRow<Struct> in(SettingsStore store, SettingRow<Struct> row)
{
    row.store = store;
    return row;
}

/// The row of a member; there must be one.
template <class Struct, class Value> const SettingRow<Struct> &rowOf(Value Struct::*member)
{
    return *std::ranges::find(Struct::rows(), SettingMember<Struct>(member),
                              &SettingRow<Struct>::member);
}

/// The smallest and the largest number that a setting can have.
template <class Struct, class Value> SettingRange rangeOf(Value Struct::*member)
{
    return rowOf(member).range;
}

/// What an absent key reads as.
SettingValue defaultOf(const SettingKey &key);

template <class Struct, class Value> Value defaultOf(Value Struct::*member)
{
    return std::get<Value>(defaultOf(static_cast<const SettingKey &>(rowOf(member))));
}

/// Reads and sets the members of any room's struct by their keys.
class SettingsGroup
{
public:
    virtual ~SettingsGroup() = default;

    /// All keys, in the order of the rows.
    virtual QList<const SettingKey *> keys() const = 0;
    /// The key must be one of keys().
    virtual SettingValue value(const SettingKey &key) const = 0;
    virtual void set(const SettingKey &key, const SettingValue &value) = 0;

    void setDefaults();
};

/// The group of one struct, which must outlive it.
template <class Struct> class SettingsOf final : public SettingsGroup
{
public:
    explicit SettingsOf(Struct &values) : m_values(values) { }

    QList<const SettingKey *> keys() const override
    {
        QList<const SettingKey *> keys;
        for (const SettingKey &key : Struct::rows()) {
            keys.append(&key);
        }
        return keys;
    }

    SettingValue value(const SettingKey &key) const override
    {
        return std::visit([this](auto member) { return SettingValue(m_values.*member); },
                          memberOf(key));
    }

    void set(const SettingKey &key, const SettingValue &value) override
    {
        std::visit(
            [&]<class Value>(Value Struct::*member) { m_values.*member = std::get<Value>(value); },
            memberOf(key));
    }

private:
    static const SettingMember<Struct> &memberOf(const SettingKey &key)
    {
        return static_cast<const SettingRow<Struct> &>(key).member;
    }

    Struct &m_values;
};

/// Gives every member its default.
template <class Struct> void setDefaults(Struct &values)
{
    SettingsOf<Struct>(values).setDefaults();
}

} // namespace zeph
