// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the checks share: where they report, and how they read arguments.

#include "language/error_codes.h"
#include "language/model.h"

#include <QVarLengthArray>

namespace zeph::language {

/// Collects the findings of one file.
class Reporter
{
public:
    Reporter(const Source &source, File file, QList<Finding> &findings)
        : m_source(source), m_file(file), m_findings(findings)
    {
    }

    const Source &source() const { return m_source; }
    QStringView at(const Item &item) const { return m_source.at(item); }

    /// In the macro file every finding has that file's code; the message tells what it is.
    void report(Code code, const Place &place, const QString &message);

private:
    const Source &m_source;
    File m_file;
    QList<Finding> &m_findings;
};

struct Argument {
    QStringView text;
    Place place;
};

using Arguments = QVarLengthArray<Argument, 4>;

/// What stands between the brackets of a call or group, split at its own commas and trimmed; at
/// least one. The item must be one of the source's.
Arguments argumentsOf(const Source &source, const Item &item);

void checkCurve(Reporter &reporter, const Arguments &arguments);
/// The arguments of every word with brackets.
void checkCalls(Reporter &reporter);
/// The bodies of digital axis statements.
void checkDigitalAxis(Reporter &reporter, const Statement &statement);
void checkUse(Reporter &reporter, const Statement &statement);
/// Macros that lead back to themselves.
void checkMacroCycles(Reporter &reporter, const MacroFile &macro);

} // namespace zeph::language
