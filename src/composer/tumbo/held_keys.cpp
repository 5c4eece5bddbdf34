// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/held_keys.h"

#include "composer/tumbo/keys.h"
#include "text/text_lines.h"

namespace zeph {

namespace {

/// What the brackets of a word do with the keys in them.
enum class Call { None, KeyDown, KeyUp, Codes };

Call callOf(QStringView word)
{
    const auto is = [word](QStringView name) {
        return word.compare(name, Qt::CaseInsensitive) == 0;
    };
    return is(u"KD"_w) ? Call::KeyDown
        : is(u"KU"_w)  ? Call::KeyUp
        : is(u"USB"_w) ? Call::Codes
                       : Call::None;
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n';
}

/// Reads a statement from call to call.
class HeldKeys
{
public:
    explicit HeldKeys(QStringView text) : m_text(text) { }

    std::set<int> read()
    {
        QStringView word;
        while (m_at < m_text.size()) {
            if (m_text[m_at] == u'(') {
                ++m_at;
                readCall(callOf(word));
                word = {};
            } else if (isBlank(m_text[m_at]) || m_text[m_at] == u')') {
                ++m_at;
            } else {
                word = nextWord();
            }
        }
        return m_held;
    }

private:
    QStringView nextWord()
    {
        const qsizetype from = m_at;
        while (m_at < m_text.size() && !isBlank(m_text[m_at]) && m_text[m_at] != u'('
               && m_text[m_at] != u')') {
            ++m_at;
        }
        return m_text.sliced(from, m_at - from);
    }

    /// A bracket among the keys is a key if it is a word of its own and another one closes.
    bool isKey() const
    {
        const bool begins = isBlank(m_text[m_at - 1]) || m_text[m_at - 1] == u'(';
        const bool isLast = m_at + 1 == m_text.size();
        return begins && !isLast && (isBlank(m_text[m_at + 1]) || m_text[m_at + 1] == u')')
            && m_text.sliced(m_at + 1).contains(u')');
    }

    void readCall(Call call)
    {
        while (m_at < m_text.size()) {
            const QChar c = m_text[m_at];
            if (isBlank(c)) {
                ++m_at;
            } else if (c == u'(' || c == u')') {
                const bool key = (call == Call::KeyDown || call == Call::KeyUp) && isKey();
                if (key) {
                    take(call, m_text.sliced(m_at, 1));
                }
                ++m_at;
                if (c == u')' && !key) {
                    return;
                }
            } else {
                take(call, nextWord());
            }
        }
    }

    void take(Call call, QStringView word)
    {
        bool isDown = call == Call::KeyDown;
        const BoardKey *key = call == Call::None ? nullptr : boardKeyNamed(word);
        if (call == Call::Codes) {
            const QChar way = word[0].toUpper();
            isDown = way == u'D';
            key = isDown || way == u'U' ? boardKeyCoded(word.sliced(1)) : nullptr;
        }
        if (!key) {
            return;
        }
        if (isDown) {
            m_held.insert(key->index);
        } else {
            m_held.erase(key->index);
        }
    }

    QStringView m_text;
    qsizetype m_at = 0;
    std::set<int> m_held;
};

} // namespace

std::set<int> keysHeldBy(const QString &statement)
{
    const qsizetype rem = remAt(statement);
    return HeldKeys(rem < 0 ? QStringView(statement) : QStringView(statement).first(rem)).read();
}

} // namespace zeph
