// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/quickview/file_contents.h"
#include "livetools/quickview/key_texts.h"
#include "livetools/quickview/live_state.h"

#include <memory>

namespace zeph {

class QuickViewPicture;
class Senders;

/// Writes one column of the table on the picture's labels: their texts, tips and marks. The picture
/// must outlive it.
class ShownColumn
{
public:
    explicit ShownColumn(QuickViewPicture &picture);
    ~ShownColumn();

    /// Shows another column of the table.
    void show(int column);
    int column() const { return m_column; }

    void setContents(FileContents contents);
    const FileContents &contents() const { return m_contents; }
    void setKeys(MacroKeys keys);
    const MacroKeys &keys() const { return m_keys; }
    void setOptions(const LabelOptions &options, bool showsKeys);

    /// Marks the control in whose statement a line is, 1-based.
    void setCaretLine(int line);
    /// Marks what sends a key or macro; nothing for an empty text.
    void look(const QString &sought);
    /// The cells that send it.
    const std::vector<CellPlace> &sending() const { return m_sending; }

private:
    void findSenders();
    void showTexts();
    void showMarks(int row);
    QString tipOf(CellPlace place) const;
    QString senderTip(int row) const;

    QuickViewPicture &m_picture;
    FileContents m_contents;
    MacroKeys m_keys;
    LabelOptions m_options;
    bool m_showsKeys = false;
    int m_column = LiveState().column();
    int m_caretLine = 0;
    int m_caretRow = 0; ///< 0 when the caret is in no control's statement
    QString m_sought;
    std::unique_ptr<Senders> m_senders; ///< made when something is sought
    std::vector<CellPlace> m_sending;
};

} // namespace zeph
