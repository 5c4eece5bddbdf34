// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/file_contents.h"

#include <algorithm>

namespace zeph {

const ReadingDifference *FileContents::differenceAt(CellPlace cell) const
{
    const auto found = std::ranges::find(differences, cell, &ReadingDifference::cell);
    return found == differences.end() ? nullptr : &*found;
}

FileContents fileContents(const QString &joystickText)
{
    const Digest digest = digestOf(joystickText);
    FileContents contents;
    contents.table = AssignToArray(digest);
    contents.places = statementPlaces(digest);
    contents.differences =
        readingsDiffer(contents.table, digest, language::parsePair(joystickText, {}).joystick);
    return contents;
}

} // namespace zeph
