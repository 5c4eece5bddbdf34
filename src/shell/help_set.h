// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The help folder's two lists: which page a topic number means, and which place a keyword.

#include "platform/core/base.h"
#include "platform/core/paths.h"

#include <QList>
#include <QStringList>

namespace zeph {

/// A page of the help: its number, its file in the help folder, its title.
struct HelpTopic {
    int number = 0;
    QString file;
    QString title;
};

/// A word of the index and the place that it leads to: a file of the help folder, with or without
/// "#anchor" after it.
struct HelpKeyword {
    QString word;
    QString target;
};

class HelpSet
{
public:
    HelpSet() = default;
    /// From the texts of the two lists. A line of the topics is "number TAB file TAB title", one of
    /// the index "keyword TAB target"; lines that are neither (comments, blank ones) are passed
    /// over.
    HelpSet(QStringView topics, QStringView index);

    const QList<HelpTopic> &topics() const { return m_topics; }
    /// The index in alphabetical order.
    const QList<HelpKeyword> &keywords() const { return m_keywords; }

    /// The page with that number; no value when there is none.
    std::optional<HelpTopic> topic(int number) const;
    /// Where a word leads; case does not matter. No value when the index lacks the word.
    std::optional<QString> target(QStringView word) const;
    /// The words of the index that hold a text, in any case; all for an empty text.
    QStringList wordsWith(QStringView part) const;

private:
    QList<HelpTopic> m_topics;
    QList<HelpKeyword> m_keywords;
};

/// The tips of a tip file: one a line. Blank lines are no tips.
QStringList parseTips(QStringView file);

/// Walks a list of tips; after the last comes the first.
class TipCycle
{
public:
    TipCycle() = default;
    /// Starts at a tip (0-based; a place beyond the end counts on from the first).
    TipCycle(QStringList tips, qsizetype first);

    bool isEmpty() const { return m_tips.isEmpty(); }
    /// The present tip; empty when there are none.
    QString current() const;
    /// Moves on to the next tip; after the last comes the first.
    void next();

private:
    QStringList m_tips;
    qsizetype m_index = 0;
};

// ZephInfo.ini of the Info folder: what the Help menu offers beyond its own entries.

struct InfoEntry {
    QString caption;
    /// Full path of the entry's file, which need not exist.
    QString path;
};

struct ZephInfo {
    QList<InfoEntry> onlineHelp; ///< the How do I entries, texts of the Info folder
    QList<InfoEntry> manuals;
};

/// No value when the file is missing. A numbered entry without a caption is left out.
std::optional<ZephInfo> readZephInfo(const Paths &paths);

} // namespace zeph
