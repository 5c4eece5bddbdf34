// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The help folder's two lists: which page a topic number means, and which place a keyword.

#include "platform/core/base.h"

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

} // namespace zeph
