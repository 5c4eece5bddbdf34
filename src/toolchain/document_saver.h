// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

namespace zeph {

/// Saves documents for the toolchain; a room above it knows how.
class DocumentSaver
{
public:
    virtual ~DocumentSaver() = default;

    /// Saves the selected document without asking, by Save As where it has no name. The document
    /// stays modified when the user cancels or the disk refuses.
    virtual void saveSelected() = 0;
    /// Asks about each document whose file another program has changed. False when a file still
    /// holds what the Editor does not show.
    virtual bool settleChanges() = 0;
};

} // namespace zeph
