// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

/// The tips of a tip file: one a line. Blank lines are no tips.
QStringList parseTips(QStringView file);

/// Walks round a list of tips without end.
class TipCycle
{
public:
    TipCycle() = default;
    /// Starts at a tip (0-based, taken round when beyond the end).
    TipCycle(QStringList tips, qsizetype first);

    bool isEmpty() const { return m_tips.isEmpty(); }
    /// The tip in turn; empty when there are none.
    QString current() const;
    /// Moves on; behind the last comes the first.
    void next();

private:
    QStringList m_tips;
    qsizetype m_index = 0;
};

} // namespace zeph
