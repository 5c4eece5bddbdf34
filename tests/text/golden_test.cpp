// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What the rules make of the texts in tests/data/golden: colours, alignment, comments, inserts.

#include "settings/shared_settings.h"
#include "tests/support/golden.h"

#include "text/alignment.h"
#include "text/insert_blocks.h"
#include "text/painter.h"
#include "text/text_lines.h"

#include <gtest/gtest.h>

using namespace zeph;
using namespace zeph::test;

namespace {

const GoldenKind colouringFiles{ u"colouring"_s,
                                 { u"tmj"_s, u"tmm"_s },
                                 { u"colours"_s, u"typing"_s } };
const GoldenKind alignmentFiles{ u"alignment"_s,
                                 { u"tmj"_s },
                                 { u"aligned"_s, u"indent"_s, u"sheets"_s } };
const GoldenKind commentsFiles{ u"comments"_s,
                                { u"tmj"_s, u"tmm"_s },
                                { u"commented"_s, u"uncommented"_s } };
const GoldenKind insertsFiles{ u"inserts"_s,
                               { u"heading"_s, u"rem"_s, u"title"_s },
                               { u"block"_s } };

/// How far in the expectations with the suffix "indent" are.
constexpr IndentOptions fourBlanks = { true, 4 };

QString goldenText(const GoldenCase &golden, const QString &suffix)
{
    return documentText(golden.bytes(suffix)).value();
}

QString inputText(const GoldenCase &golden)
{
    return goldenText(golden, golden.input);
}

/// One letter a character, line ends as they are: B BTN and DEF, S slash, R raw, M miscellaneous,
/// C comment, P pure red, "." plain.
QString letters(const QString &text, std::span<const PaintPass> passes)
{
    constexpr ColorRef pureRed = 255;
    constexpr ColourScheme scheme = {
        .plain = 1, .btn = 2, .slash = 3, .raw = 4, .miscellaneous = 5, .rem = 6
    };
    QString letters = text;
    qsizetype at = 0;
    for (const ColourRun &run : paint(text, passes, scheme)) {
        const QChar letter = run.colour == pureRed ? u'P' : QStringView(u"?.BSRMC")[run.colour];
        for (const qsizetype end = at + run.length; at < end; ++at) {
            if (letters[at] != u'\n') {
                letters[at] = letter;
            }
        }
    }
    return letters;
}

/// Each line of a text with its letters below it, so that a diff shows both.
QString withLetters(const QString &text, const QString &letters)
{
    const QStringList lines = text.split(u'\n');
    const QStringList marks = letters.split(u'\n');
    QString both;
    for (qsizetype i = 0; i < std::max(lines.size(), marks.size()); ++i) {
        both += u"%1\n%2\n"_s.arg(lines.value(i, u"(no line)"_s), marks.value(i, u"(none)"_s));
    }
    return both;
}

QString aligned(const QString &text, const QString &suffix)
{
    if (suffix == u"sheets") {
        return AlignForLayouts(text);
    }
    return AlignSlashes(text, suffix == u"indent" ? fourBlanks : IndentOptions{});
}

QString commented(const QString &text, const QString &suffix)
{
    QString whole;
    for (const LineChange &line :
         changeLines(text, suffix == u"commented" ? commentedOut : commentedIn)) {
        whole += line.text;
    }
    return whole;
}

/// Lines "key: value"; each "comment" adds one to the comments.
TitleFields titleFields(const QString &text)
{
    TitleFields fields;
    QStringList comments;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QString key = line.section(u": "_s, 0, 0);
        const QString value = line.section(u": "_s, 1);
        if (key == u"file") {
            fields.fileName = value;
        } else if (key == u"game") {
            fields.game = value;
        } else if (key == u"person") {
            fields.person = value;
        } else if (key == u"modified") {
            fields.lastModified = value;
        } else if (key == u"controllers") {
            fields.controllers = value;
        } else if (key == u"comment") {
            comments.append(value);
        } else {
            ADD_FAILURE() << "a title has no " << key.toStdString();
        }
    }
    fields.comments = comments.join(u'\n');
    // As the form gives it.
    fields.person = personsNameOr(fields.person);
    return fields;
}

QString block(const QString &kind, QString text)
{
    if (kind == u"title") {
        return titleBlock(titleFields(text)).join(u'\n') + u'\n';
    }
    text = text.section(u'\n', 0, 0);
    return kind == u"rem" ? remStatement(text) + u'\n' : headingBlock(text).join(u'\n') + u'\n';
}

class ColouringGolden : public testing::TestWithParam<GoldenCase>
{
};
class AlignmentGolden : public testing::TestWithParam<GoldenCase>
{
};
class CommentsGolden : public testing::TestWithParam<GoldenCase>
{
};
class InsertsGolden : public testing::TestWithParam<GoldenCase>
{
};

} // namespace

TEST_P(ColouringGolden, AgreesWith)
{
    const QString text = inputText(GetParam());
    for (const QString &suffix : GetParam().expectations) {
        const auto passes = suffix == u"typing" ? typingPasses()
            : GetParam().input == u"tmm"        ? macroPasses()
                                                : joystickPasses();
        expectGolden(GetParam(), suffix, withLetters(text, goldenText(GetParam(), suffix)),
                     withLetters(text, letters(text, passes)));
    }
}

TEST_P(AlignmentGolden, AgreesWith)
{
    for (const QString &suffix : GetParam().expectations) {
        expectGolden(GetParam(), suffix, goldenText(GetParam(), suffix),
                     aligned(inputText(GetParam()), suffix));
    }
}

TEST_P(CommentsGolden, AgreesWith)
{
    for (const QString &suffix : GetParam().expectations) {
        expectGolden(GetParam(), suffix, goldenText(GetParam(), suffix),
                     commented(inputText(GetParam()), suffix));
    }
}

TEST_P(InsertsGolden, AgreesWith)
{
    expectGolden(GetParam(), u"block"_s, goldenText(GetParam(), u"block"_s),
                 block(GetParam().input, inputText(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Golden, ColouringGolden, testing::ValuesIn(goldenCases(colouringFiles)));
INSTANTIATE_TEST_SUITE_P(Golden, AlignmentGolden, testing::ValuesIn(goldenCases(alignmentFiles)));
INSTANTIATE_TEST_SUITE_P(Golden, CommentsGolden, testing::ValuesIn(goldenCases(commentsFiles)));
INSTANTIATE_TEST_SUITE_P(Golden, InsertsGolden, testing::ValuesIn(goldenCases(insertsFiles)));

TEST(GoldenFiles, EachInputHasAnExpectationAndEachExpectationAnInput)
{
    for (const GoldenKind &kind : { colouringFiles, alignmentFiles, commentsFiles, insertsFiles }) {
        expectGoldenPartners(kind);
    }
}
