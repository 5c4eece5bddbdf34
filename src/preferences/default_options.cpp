// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/default_options.h"

#include <array>

namespace zeph {

namespace {

const QString section = u"Defaults"_s;

struct Row {
    QStringView key;
    qint16 DefaultOptions::*field;
};

constexpr std::array rows = {
    Row{ u"POVhat", &DefaultOptions::POVhat },
    Row{ u"MicrostickMouse", &DefaultOptions::MicrostickMouse },
    Row{ u"POVUD", &DefaultOptions::POVUD },
    Row{ u"MicrostickUD", &DefaultOptions::MicrostickUD },
    Row{ u"TG1enabled", &DefaultOptions::TG1enabled },
    Row{ u"S2enabled", &DefaultOptions::S2enabled },
    Row{ u"MDEFrequired", &DefaultOptions::MDEFrequired },
    Row{ u"DownloadMode", &DefaultOptions::DownloadMode },
    Row{ u"RCSType", &DefaultOptions::RCSType },
};

} // namespace

DefaultOptions GetDefaultOptions(const ProfileFile &hotasIni)
{
    const QByteArray file = hotasIni.bytes().value_or(QByteArray());
    DefaultOptions options;
    for (const Row &row : rows) {
        const qint16 missing = options.*row.field;
        const qint32 read = profile::integerOf(profile::value(file, section, row.key), missing);
        options.*row.field = read == qint16(read) ? qint16(read) : missing;
    }
    return options;
}

Expected<void, FileError> SaveDefaultOptions(const DefaultOptions &options,
                                             const ProfileFile &hotasIni)
{
    QList<ProfileEntry> entries;
    for (const Row &row : rows) {
        entries.append({ section, row.key.toString(), QString::number(options.*row.field) });
    }
    return hotasIni.write(entries);
}

} // namespace zeph
