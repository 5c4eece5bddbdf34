// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/findandreplace.h"
#include "platform/core/text_search.h"
#include "tests/editor/walk.h"
#include "text/search_rules.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

namespace zeph::test {

namespace {

/// The window on one of its two pages, whose controls' names end in "F" or in "R", with the word
/// typed in anew, and what the model says of it.
class Search
{
public:
    Search(Walk &walk, DocumentKind kind, bool replaces, const QString &word, int options)
        : m_walk(walk), m_kind(kind), m_word(word), m_options(options)
    {
        walk.trigger(replaces ? u"mnuEditReplace" : u"mnuEditFind");
        m_window = walk.editor->findChild<FindAndReplace *>();
        m_find = replaces ? u"Command3"_s : u"Command1"_s;
        const QString field = replaces ? u"ComboTextReplaceFind"_s : u"ComboTextFind"_s;
        const QString page = replaces ? u"R"_s : u"F"_s;
        const bool isJoystick = kind == DocumentKind::Joystick;
        child<QComboBox>(field)->setEditText(QString());
        child<QComboBox>(field)->setEditText(word);
        child<QCheckBox>(u"WholeWord"_s + page)->setChecked(options & SearchWholeWord);
        child<QCheckBox>(u"MatchCase"_s + page)->setChecked(options & SearchMatchCase);
        child<QRadioButton>((isJoystick ? u"OptionJoystick"_s : u"OptionMacro"_s) + page)
            ->setChecked(true);
    }
    ~Search() { m_window->close(); }
    Q_DISABLE_COPY_MOVE(Search)

    /// What the next search has to come to. Without a hit the one after it begins at the start.
    void expect()
    {
        WalkDocument &text = document();
        const SearchResult hit = search(text.text(), { m_word, m_options, !m_isHit, text.caret() });
        m_isHit = hit.verdict == SearchVerdict::Hit;
        if (m_isHit) {
            m_walk.model.select(m_kind);
            text.put(int(hit.start), int(hit.start + m_word.size()));
        } else {
            m_walk.answer(title(hit.verdict), { BoxButton::Ok });
        }
    }
    void press(const QString &button) { child<QPushButton>(button)->click(); }
    void pressFind() { press(m_find); }
    void replaceBy(const QString &text)
    {
        child<QComboBox>(u"ComboTextReplaceWith"_s)->setEditText(text);
    }
    bool isHit() const { return m_isHit; }
    WalkDocument &document() { return m_walk.model.of(m_kind).document; }

private:
    template <class Control> Control *child(const QString &name)
    {
        return m_window->findChild<Control *>(name);
    }
    QString title(SearchVerdict verdict) const
    {
        if (verdict == SearchVerdict::NoText) {
            return m_kind == DocumentKind::Joystick ? u"No text in joystick file"_s
                                                    : u"No text in macro file"_s;
        }
        return verdict == SearchVerdict::NoFurther ? u"You found 'em all!"_s : u"Text not found"_s;
    }

    Walk &m_walk;
    DocumentKind m_kind;
    QString m_word;
    int m_options;
    FindAndReplace *m_window = nullptr;
    QString m_find;
    bool m_isHit = false;
};

/// Finds a word, and with Enter in the text more of them, while the window is open.
void find(Walk &walk)
{
    const QString word = walk.oneIn(2) ? u"S1"_s : u"a"_s;
    Search search(walk, walk.document().kind(), false, word, SearchPlain);
    for (int count = 1 + walk.upTo(4); count > 0; --count) {
        const bool hasHit = search.isHit();
        search.expect();
        if (hasHit && !walk.oneIn(3)) {
            walk.sendKey(Qt::Key_Return, u"\r"_s);
        } else {
            search.pressFind();
        }
    }
}

void replaceAll(Search &search, Walk &walk, const QString &word, const QString &by, int options)
{
    WalkDocument &text = search.document();
    const auto hits = hitsToReplace(text.text(), word, by, options);
    if (!hits.empty()) {
        text.begin();
        text.replaceAll(hits, word.size(), by);
        text.commit();
    }
    walk.answer(u"Replaced 'em all for you. Now buy me a drink"_s, { BoxButton::Ok });
    search.press(u"Command6"_s);
}

void replaceOne(Search &search, const QString &by)
{
    WalkDocument &text = search.document();
    text.begin();
    text.replaceAll({ text.selStart() }, text.selLength(), by);
    text.commit();
    search.expect();
    search.press(u"Command5"_s);
}

void replaceWords(Walk &walk)
{
    const QString words[] = { u"S1"_s, u"Fire"_s, u"a"_s, u"rem"_s, u"zz"_s };
    const QString replacements[] = { u"S1"_s, u"S2 "_s, QString(), u"aa"_s };
    const QString word = words[walk.upTo(4)];
    const QString by = replacements[walk.upTo(3)];
    const int options = walk.upTo(3) * 2;
    Search search(walk, bothKinds[walk.upTo(1)], true, word, options);
    search.replaceBy(by);
    search.expect();
    search.pressFind();
    if (!search.isHit()) {
        return;
    }
    if (walk.oneIn(2)) {
        replaceAll(search, walk, word, by, options);
    } else {
        replaceOne(search, by);
    }
}

constexpr WalkAction allFinds[] = {
    { "find", 3, find },
    { "replace", 4, replaceWords },
};

} // namespace

std::span<const WalkAction> findActions()
{
    return allFinds;
}

} // namespace zeph::test
