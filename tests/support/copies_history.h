// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QString>

#include <vector>

namespace zeph::test {

/// A history of whole copies, by the letter of its rules; slot 0 is the newest. A Text is what one
/// state is: the document's text with its looks.
template <class Text> class CopiesHistory
{
public:
    struct Slot {
        Text text;
        int caret = 0;
    };

    void start(const Text &text, int caretNow)
    {
        m_slots = { { text, 0 } };
        m_index = 0;
        m_next = true;
        m_space = m_enter = false;
        m_caret = caretNow;
        m_moved = false;
    }
    void caretAt(int position) { m_moved = m_moved || position != m_caret; }
    void key(int which, bool emptyText, bool hasSelection)
    {
        if (which == Qt::Key_Delete) {
            m_next = true;
        } else if (emptyText && which == Qt::Key_Space) {
            m_next = false;
        } else if (m_moved || hasSelection) {
            m_next = true;
        } else if (m_slots.size() > 1) {
            m_next = false;
            if (which == Qt::Key_Backspace) {
                m_next = true;
            } else if (which == Qt::Key_Return) {
                if (!m_enter) {
                    m_next = true;
                }
                m_enter = true;
                m_space = false;
            } else if (which == Qt::Key_Space) {
                if (!m_space) {
                    m_next = true;
                }
                m_space = true;
                m_enter = false;
            } else {
                m_space = m_enter = false;
            }
        } else {
            m_next = true;
        }
    }
    void changed(const Text &text, int caretNow, int undoMax)
    {
        const bool pushes = m_next || m_index > 0;
        m_next = true;
        m_caret = caretNow;
        m_moved = false;
        if (text == m_slots[m_index].text) {
            return;
        }
        if (pushes) {
            const size_t n = m_slots.size();
            const size_t grown = int(n) <= undoMax ? n + 1 : n;
            m_slots.insert(m_slots.begin(), Slot{});
            m_slots.resize(grown);
        }
        m_slots[0] = { text, caretNow };
        m_index = 0;
    }
    /// The next change is a step of its own.
    void startStep() { m_next = true; }
    /// The present looks and the caret go into the slot that is shown.
    void store(const Text &text, int caretNow) { m_slots[m_index] = { text, caretNow }; }

    /// How many steps can be undone, or redone.
    int steps(bool back) const { return int(back ? m_slots.size() - m_index - 1 : m_index); }
    bool canStep(bool back) const { return steps(back) > 0; }
    /// Undoes or redoes a step, which there must be, and gives what has to be shown then.
    const Slot &step(bool back)
    {
        m_index = back ? m_index + 1 : m_index - 1;
        m_moved = true;
        return m_slots[m_index];
    }
    QString undoCaption() const { return caption(u"&Undo", steps(true)); }
    QString redoCaption() const { return caption(u"&Redo", steps(false)); }

private:
    static QString caption(QStringView word, int count)
    {
        return word.toString() + (count == 0 ? QString() : u" ("_s + QString::number(count) + u')');
    }

    std::vector<Slot> m_slots;
    size_t m_index = 0;
    bool m_next = true;
    bool m_space = false;
    bool m_enter = false;
    int m_caret = 0; ///< after the last change
    bool m_moved = false;
};

} // namespace zeph::test
