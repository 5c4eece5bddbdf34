// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What the stand-in compiler says to the pairs of files in tests/data/golden/verdicts.

#include "compiler.h"

#include "platform/core/profile_file.h"
#include "tests/support/golden.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;
using namespace zeph::test;

namespace {

const GoldenKind verdictFiles{ u"verdicts"_s, { u"tmj"_s }, { u"verdict"_s }, { u"tmm"_s } };

/// "good", or "1002 line 3" with the line of the file that the number speaks of.
QString verdict(const QString &joystickPath)
{
    const TempFolder folder;
    const QString ini = folder.write(u"HOTAS.ini"_s, "[Defaults]\r\nMDEFrequired=1\r\n");
    standin::runCompiler({ u"/ZEPH"_s, u"/CO"_s, joystickPath }, folder.path() + u'/', {});
    const ProfileFile results(ini);
    const auto value = [&](const QString &key) {
        return results.text(u"Compiler"_s, key, u"(absent)"_s);
    };
    if (value(u"Status"_s) == u"OK") {
        return u"good"_s;
    }
    return u"%1 line %2"_s.arg(value(u"ErrorCode"_s).mid(6, 4), value(u"LineNumber"_s));
}

class VerdictGolden : public testing::TestWithParam<GoldenCase>
{
};

} // namespace

TEST_P(VerdictGolden, AgreesWith)
{
    const QString expected = QString::fromLatin1(GetParam().bytes(u"verdict"_s)).trimmed();
    expectGolden(GetParam(), u"verdict"_s, expected, verdict(GetParam().inputPath()));
}

INSTANTIATE_TEST_SUITE_P(Golden, VerdictGolden, testing::ValuesIn(goldenCases(verdictFiles)));

TEST(GoldenVerdicts, EachPairHasAVerdictAndEachVerdictAPair)
{
    expectGoldenPartners(verdictFiles);
}
