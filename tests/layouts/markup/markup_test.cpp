// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/markup/markup.h"

#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

constexpr MarkupOptions plainUbb = { .type = CodeType::UBB };
constexpr MarkupOptions plainHtml = { .type = CodeType::HTML };

constexpr ColorRef red = colorRef(255, 0, 0);
constexpr ColorRef teal = colorRef(1, 0xAB, 0xCD);

RichText inColours(std::initializer_list<std::pair<QString, ColorRef>> pieces)
{
    RichText text = RichText::plain({});
    for (const auto &[piece, colour] : pieces) {
        CharFormat format;
        format.colour = colour;
        text.append(RichText::plain(piece, format));
    }
    return text;
}

/// The conversion as it is told, one character selected after another.
QString slowMarkup(const RichText &text, bool html, bool codeTags, bool escape)
{
    const QString open = html ? u"<FONT COLOR=\"#"_s : u"[color="_s;
    const QString close = html ? u"</FONT>"_s : u"[/color]"_s;
    const QString tagEnd = html ? u"\">"_s : u"]"_s;
    const QString lineEnd = html ? u"<BR>\n"_s : u"\n"_s;
    const auto twoDigits = [](quint32 byte) {
        static const char16_t digits[] = u"0123456789ABCDEF";
        return QString(QChar(digits[byte / 16])) + QChar(digits[byte % 16]);
    };
    QString out = !html && codeTags ? u"[CODE]\n"_s : QString();
    bool isOpen = false;
    ColorRef runs = 0;
    for (qsizetype i = 0; i < text.text.size(); ++i) {
        const RichText selected = text.mid(i, 1);
        if (selected.text == u"\n") {
            out += lineEnd;
            continue;
        }
        if (selected.text == u" ") {
            out += selected.text;
            continue;
        }
        const ColorRef colour = selected.formatAt(0).colour.value_or(0);
        if (!isOpen || colour != runs) {
            if (isOpen) {
                out += close;
            }
            out += open + twoDigits(colour & 255) + twoDigits(colour / 256 & 255)
                + twoDigits(colour / 65536 & 255) + tagEnd;
            isOpen = true;
            runs = colour;
        }
        QString character = selected.text;
        if (escape) {
            character.replace(u"&"_s, u"&amp;"_s);
            character.replace(u"<"_s, u"&lt;"_s);
            character.replace(u">"_s, u"&gt;"_s);
        }
        out += character;
    }
    if (isOpen) {
        out += close;
    }
    return !html && codeTags ? out + u"\n[/CODE]"_s : out;
}

} // namespace

TEST(Markup, EachColourHasItsTags)
{
    const RichText text = inColours({ { u"ab"_s, red }, { u"c"_s, teal } });
    EXPECT_EQ(markup(text, plainUbb), u"[color=FF0000]ab[/color][color=01ABCD]c[/color]");
    EXPECT_EQ(markup(text, plainHtml),
              u"<FONT COLOR=\"#FF0000\">ab</FONT><FONT COLOR=\"#01ABCD\">c</FONT>");
}

TEST(Markup, ABlankBetweenTwoColoursStaysInTheFirst)
{
    EXPECT_EQ(markup(inColours({ { u"a"_s, red }, { u" b"_s, teal } }), plainUbb),
              u"[color=FF0000]a [/color][color=01ABCD]b[/color]");
}

TEST(Markup, ABlanksOwnColourIsNotLookedAt)
{
    EXPECT_EQ(markup(inColours({ { u"a"_s, red }, { u" "_s, teal }, { u"b"_s, red } }), plainUbb),
              u"[color=FF0000]a b[/color]");
    EXPECT_EQ(markup(inColours({ { u" "_s, teal }, { u"b"_s, red } }), plainUbb),
              u" [color=FF0000]b[/color]");
}

TEST(Markup, BlanksOnlyHaveNoTags)
{
    EXPECT_EQ(markup(inColours({ { u"   "_s, red } }), plainUbb), u"   ");
    EXPECT_EQ(markup(inColours({ { u" \n "_s, red } }), plainHtml), u" <BR>\n ");
}

TEST(Markup, ALineEndEndsNoStretch)
{
    EXPECT_EQ(markup(inColours({ { u"a"_s, red }, { u"\n"_s, teal }, { u"b"_s, red } }), plainUbb),
              u"[color=FF0000]a\nb[/color]");
    EXPECT_EQ(markup(inColours({ { u"a\nb"_s, red } }), plainHtml),
              u"<FONT COLOR=\"#FF0000\">a<BR>\nb</FONT>");
}

TEST(Markup, ATabHasAColour)
{
    EXPECT_EQ(markup(inColours({ { u"a"_s, red }, { u"\t"_s, teal }, { u"b"_s, red } }), plainUbb),
              u"[color=FF0000]a[/color][color=01ABCD]\t[/color][color=FF0000]b[/color]");
}

TEST(Markup, TheCodeTagsGoAroundUbbAlone)
{
    const RichText text = inColours({ { u"a"_s, red } });
    EXPECT_EQ(markup(text, { .type = CodeType::UBB, .codeTags = true }),
              u"[CODE]\n[color=FF0000]a[/color]\n[/CODE]");
    EXPECT_EQ(markup(text, { .type = CodeType::HTML, .codeTags = true }), markup(text, plainHtml));
}

TEST(Markup, SignsOfMarkupAreEscapedOnlyOnDemand)
{
    const RichText text = inColours({ { u"<a> & \"b\""_s, red } });
    EXPECT_EQ(markup(text, plainHtml), u"<FONT COLOR=\"#FF0000\"><a> & \"b\"</FONT>");
    EXPECT_EQ(markup(text, { .type = CodeType::HTML, .escape = true }),
              u"<FONT COLOR=\"#FF0000\">&lt;a&gt; &amp; \"b\"</FONT>");
    EXPECT_EQ(markup(text, { .type = CodeType::UBB, .escape = true }),
              u"[color=FF0000]&lt;a&gt; &amp; \"b\"[/color]");
}

TEST(Markup, CharactersWithoutAColourHaveThePlainOne)
{
    EXPECT_EQ(markup(RichText::plain(u"a"_s), plainUbb), u"[color=000000]a[/color]");
    EXPECT_EQ(markup(RichText::plain(u"a"_s), plainUbb, teal), u"[color=01ABCD]a[/color]");
}

TEST(Markup, NothingBecomesNothing)
{
    EXPECT_EQ(markup(RichText::plain({}), plainHtml), u"");
    EXPECT_EQ(markup(RichText::plain({}), { .codeTags = true }), u"[CODE]\n\n[/CODE]");
}

TEST(Markup, AgreesWithTheSlowConversionOnAThousandTexts)
{
    test::RichTextMaker maker(57);
    for (int i = 0; i < 1000; ++i) {
        const RichText text = maker.make(u"ab  \t\n<&>\"é/"_s, 80);
        for (const bool html : { false, true }) {
            for (const int flags : { 0, 1, 2, 3 }) {
                const bool codeTags = flags & 1;
                const bool escape = flags & 2;
                ASSERT_EQ(markup(text, { html ? CodeType::HTML : CodeType::UBB, codeTags, escape }),
                          slowMarkup(text, html, codeTags, escape));
            }
        }
    }
}
