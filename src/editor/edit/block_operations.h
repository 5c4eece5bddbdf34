// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"
#include "text/block_comments.h"

namespace zeph {

class ColouredInsert;
class MenuActions;
class EditorView;
class Highlighting;

/// Comments the lines that the selection touches out and in again: one undo step each. Refused on
/// a protected macro file. The caret ends at the start of the first line.
class BlockOperations
{
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        Highlighting &highlighting;
        ColouredInsert &insert;
    };
    explicit BlockOperations(const Parts &parts);

    void BlockREM();
    void BlockRemoveREM();

private:
    LineRange lines() const;
    std::vector<LineChange> changed(LineRange range, LineChange (*change)(QStringView line)) const;
    void insertOver(LineRange range, const RichText &text);
    void goToStart(LineRange range);

    Parts m_parts;
};

} // namespace zeph
