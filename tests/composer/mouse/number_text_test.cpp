// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/number_text.h"

#include <gtest/gtest.h>

#include <QLocale>

using namespace zeph;

namespace number_text_tests {

namespace {

struct Row {
    double value;
    QStringView text;
};

constexpr Row rows[] = {
    { 0, u"0" },       { 0.04, u"0" },         { -0.04, u"0" },       { 0.05, u"0.1" },
    { 0.5, u"0.5" },   { -0.5, u"-0.5" },      { 0.96, u"1" },        { 7, u"7" },
    { 10, u"10" },     { 100, u"100" },        { 12.34, u"12.3" },    { 12.36, u"12.4" },
    { 0.25, u"0.3" },  { -0.25, u"-0.3" },     { 89.95, u"90" },      { 359.97, u"360" },
    { 1599, u"1599" }, { 1599.94, u"1599.9" }, { -640.5, u"-640.5" }, { 12345.6, u"12345.6" },
};

} // namespace

TEST(NumberText, EachRow)
{
    for (const Row &row : rows) {
        EXPECT_EQ(numberText(row.value), row.text) << row.value;
    }
}

TEST(NumberText, HasAPointWhateverTheLocaleHas)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    ASSERT_EQ(QLocale().decimalPoint(), u",");
    EXPECT_EQ(numberText(12.5), u"12.5");
    EXPECT_EQ(numberText(1234.5), u"1234.5");
    QLocale::setDefault(before);
}

TEST(NumberText, IsTheMaskCleanedUp)
{
    // By way of digits: the number in tenths, without a lone point or a missing nought.
    for (int tenths = -20'000; tenths <= 20'000; ++tenths) {
        const int whole = std::abs(tenths) / 10;
        const int rest = std::abs(tenths) % 10;
        QString expected = QString::number(whole);
        if (rest != 0) {
            expected += u'.' + QString::number(rest);
        }
        if (tenths < 0) {
            expected.prepend(u'-');
        }
        ASSERT_EQ(numberText(tenths / 10.0), expected);
    }
}

} // namespace number_text_tests
