// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settings.h"
#include "tests/support/temp_folder.h"

namespace zeph::test {

/// A folder with the three settings files of a run, which need not exist yet.
struct Store {
    TempFolder folder;
    SettingsFiles files{ ProfileFile(folder.file(u"Zeph.ini"_s)),
                         ProfileFile(folder.file(u"HOTAS.ini"_s)),
                         ProfileFile(folder.file(u"Layouts.ini"_s)) };

    QString text(QStringView section, QStringView key) const
    {
        return files.store.text(section, key, u"(absent)"_s);
    }
};

} // namespace zeph::test
