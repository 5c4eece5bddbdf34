// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/tips.h"

namespace zeph {

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

} // namespace zeph
