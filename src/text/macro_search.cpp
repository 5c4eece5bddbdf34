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

/// Whether a name may end at the position: the text ends there, or one of these characters follows.
bool endsUse(QStringView text, qsizetype end)
{
    return end >= text.size() || QStringView(u" )}>\t\n").contains(text[end]);
}

bool endsRenamed(QStringView text, qsizetype end)
{
    return end >= text.size() || QStringView(u" \t\n").contains(text[end]);
}

/// Tells whether a hit is in a comment. Remembers the last line, so that many hits in a long line
/// search it once.
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

/// The text folded in the way in which the search compares.
QString folded(QStringView text)
{
    QString result = text.toString();
    for (QChar &each : result) {
        each = each.toCaseFolded();
    }
    return result;
}

/// Calls a function with start and length of each whole word.
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

/// Seeks many names in one walk. A name is chosen one of its words, and wherever the text has the
/// name it has this word as a whole word: at the ends of the name by the whole-word rule, inside it
/// because other characters of the name surround it. So looking up each word of the text finds all
/// names that contain a word; macroUses() seeks the others.
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
        qsizetype wordAt = -1; ///< position in the name of the word that finds it; -1 without one
        qsizetype searched = 0; ///< end of its last hit
        bool used = false;
    };

    /// Chooses for each name the word that it shares with the fewest others. "Radar-1" and its like
    /// would otherwise all be compared at each "Radar" of the text.
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

    /// Whether the position is inside a word.
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

QString renamedIn(QString text, const QString &name, const QString &newName)
{
    const QList<qsizetype> hits = renameHits(text, name);
    for (auto hit = hits.rbegin(); hit != hits.rend(); ++hit) {
        text.replace(*hit, name.size(), newName);
    }
    return text;
}

QString nameAt(QStringView line, qsizetype position, const QStringList &names)
{
    QString longest;
    for (const QString &name : names) {
        if (name.size() <= longest.size()) {
            continue;
        }
        const auto isThere = [position](qsizetype hit, qsizetype end) {
            return hit <= position && position <= end;
        };
        if (!nameHits(line, name, isThere).isEmpty()) {
            longest = name;
        }
    }
    return longest;
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
