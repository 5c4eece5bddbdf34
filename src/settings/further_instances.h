// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Several instances of the program in one folder: each but the first works on a numbered copy of
// the store, Zeph.ini.

#include "platform/core/base.h"

namespace zeph {

/// Which instance this is, and its store.
struct Instance {
    int number = 1; ///< 1 for the first, 2 to 998 for a further one, 1000 when there are too many
    QString iniPath;

    bool isFurther() const { return number > 1 && !isTooMany(); }
    bool isTooMany() const { return number >= 1000; }
};

/// Takes the first free number for a further instance and makes its copy of the store. When the
/// copy cannot be written, the instance works with the defaults.
Instance MoreThan1open(const QString &appFolder);

/// Deletes the copies that crashed instances have left, and gives the first instance.
Instance GetRidOfPreviousIniFiles(const QString &appFolder);

/// Deletes a further instance's copy at its end; the first instance's store stays.
void deleteInstanceStore(const Instance &instance);

} // namespace zeph
