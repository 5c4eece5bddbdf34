// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/sheet.h"

#include <QObject>

#include <deque>

namespace zeph {

/// A sheet that is edited: its value, the selected box, and the steps that can be undone. A step is
/// a whole sheet, so that whatever was changed comes back as it was.
class SheetModel : public QObject
{
    Q_OBJECT
public:
    explicit SheetModel(Sheet sheet, QObject *parent = nullptr);

    const Sheet &sheet() const { return m_sheet; }
    /// 0-based; -1 without a selection, as before the first press on a box.
    int selected() const { return m_selected; }
    /// The selected box; null without one.
    const LayoutTextBox *selectedBox() const;
    void select(int box);

    /// Puts another sheet of the same kind in place, from which there is no way back.
    void replace(Sheet sheet);
    /// Makes the sheet another as one step. False, without a step, when nothing differs.
    bool change(Sheet sheet);
    /// Changes the sheet while the mouse is down; commit() makes one step of all that.
    void preview(Sheet sheet);
    bool commit();
    /// Takes over what was typed into a box. Typing goes on in its step until a word or a line
    /// ends, or until anything else is done.
    void type(int box, const RichText &text);

    void undo();
    void redo();
    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }

Q_SIGNALS:
    void changed();
    void selectedChanged(int box);
    /// There is something to undo or redo now, or no longer.
    void stepsChanged();

private:
    void step(std::deque<Sheet> &from, std::deque<Sheet> &to);
    void keep(Sheet before);
    void show(Sheet sheet);

    Sheet m_sheet;
    int m_selected = -1;
    std::deque<Sheet> m_undo;
    std::deque<Sheet> m_redo;
    std::optional<Sheet> m_before; ///< the sheet when the preview began
    int m_typing = -1; ///< the box whose last step goes on with the next character
};

} // namespace zeph
