// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/help_set.h"

#include <algorithm>

namespace zeph {

namespace {

HelpTopic topicOf(const QList<QStringView> &fields)
{
    bool isNumber = false;
    const int number = fields[0].trimmed().toInt(&isNumber);
    return isNumber
        ? HelpTopic{ number, fields[1].trimmed().toString(), fields[2].trimmed().toString() }
        : HelpTopic{};
}

} // namespace

HelpSet::HelpSet(QStringView topics, QStringView index)
{
    for (const QStringView line : topics.split(u'\n')) {
        const auto fields = line.split(u'\t');
        if (fields.size() == 3) {
            HelpTopic topic = topicOf(fields);
            if (!topic.file.isEmpty()) {
                m_topics.append(std::move(topic));
            }
        }
    }
    for (const QStringView line : index.split(u'\n')) {
        const auto fields = line.split(u'\t');
        if (fields.size() == 2 && !line.startsWith(u'#')) {
            m_keywords.append({ fields[0].trimmed().toString(), fields[1].trimmed().toString() });
        }
    }
    std::ranges::stable_sort(m_keywords, [](const HelpKeyword &a, const HelpKeyword &b) {
        return a.word.compare(b.word, Qt::CaseInsensitive) < 0;
    });
}

std::optional<HelpTopic> HelpSet::topic(int number) const
{
    const auto found = std::ranges::find(m_topics, number, &HelpTopic::number);
    return found == m_topics.end() ? std::nullopt : std::optional(*found);
}

std::optional<QString> HelpSet::target(QStringView word) const
{
    const QStringView wanted = word.trimmed();
    for (const HelpKeyword &keyword : m_keywords) {
        if (wanted.compare(keyword.word, Qt::CaseInsensitive) == 0) {
            return keyword.target;
        }
    }
    return std::nullopt;
}

QStringList HelpSet::wordsWith(QStringView part) const
{
    QStringList words;
    for (const HelpKeyword &keyword : m_keywords) {
        if (part.isEmpty() || keyword.word.contains(part, Qt::CaseInsensitive)) {
            words.append(keyword.word);
        }
    }
    return words;
}

} // namespace zeph
