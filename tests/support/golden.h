// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Golden files: an input and what is expected of it, side by side under one name in a folder of
// tests/data/golden. The suffix says which is which.

#include <gtest/gtest.h>

#include <QStringList>

#include <vector>

namespace zeph::test {

/// What a folder of golden files may hold.
struct GoldenKind {
    /// Below tests/data/golden.
    QString folder;
    /// Suffixes without the dot. A name has exactly one of the inputs, and one or more of the
    /// expectations.
    QStringList inputs;
    QStringList expectations;
    /// Suffixes of files that an input may have besides.
    QStringList companions = {};
};

/// One input with its expectations.
struct GoldenCase {
    /// The files' common path, without the dot and the suffix.
    QString path;
    /// The input's suffix.
    QString input;
    /// Those of the expectations that there are.
    QStringList expectations;

    QString inputPath() const { return path + u'.' + input; }
    /// What one of the case's files holds. Fails the test when it cannot be read.
    QByteArray bytes(const QString &suffix) const;
};

/// The name alone, which ctest adds to the test's.
void PrintTo(const GoldenCase &golden, std::ostream *out);

/// The inputs that have an expectation, in the order of their names. An empty folder has none, by
/// which GoogleTest fails the suite.
std::vector<GoldenCase> goldenCases(const GoldenKind &kind);

/// Fails for each name in the folder that has an input without an expectation, an expectation or a
/// companion without an input, two inputs, or a suffix that means nothing.
void expectGoldenPartners(const GoldenKind &kind);

/// Fails, with a unified diff of texts that have lines, when they are not the same. The suffix
/// tells whose expectation it is.
void expectGolden(const GoldenCase &golden, const QString &suffix, const QString &expected,
                  const QString &actual);

} // namespace zeph::test
