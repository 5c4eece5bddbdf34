// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Handle files (.tmh): which picture shows a handle of the stick, and where its controls are on it.
// A file is a sequence of fields that end at a comma or a line end, texts perhaps in double quotes:
// the picture's name, the trigger's stages, and left, top, width, height and "True" for each of
// nine hot spots.

#include "cougar/places.h"
#include "platform/core/file_io.h"

namespace zeph {

struct HandleFile {
    QString picture; ///< the name of a file in the program's folder
    bool triggerHasStages = false;
    QList<HotSpot> spots; ///< those that are shown
};

/// Reads a handle file's text. Where it is not one, the error says in words what is wrong, and in
/// which line. Fields after the ninth hot spot and lines without any are passed over.
Expected<HandleFile, QString> handleFileFrom(QStringView text);

/// Reads a handle file from the disk, by existingPath().
Expected<HandleFile, FileError> loadHandleFile(const QString &path);

} // namespace zeph
