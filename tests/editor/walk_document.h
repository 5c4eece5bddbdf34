// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What one document of the Editor has to be, by the rules and in the simplest way: every character
// with its look, every step to undo a whole copy.

#include "language/file_kinds.h"
#include "platform/core/rich_text.h"
#include "tests/support/copies_history.h"
#include "text/painter.h"

#include <QByteArray>

namespace zeph::test {

struct WalkLook {
    CharFormat format;
    /// Whether the user chose the colour. Only that one counts where a text is compared with what
    /// is saved.
    bool isColourByHand = false;
};

/// A text with one look a character.
struct WalkText {
    QString text;
    std::vector<WalkLook> looks;

    static WalkText of(const QString &text, const WalkLook &look);
    static WalkText of(const RichText &text);
    RichText richText() const;
    WalkText mid(qsizetype from, qsizetype length) const;
    void replace(qsizetype from, qsizetype length, const WalkText &by);

    /// Whether both look alike on the screen.
    friend bool operator==(const WalkText &one, const WalkText &other);
    /// Whether text and what the user gave it of looks are the same.
    bool isWorthTheSameAs(const WalkText &other) const;
};

/// One document of the model. Positions are 0-based characters.
class WalkDocument
{
public:
    struct Settings {
        CharFormat plain;
        ColourScheme scheme;
        std::span<const PaintPass> passes; ///< of the whole file
        int undoMax = 0;
    };
    WalkDocument(DocumentKind kind, Settings settings);

    DocumentKind kind() const { return m_kind; }
    const WalkText &now() const { return m_now; }
    const QString &text() const { return m_now.text; }
    int anchor() const { return m_anchor; }
    int caret() const { return m_caret; }
    int selStart() const { return std::min(m_anchor, m_caret); }
    int selLength() const { return std::abs(m_anchor - m_caret); }
    WalkLook plainLook() const { return { m_settings.plain }; }
    const ColourScheme &scheme() const { return m_settings.scheme; }
    CopiesHistory<WalkText> &history() { return m_history; }

    /// 1 while text or the user's looks differ from what was saved last, else what it was then.
    int state() const;
    /// Says what the text is from now on as it is: 0 saved, -1 empty, 1 other than any file.
    void setState(int state);
    /// Another text takes the place of this one, with the state it then has.
    void become(WalkText text, int state);
    void clearUndos() { m_history.start(m_now, selStart()); }
    /// The looks that are shown are those of the coloured copy from now on.
    void looksWritten();

    /// The user moves the caret, or the toolkit does.
    void follow(int anchor, int caret);
    /// The program sets the caret.
    void put(int anchor, int caret);
    /// A key with a character, Qt::Key_Space, Return, Backspace or Delete.
    void type(int key);
    /// Rich text that the user drops at a place.
    void drop(int at, const WalkText &text);

    // What a tool does goes between begin() and commit(), and is one step to undo.
    void begin();
    void commit();
    void replace(qsizetype from, qsizetype length, const WalkText &by);
    /// Replaces the selection; typing goes on plain.
    void insert(const WalkText &text);
    void replaceAll(const std::vector<qsizetype> &starts, qsizetype length, const QString &by);
    /// Changes looks in a stretch.
    template <class Change> void changeLooks(qsizetype from, qsizetype length, Change change)
    {
        for (qsizetype i = from; i < from + length; ++i) {
            change(m_now.looks[size_t(i)]);
        }
    }

    /// The look of a character that is typed at a position, as nobody chose another.
    WalkLook lookAt(qsizetype position) const;
    /// The look of what is typed next, and how the user chooses another.
    WalkLook typingLook() const { return m_chosen.value_or(lookAt(m_caret)); }
    void choose(WalkLook look);

    WalkText painted(const QString &text, std::span<const PaintPass> passes) const;
    /// Colours a stretch and leaves text and caret.
    void paint(qsizetype from, qsizetype length, std::span<const PaintPass> passes);
    void paintWhole() { paint(0, text().size(), m_settings.passes); }
    /// Colours the lines of the selection as they are coloured while they are typed.
    void paintLines();
    /// The looks and the caret that are shown now belong to the step that is shown.
    void store() { m_history.store(m_now, selStart()); }
    void stamp(const QDateTime &when);
    /// Takes a step, if there is one.
    void undo(bool back);

private:
    void typeOver(QChar character);
    void erase(qsizetype from, qsizetype length);

    DocumentKind m_kind;
    Settings m_settings;
    WalkText m_now;
    /// What was saved last, and the state of the document while it is that.
    std::optional<std::pair<WalkText, int>> m_saved;
    int m_anchor = 0;
    int m_caret = 0;
    std::optional<WalkLook> m_chosen; ///< for what is typed at the caret
    CopiesHistory<WalkText> m_history;
    WalkText m_before; ///< at begin()
};

} // namespace zeph::test
