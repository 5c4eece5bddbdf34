// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/golden.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <ostream>

namespace zeph::test {

namespace {

QString folderOf(const GoldenKind &kind)
{
    return QStringLiteral(ZEPH_SOURCE_DIR "/tests/data/golden/") + kind.folder;
}

/// The suffixes of each name.
QMap<QString, QStringList> suffixesByName(const GoldenKind &kind)
{
    QMap<QString, QStringList> suffixes;
    const QStringList files = QDir(folderOf(kind)).entryList(QDir::Files);
    for (const QString &file : files) {
        const qsizetype dot = file.indexOf(u'.');
        suffixes[dot < 0 ? file : file.first(dot)].append(dot < 0 ? QString()
                                                                  : file.sliced(dot + 1));
    }
    return suffixes;
}

QStringList common(const QStringList &suffixes, const QStringList &wanted)
{
    QStringList found;
    for (const QString &suffix : wanted) {
        if (suffixes.contains(suffix)) {
            found.append(suffix);
        }
    }
    return found;
}

void expectPartners(const QString &name, const QStringList &suffixes, const GoldenKind &kind)
{
    const std::string files = (kind.folder + u'/' + name).toStdString();
    const QStringList known = kind.inputs + kind.expectations + kind.companions;
    for (const QString &suffix : suffixes) {
        EXPECT_TRUE(known.contains(suffix)) << files << "." << suffix.toStdString();
    }
    EXPECT_EQ(common(suffixes, kind.inputs).size(), 1) << files << ": inputs";
    EXPECT_FALSE(common(suffixes, kind.expectations).isEmpty()) << files << ": no expectation";
}

} // namespace

QByteArray GoldenCase::bytes(const QString &suffix) const
{
    QFile file(path + u'.' + suffix);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << file.fileName().toStdString();
    }
    return file.readAll();
}

void PrintTo(const GoldenCase &golden, std::ostream *out)
{
    *out << golden.path.section(u'/', -1).toStdString();
}

std::vector<GoldenCase> goldenCases(const GoldenKind &kind)
{
    std::vector<GoldenCase> cases;
    const QMap<QString, QStringList> names = suffixesByName(kind);
    for (auto name = names.begin(); name != names.end(); ++name) {
        const QStringList inputs = common(*name, kind.inputs);
        const QStringList expectations = common(*name, kind.expectations);
        if (inputs.size() == 1 && !expectations.isEmpty()) {
            cases.push_back({ folderOf(kind) + u'/' + name.key(), inputs.first(), expectations });
        }
    }
    return cases;
}

void expectGoldenPartners(const GoldenKind &kind)
{
    const QMap<QString, QStringList> names = suffixesByName(kind);
    for (auto name = names.begin(); name != names.end(); ++name) {
        expectPartners(name.key(), *name, kind);
    }
}

void expectGolden(const GoldenCase &golden, const QString &suffix, const QString &expected,
                  const QString &actual)
{
    // GoogleTest adds the diff by itself when both have several lines.
    EXPECT_EQ(expected.toStdString(), actual.toStdString())
        << golden.path.toStdString() << "." << suffix.toStdString();
}

} // namespace zeph::test
