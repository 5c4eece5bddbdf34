// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/default_options.h"

#include <array>

namespace zeph {

namespace {

using S = DefaultOptions;

/// A row of the section Defaults.
template <class... Rest> constexpr SettingRow<S> defaultsRow(QStringView key, Rest... rest)
{
    return in(SettingsStore::Hotas, row(u"Defaults", key, rest...));
}

template <class... Rest> constexpr SettingRow<S> ownRow(QStringView key, Rest... rest)
{
    SettingRow<S> result = defaultsRow(key, rest...);
    result.step = SettingsStep::Own;
    return result;
}

constexpr std::array rows = {
    ownRow(u"POVhat", &S::POVhat, 1, SettingRange{ 1, 4 }),
    ownRow(u"MicrostickMouse", &S::MicrostickMouse, true),
    ownRow(u"POVUD", &S::POVUD, false),
    ownRow(u"MicrostickUD", &S::MicrostickUD, false),
    ownRow(u"TG1enabled", &S::TG1enabled, true),
    ownRow(u"S2enabled", &S::S2enabled, true),
    ownRow(u"MDEFrequired", &S::MDEFrequired, true),
    defaultsRow(u"DownloadMode", &S::DownloadMode, true, SavedAs{ 51 }),
    ownRow(u"RCSType", &S::RCSType, false),
};

} // namespace

DefaultOptions::DefaultOptions()
{
    setDefaults(*this);
}

std::span<const SettingRow<DefaultOptions>> DefaultOptions::rows()
{
    return zeph::rows;
}

DefaultOptions GetDefaultOptions(const SettingsFiles &files)
{
    DefaultOptions options;
    SettingsOf<DefaultOptions> group(options);
    (void)readGroup(group, files);
    return options;
}

Expected<void, FileError> SaveDefaultOptions(DefaultOptions options, DefaultOptions read,
                                             const SettingsFiles &files)
{
    SettingsOf<DefaultOptions> wanted(options);
    const SettingsOf<DefaultOptions> before(read);
    const QByteArray file = files.hotasIni.bytes().value_or(QByteArray());
    return saveGroup(wanted, files, [&](const SettingKey &key) {
        return wanted.value(key) != before.value(key)
            || !profile::value(file, key.section, key.key);
    });
}

} // namespace zeph
