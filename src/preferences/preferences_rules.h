// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What becomes of a field of Preferences when it is taken: nothing is refused, a bad value is
// replaced.

#include "platform/core/base.h"

#include <span>

namespace zeph {

/// How a number is taken.
struct NumberRule {
    QStringView key;
    qint16 least;
    qint16 most;
    qint16 ifBelow;
    qint16 ifAbove;
    qint16 ifNone; ///< for a text that no number begins
};

/// The rules of all number fields.
std::span<const NumberRule> numberRules();
/// The rule of a key; there must be one.
const NumberRule &numberRuleOf(QStringView key);

/// A field's text by its rule; fractions are rounded, halves to even.
qint16 takenNumber(QStringView text, const NumberRule &rule);

/// The number behind the tick of the autosave, and the tick.
struct AutoSaveFields {
    qint16 AutoSaveTime;
    qint16 AutoSaveEnabled;

    friend bool operator==(const AutoSaveFields &, const AutoSaveFields &) = default;
};
/// An empty field gives 10 minutes and turns the autosave off.
AutoSaveFields takenAutoSave(QStringView text, bool ticked);

/// A text without the blanks around it; what the field had before when the store cannot hold it;
/// the key's own replacement when it is empty ("&Games", "buddy", "User unknown").
QString takenText(QStringView key, const QString &text, const QString &before);

/// What Preferences offers for the caption of the Games menu.
std::span<const QStringView> gamesCaptions();

/// The command line with which the Launcher shows the Files folder.
QString filesDirectoryCommand(const QString &windowsFolder, const QString &filesFolder);

} // namespace zeph
