// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/macro_search.h"

#include "platform/core/text_search.h"
#include "text/text_lines.h"

#include <QHash>

#include <algorithm>
#include <vector>

namespace zeph {

namespace {

/// Whether what stands behind a name ends it; the text's end counts as a line end.
bool endsUse(QStringView text, qsizetype end)
{
    return end >= text.size() || QStringView(u" )}>\t\n").contains(text[end]);
}

bool endsRenamed(QStringView text, qsizetype end)
{
    return end >= text.size() || QStringView(u" \t\n").contains(text[end]);
}

/// Tells whether a hit lies in a comment. Hits that follow each other in a line cost one look at
/// the line, however long it is.
class Comments
{
public:
    explicit Comments(QStringView text) : m_text(text) { }

    bool hold(qsizetype hit)
    {
        if (hit < m_start || hit > m_end) {
            readLine(hit);
        }
        return m_rem >= 0 && m_rem + remAndBlank.size() <= hit;
    }

private:
    void readLine(qsizetype at)
    {
        m_start = m_text.left(at).lastIndexOf(u'\n') + 1;
        const qsizetype end = m_text.indexOf(u'\n', at);
        m_end = end < 0 ? m_text.size() : end;
        const qsizetype found = remAt(m_text.mid(m_start, m_end - m_start));
        m_rem = found < 0 ? -1 : m_start + found;
    }

    QStringView m_text;
    qsizetype m_start = 0;
    qsizetype m_end = -1;
    qsizetype m_rem = -1;
};

template <class Passes>
QList<qsizetype> nameHits(QStringView text, const QString &name, Passes passes)
{
    QList<qsizetype> hits;
    qsizetype at = findText(text, name, 0, SearchWholeWord);
    while (at >= 0) {
        if (passes(at, at + name.size())) {
            hits.append(at);
        }
        at = findText(text, name, at + name.size(), SearchWholeWord);
    }
    return hits;
}

/// The text as the search compares it.
QString folded(QStringView text)
{
    QString result = text.toString();
    for (QChar &each : result) {
        each = each.toCaseFolded();
    }
    return result;
}

/// Calls for each run of word characters that is as long as it can be: start and length.
template <class Call> void forEachWord(QStringView text, Call call)
{
    qsizetype at = 0;
    while (at < text.size()) {
        if (!isWordCharacter(text[at])) {
            ++at;
            continue;
        }
        const qsizetype start = at;
        while (at < text.size() && isWordCharacter(text[at])) {
            ++at;
        }
        call(start, at - start);
    }
}

/// Many names searched at once. A name with word characters in it can only stand where the text has
/// one of the name's words whole: the whole-word rule sees to it at the name's ends, the name's own
/// other characters within it. So one look-up for each word of the text finds all such names.
class NameWalk
{
public:
    explicit NameWalk(const QStringList &names)
    {
        for (const QString &name : names) {
            const QString key = folded(name);
            if (!m_indices.contains(key)) {
                m_indices.insert(key, m_wanted.size());
                m_wanted.push_back({ key });
            }
        }
        chooseWords();
    }

    void walk(QStringView text)
    {
        const QString searched = folded(text);
        Comments comments(text);
        forEachWord(text, [&](qsizetype start, qsizetype length) {
            const auto found = m_byWord.constFind(QStringView(searched).mid(start, length));
            if (found == m_byWord.cend()) {
                return;
            }
            for (const size_t index : *found) {
                look(m_wanted[index], text, searched, start, comments);
            }
        });
        for (Wanted &each : m_wanted) {
            each.used = each.used || (each.wordAt < 0 && !macroUses(text, each.name).isEmpty());
        }
    }

    bool isUsed(const QString &name) const { return m_wanted[m_indices.value(folded(name))].used; }

private:
    struct Wanted {
        QString name; ///< folded
        qsizetype wordAt = -1; ///< where in it the word stands that finds it; -1: no word
        qsizetype searched = 0; ///< end of its last hit
        bool used = false;
    };

    /// Of a name's words the one that the fewest names share finds it, so that families of names
    /// ("Radar-1", "Radar-2", ...) do not all come up at each "Radar".
    void chooseWords()
    {
        QHash<QStringView, int> sharing;
        for (const Wanted &each : m_wanted) {
            forEachWord(each.name, [&](qsizetype start, qsizetype length) {
                ++sharing[QStringView(each.name).mid(start, length)];
            });
        }
        for (size_t i = 0; i < m_wanted.size(); ++i) {
            QStringView best;
            Wanted &each = m_wanted[i];
            forEachWord(each.name, [&](qsizetype start, qsizetype length) {
                const QStringView word = QStringView(each.name).mid(start, length);
                if (best.isEmpty() || sharing.value(word) < sharing.value(best)) {
                    best = word;
                    each.wordAt = start;
                }
            });
            if (!best.isEmpty()) {
                m_byWord[best].push_back(i);
            }
        }
    }

    /// Whether a word goes on across a position.
    static bool isJoined(QStringView text, qsizetype at)
    {
        return at > 0 && at < text.size() && isWordCharacter(text[at - 1])
            && isWordCharacter(text[at]);
    }

    static void look(Wanted &wanted, QStringView text, QStringView searched, qsizetype wordStart,
                     Comments &comments)
    {
        const qsizetype start = wordStart - wanted.wordAt;
        const qsizetype length = wanted.name.size();
        if (wanted.used || start < wanted.searched
            || QStringView(wanted.name) != searched.mid(start, length) || isJoined(text, start)
            || isJoined(text, start + length)) {
            return;
        }
        wanted.searched = start + length;
        wanted.used = endsUse(text, start + length) && !comments.hold(start);
    }

    std::vector<Wanted> m_wanted;
    QHash<QString, size_t> m_indices;
    QHash<QStringView, std::vector<size_t>> m_byWord; ///< views of the names above
};

bool isOfWord(QChar character)
{
    return isWordCharacter(character) || QStringView(u"-+!*?$%&[]'#~.`/\\:;\"").contains(character);
}

} // namespace

QList<qsizetype> macroUses(QStringView joystickText, const QString &name)
{
    Comments comments(joystickText);
    return nameHits(joystickText, name, [&](qsizetype hit, qsizetype end) {
        return endsUse(joystickText, end) && !comments.hold(hit);
    });
}

QList<bool> usedMacros(QStringView joystickText, const QStringList &names)
{
    NameWalk walk(names);
    walk.walk(joystickText);
    QList<bool> used;
    used.reserve(names.size());
    for (const QString &name : names) {
        used.append(walk.isUsed(name));
    }
    return used;
}

QList<qsizetype> renameHits(QStringView text, const QString &name)
{
    return nameHits(text, name, [&](qsizetype, qsizetype end) { return endsRenamed(text, end); });
}

QString wordOver(QStringView text, qsizetype position)
{
    if (position < 0 || position >= text.size() || !isOfWord(text[position])) {
        return {};
    }
    const auto ends = [](QChar character) {
        return !isOfWord(character);
    };
    const auto at = text.begin() + position;
    const auto first = std::find_if(std::make_reverse_iterator(at),
                                    std::make_reverse_iterator(text.begin()), ends);
    const auto last = std::find_if(at, text.end(), ends);
    return QStringView(first.base(), last).toString();
}

} // namespace zeph
