// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

namespace zeph {

class Dialogs;
class EditorView;
class FileSaving;

/// Asks about unsaved files, the macro file first, and saves on Yes. False when the exit has to
/// stop.
bool askBeforeExit(EditorView &view, FileSaving &saving, Dialogs &dialogs);

} // namespace zeph
