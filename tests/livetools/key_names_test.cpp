// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_names.h"
#include "platform/core/file_io.h"
#include "platform/core/text1252.h"

#include <gtest/gtest.h>

#include <QSet>

#include <array>

using namespace zeph;

namespace {

const KeyTable table = keyTableFrom(u"13,Enter\r\n112,F1\r\n65,a\r\n");

struct NamingCase {
    int keycode;
    int shift;
    KeyText expected;
};

KeyText shown(const QString &text)
{
    return { text };
}

const KeyText nothing;
const KeyText silent{ {}, true };

} // namespace

TEST(KeyTable, BeginsWithAnEntryThatNoKeyHas)
{
    // 65535 in 16 bits signed.
    EXPECT_EQ(keyTableFrom(u""), (KeyTable{ { -1, u" "_s } }));
}

TEST(KeyTable, ALineIsSplitAtItsFirstComma)
{
    const KeyTable read = keyTableFrom(u"188,,\r\n27,Escape, the way out\n9,");
    EXPECT_EQ(read.mid(1),
              (KeyTable{ { 188, u","_s }, { 27, u"Escape, the way out"_s }, { 9, QString() } }));
}

TEST(KeyTable, ALineWithNoCommaIsSkipped)
{
    EXPECT_EQ(keyTableFrom(u"Windows keys\n\n8;Backspace\n8,Backspace\n").mid(1),
              (KeyTable{ { 8, u"Backspace"_s } }));
}

TEST(KeyTable, ACodeThatDoesNotFitIsSkipped)
{
    EXPECT_EQ(keyTableFrom(u"65536,a\n-32769,b\n1e99,c\n 46 ,Delete\n").mid(1),
              (KeyTable{ { 46, u"Delete"_s } }));
}

TEST(KeyTable, TwoLinesWithTheSameCodeTheLaterNameWins)
{
    const KeyTable twice = keyTableFrom(u"13,Return\n27,Escape\n13,Enter\n");
    EXPECT_EQ(nameOf(twice, 13), u"Enter");
    EXPECT_EQ(nameOf(twice, 14), QString());
}

TEST(WhichKey, PutsThePrefixOfTheShiftStateBeforeTheName)
{
    const std::array<QString, 8> prefixed = { u"Enter"_s,          u"Shift Enter"_s,
                                              u"Ctrl Enter"_s,     u"Shift Ctrl Enter"_s,
                                              u"Alt Enter"_s,      u"Shift Alt Enter"_s,
                                              u"Ctrl Alt Enter"_s, u"Shift Ctrl Alt Enter"_s };
    for (int shift = 0; shift < 8; ++shift) {
        EXPECT_EQ(WhichKey(table, 13, shift), shown(prefixed[size_t(shift)])) << shift;
    }
}

TEST(WhichKey, WithoutANameTheCharacterStandsAfterCtrlAndAlt)
{
    const NamingCase cases[] = {
        { 86, 0, nothing }, // the character that is typed tells itself
        { 86, 1, nothing },
        { 86, 2, shown(u"Ctrl v"_s) },
        { 86, 3, shown(u"Shift Ctrl v"_s) },
        { 86, 4, shown(u"Alt v"_s) },
        { 86, 5, shown(u"Shift Alt v"_s) },
        { 86, 6, shown(u"Ctrl Alt v"_s) },
        { 86, 7, shown(u"Shift Ctrl Alt v"_s) },
        { 49, 2, shown(u"Ctrl 1"_s) },
        { 196, 4, shown(u"Alt \u00E4"_s) }, // a code is a character of Windows-1252
    };
    for (const NamingCase &each : cases) {
        EXPECT_EQ(WhichKey(table, each.keycode, each.shift), each.expected)
            << each.keycode << ' ' << each.shift;
    }
}

TEST(WhichKey, ModifiersHaveNoNameOfTheirOwn)
{
    const NamingCase cases[] = {
        { 16, 1, nothing }, { 16, 3, silent }, { 16, 5, silent }, { 17, 2, silent },
        { 17, 3, silent },  { 18, 4, silent }, { 18, 6, silent }, { 17, 0, silent },
    };
    for (const NamingCase &each : cases) {
        EXPECT_EQ(WhichKey(table, each.keycode, each.shift), each.expected)
            << each.keycode << ' ' << each.shift;
    }
}

TEST(EventLine, TellsModifiersDigitsLettersNamesAndCodes)
{
    const std::pair<int, QString> names[] = {
        { 16, u"SHF"_s }, { 17, u"CTL"_s }, { 18, u"ALT"_s },   { 48, u"0"_s },   { 57, u"9"_s },
        { 65, u"a"_s },   { 90, u"z"_s },   { 13, u"Enter"_s }, { 112, u"F1"_s },
    };
    for (const auto &[code, name] : names) {
        EXPECT_EQ(eventLine(table, KeyDirection::Down, code), u"Down: "_s + name);
        EXPECT_EQ(eventLine(table, KeyDirection::Up, code), u"Up: "_s + name);
    }
}

TEST(EventLine, ACodeAbsentFromTheTableShowsItsDecimalValue)
{
    EXPECT_EQ(eventLine(table, KeyDirection::Down, 231), u"Down: 231");
    EXPECT_EQ(eventLine(table, KeyDirection::Up, 40), u"Up: 40");
    EXPECT_EQ(eventLine(table, KeyDirection::Down, 65534), u"Down: -2") << "16 bits, signed";
}

TEST(InstalledKeyCodes, NameEveryKeyOfAFullKeyboardOnce)
{
    const auto bytes = readWholeFile(QStringLiteral(ZEPH_SOURCE_DIR "/data/KeyCodes.txt"));
    ASSERT_TRUE(bytes);
    const KeyTable installed = keyTableFrom(fromText1252(*bytes));
    QList<int> codes = { 8, 9, 12, 13, 19, 20, 27, 32, 44, 45, 46, 91, 92, 93, 144, 145, 226 };
    const std::pair<int, int> ranges[] = { { 33, 40 },   { 48, 57 },   { 65, 90 },   { 96, 107 },
                                           { 109, 111 }, { 112, 135 }, { 186, 192 }, { 219, 222 } };
    for (const auto &[first, last] : ranges) {
        for (int code = first; code <= last; ++code) {
            codes.append(code);
        }
    }
    for (const int code : codes) {
        EXPECT_FALSE(nameOf(installed, code).isEmpty()) << code;
    }
    QSet<int> seen;
    QSet<QString> names;
    for (const KeyName &each : installed) {
        EXPECT_FALSE(seen.contains(each.code)) << each.code;
        EXPECT_FALSE(names.contains(each.name)) << each.name.toStdString();
        seen.insert(each.code);
        names.insert(each.name);
    }
    // The program itself tells of the modifiers.
    for (int code = 16; code <= 18; ++code) {
        EXPECT_FALSE(seen.contains(code));
    }
    EXPECT_EQ(WhichKey(installed, 121, 0).text, u"F10");
    EXPECT_EQ(WhichKey(installed, 86, 4).text, u"Alt v");
    EXPECT_EQ(*bytes, *readWholeFile(QStringLiteral(ZEPH_SOURCE_DIR "/data/Info/KeyCodes.txt")));
}
