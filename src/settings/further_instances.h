// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Several instances of the program in one folder: each but the first works on a numbered copy of
// the store, Zeph.ini.

#include "platform/instance_lock.h"

namespace zeph {

/// Which instance this is, its store, and the lock that keeps others from that store.
struct Instance {
    int number = 1; ///< 1 for the first, 2 to 998 for a further one, 1000 when there are too many
    QString iniPath;
    std::unique_ptr<InstanceLock> lock;

    bool isFurther() const { return number > 1 && !isTooMany(); }
    bool isTooMany() const { return number >= 1000; }
};

/// Takes Zeph.ini when nobody holds it, else the first numbered store that nobody holds.
/// mayTakeOver is asked when it cannot be known whether Zeph.ini is still held.
Instance takeInstance(const QString &appFolder, const MayTakeOver &mayTakeOver);

/// Takes the first number whose store nobody holds, and puts a copy of Zeph.ini there. When the
/// copy cannot be written, the instance works with the defaults.
Instance MoreThan1open(const QString &appFolder);

/// Deletes the copies that crashed instances have left; those in use stay.
void GetRidOfPreviousIniFiles(const QString &appFolder);

/// Deletes a further instance's copy at its end; the first instance's store stays.
void deleteInstanceStore(const Instance &instance);

} // namespace zeph
