// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What all checks use: a place to report mistakes, and the arguments of calls. Each check below
// reports the mistakes of one kind of statement.

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

    /// Adds a finding. In the macro file its code is InMacroFile, and the message tells the rest.
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

/// The arguments in the brackets of a call or group: split at its own commas, without blanks around
/// them, at least one. The item must belong to the source's list.
Arguments argumentsOf(const Source &source, const Item &item);

/// Whether one of the source's stray closing brackets lies at or after `from` and before `to`.
bool hasStrayClosing(const Source &source, qsizetype from, qsizetype to);

/// Whether the word is a logical flag that exists.
bool isFlag(QStringView word);

void checkCurve(Reporter &reporter, const Arguments &arguments);
/// Checks the arguments of all calls.
void checkCalls(Reporter &reporter);
/// Checks what every DISABLE names.
void checkDisables(Reporter &reporter);
/// Checks the body of a digital axis statement.
void checkDigitalAxis(Reporter &reporter, const JoystickStatement &statement);
void checkUse(Reporter &reporter, const JoystickStatement &statement);
/// Finds macros that call themselves.
void checkMacroCycles(Reporter &reporter, const MacroFile &macro);

} // namespace zeph::language
