// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Lists in profile files: a count, and for each item keys that end with its place, as in
// "FavName1", "FavJFPath1", "FavName2".

#include "platform/core/profile_file.h"

#include <QStringList>

#include <span>

namespace zeph {

struct ProfileListKeys {
    QStringView section;
    QStringView count;
    std::span<const QStringView> fields;
    /// The most items that a list may hold.
    qint32 most;
};

/// One item: its values in the order of the fields.
using ProfileRow = QStringList;

/// Reads the list from one state of the file; an absent value is empty.
QList<ProfileRow> readProfileList(const ProfileFile &store, const ProfileListKeys &keys);

/// The entries to write so that the store holds the list; paths in the form that it gives them. A
/// value that the store's code page cannot hold is written empty, so that no earlier item's value
/// stays in its place.
QList<ProfileEntry> profileListEntries(const ProfileFile &store, const ProfileListKeys &keys,
                                       const QList<ProfileRow> &rows);

/// Puts the list in place of the one in the store, along with more entries. Keys of items that it
/// no longer has go.
Expected<void, FileError> writeProfileList(const ProfileFile &store, const ProfileListKeys &keys,
                                           const QList<ProfileRow> &rows,
                                           const QList<ProfileEntry> &more = {});

// Texts that a profile file can hold: no longer than the reads' buffer, in the file's code page.

constexpr int longestStorable = profileTextBuffer - 1;

bool isStorable(const QString &text);

/// What stays of a field: what was typed, without the blanks around it, or what was there before
/// when the store could not give it back.
QString storableOr(const QString &typed, const QString &before);

/// Tells the user the first character among the texts that cannot be stored; empty when all can.
QString unstorableHint(const QStringList &texts);

} // namespace zeph
