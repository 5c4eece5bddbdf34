// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QStringList>

namespace zeph {

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

} // namespace zeph
