// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/help_set.h"

#include "platform/core/profile_file.h"

#include <QDir>
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

QStringList parseTips(QStringView file)
{
    QStringList tips;
    for (const QStringView line : file.split(u'\n')) {
        const QStringView tip = line.trimmed();
        if (!tip.isEmpty()) {
            tips.append(tip.toString());
        }
    }
    return tips;
}

TipCycle::TipCycle(QStringList tips, qsizetype first)
    : m_tips(std::move(tips)), m_index(m_tips.isEmpty() ? 0 : first % m_tips.size())
{
}

QString TipCycle::current() const
{
    return m_tips.value(m_index);
}

void TipCycle::next()
{
    if (!m_tips.isEmpty()) {
        m_index = (m_index + 1) % m_tips.size();
    }
}

namespace {

// More than a menu can hold; a garbled count must not read the disk for minutes.
constexpr qint32 mostEntries = 100;

/// The keys of one of the two lists.
struct ListKeys {
    QStringView section;
    QStringView count;
    QStringView path;
};

constexpr ListKeys onlineHelpKeys{ u"Online Help", u"NumberOfTopics", u"InfoFile" };
constexpr ListKeys manualKeys{ u"Manuals", u"NumberOfManuals", u"Path" };

QList<InfoEntry> readList(const ProfileFile &file, const ListKeys &keys, const QString &folder)
{
    QList<InfoEntry> entries;
    const qint32 count = std::clamp(file.integer(keys.section, keys.count, 0), 0, mostEntries);
    for (qint32 i = 1; i <= count; ++i) {
        const QString number = QString::number(i);
        const QString caption = file.text(keys.section, u"MenuCaption"_s + number);
        const QString path =
            nativeSeparators(file.text(keys.section, keys.path.toString() + number));
        if (!caption.isEmpty()) {
            entries.append({ caption, QDir::isAbsolutePath(path) ? path : folder + path });
        }
    }
    return entries;
}

} // namespace

std::optional<ZephInfo> readZephInfo(const Paths &paths)
{
    const QString path = existingPath(paths.infoFolder() + u"ZephInfo.ini"_s);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    const ProfileFile file(path);
    return ZephInfo{ readList(file, onlineHelpKeys, paths.infoFolder()),
                     readList(file, manualKeys, withClosingSeparator(paths.appFolder)) };
}

} // namespace zeph
