// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/rtf_reader.h"

#include <algorithm>
#include <iterator>

namespace zeph::rtf {

namespace {

// Beyond Word's own limits, and far from where sums of them overflow.
constexpr int maxIndentTwips = 100000;
constexpr int maxHalfPoints = 3276;
constexpr int maxFallback = 1000;
constexpr int singleSpacing = 240;

bool isOn(const Token &token)
{
    return !token.hasValue || token.value != 0;
}

constexpr Word destination(std::string_view name, Destination into)
{
    return { name, &Reader::enter, int(into), true };
}

constexpr Word skipped(std::string_view name, RtfLosses loss = {})
{
    Word word = destination(name, Destination::Skipped);
    word.loss = loss;
    return word;
}

/// A word that is passed over but for what it says of the file.
constexpr Word lost(std::string_view name, RtfLoss loss, int usual = 0)
{
    return { name, nullptr, 0, false, loss, usual };
}

constexpr Word underline(std::string_view name)
{
    return { name, &Reader::setStyle, int(Style::Underline), false, RtfLoss::Effects };
}

constexpr Word character(std::string_view name, char16_t character)
{
    return { name, &Reader::putCharacter, character };
}

// Sorted by name, bytewise: found by bisection.
constexpr Word words[] = {
    skipped("annotation", RtfLoss::Comments),
    { "ansi", &Reader::setDocumentCodePage, 1252 },
    { "ansicpg", &Reader::setDocumentCodePage, 0 },
    skipped("atnid"),
    { "b", &Reader::setStyle, int(Style::Bold) },
    { "blue", &Reader::setColourPart, 16 },
    character("bullet", 0x2022),
    lost("caps", RtfLoss::Effects),
    lost("cb", RtfLoss::Effects),
    character("cell", u'\t'),
    { "cf", &Reader::setColour },
    lost("chcbpat", RtfLoss::Effects),
    lost("chdate", RtfLoss::Fields),
    lost("chpgn", RtfLoss::Fields),
    lost("chtime", RtfLoss::Fields),
    destination("colortbl", Destination::Colours),
    lost("column", RtfLoss::PageBreaks),
    skipped("comment"),
    { "cpg", &Reader::setFontCodePage },
    { "deff", &Reader::setDefaultFont },
    lost("deleted", RtfLoss::TrackedChanges),
    lost("dn", RtfLoss::Effects),
    skipped("do", RtfLoss::Drawings),
    lost("embo", RtfLoss::Effects),
    character("emdash", 0x2014),
    character("emspace", 0x2003),
    character("endash", 0x2013),
    character("enspace", 0x2002),
    lost("expnd", RtfLoss::Effects),
    lost("expndtw", RtfLoss::Effects),
    { "f", &Reader::setFont },
    { "fcharset", &Reader::setCharset },
    { "fi", &Reader::setIndent, 1 },
    skipped("filetbl"),
    destination("fldinst", Destination::Instruction),
    destination("fonttbl", Destination::Fonts),
    skipped("footer", RtfLoss::HeadersAndFooters),
    skipped("footerf", RtfLoss::HeadersAndFooters),
    skipped("footerl", RtfLoss::HeadersAndFooters),
    skipped("footerr", RtfLoss::HeadersAndFooters),
    skipped("footnote", RtfLoss::Footnotes),
    { "fs", &Reader::setFontSize },
    { "green", &Reader::setColourPart, 8 },
    skipped("header", RtfLoss::HeadersAndFooters),
    skipped("headerf", RtfLoss::HeadersAndFooters),
    skipped("headerl", RtfLoss::HeadersAndFooters),
    skipped("headerr", RtfLoss::HeadersAndFooters),
    lost("highlight", RtfLoss::Effects),
    { "i", &Reader::setStyle, int(Style::Italic) },
    lost("impr", RtfLoss::Effects),
    skipped("info"),
    character("ldblquote", 0x201C),
    { "li", &Reader::setIndent, 0 },
    { "line", &Reader::endParagraph, 0 },
    destination("listtext", Destination::Marker),
    character("lquote", 0x2018),
    character("ltrmark", 0x200E),
    { "mac", &Reader::setDocumentCodePage, 10000 },
    character("nestcell", u'\t'),
    { "nestrow", &Reader::endParagraph, 0 },
    skipped("nonesttables"),
    skipped("nonshppict", RtfLoss::Pictures),
    skipped("object", RtfLoss::Objects),
    lost("outl", RtfLoss::Effects),
    lost("page", RtfLoss::PageBreaks),
    lost("pagebb", RtfLoss::PageBreaks),
    { "par", &Reader::endParagraph, 1 },
    { "pard", &Reader::resetParagraph },
    { "pc", &Reader::setDocumentCodePage, 437 },
    { "pca", &Reader::setDocumentCodePage, 850 },
    skipped("pict", RtfLoss::Pictures),
    { "plain", &Reader::resetLook },
    destination("pn", Destination::BulletForm),
    { "pnlvlblt", &Reader::setBulletForm },
    destination("pntext", Destination::Marker),
    skipped("private"),
    { "qc", &Reader::setAlignment, int(ParagraphAlignment::Centre) },
    { "qj", &Reader::setAlignment, int(ParagraphAlignment::Left), false, RtfLoss::ParagraphLayout },
    { "ql", &Reader::setAlignment, int(ParagraphAlignment::Left) },
    character("qmspace", 0x2005),
    { "qr", &Reader::setAlignment, int(ParagraphAlignment::Right) },
    character("rdblquote", 0x201D),
    { "red", &Reader::setColourPart, 0 },
    lost("revised", RtfLoss::TrackedChanges),
    skipped("revtbl"),
    lost("ri", RtfLoss::ParagraphLayout),
    { "row", &Reader::endParagraph, 0 },
    character("rquote", 0x2019),
    skipped("rtblalt"),
    character("rtlmark", 0x200F),
    skipped("rxe"),
    lost("sa", RtfLoss::ParagraphLayout),
    lost("sb", RtfLoss::ParagraphLayout),
    lost("scaps", RtfLoss::Effects),
    { "sect", &Reader::endParagraph, 1 },
    lost("sectnum", RtfLoss::Fields),
    lost("shad", RtfLoss::Effects),
    skipped("shp", RtfLoss::Drawings),
    skipped("shppict", RtfLoss::Pictures),
    lost("sl", RtfLoss::ParagraphLayout, singleSpacing),
    { "strike", &Reader::setStyle, int(Style::Strike) },
    { "striked", &Reader::setStyle, int(Style::Strike), false, RtfLoss::Effects },
    destination("stylesheet", Destination::Styles),
    lost("sub", RtfLoss::Effects),
    lost("super", RtfLoss::Effects),
    character("tab", u'\t'),
    skipped("tc"),
    skipped("tcn"),
    lost("trowd", RtfLoss::Tables),
    lost("tx", RtfLoss::ParagraphLayout),
    skipped("txe"),
    { "u", &Reader::putUnicode },
    { "uc", &Reader::setUnicodeFallback },
    { "ul", &Reader::setStyle, int(Style::Underline) },
    underline("uld"),
    underline("uldash"),
    underline("uldashd"),
    underline("uldashdd"),
    underline("uldb"),
    { "ulnone", &Reader::setStyle, int(Style::NoUnderline) },
    underline("ulth"),
    underline("ulw"),
    underline("ulwave"),
    lost("up", RtfLoss::Effects),
    lost("v", RtfLoss::Effects),
    skipped("xe"),
    character("zwj", 0x200D),
    character("zwnj", 0x200C),
};

static_assert(std::ranges::is_sorted(words, {}, &Word::name));

} // namespace

const Word *findWord(std::string_view name)
{
    const auto *const word = std::ranges::lower_bound(words, name, {}, &Word::name);
    return word != std::end(words) && word->name == name ? word : nullptr;
}

void Reader::setStyle(int style, const Token &token)
{
    Look &look = state().look;
    switch (Style(style)) {
    case Style::Bold:
        look.bold = isOn(token);
        break;
    case Style::Italic:
        look.italic = isOn(token);
        break;
    case Style::Underline:
        look.underline = isOn(token);
        break;
    case Style::NoUnderline:
        look.underline = false;
        break;
    case Style::Strike:
        look.strike = isOn(token);
        break;
    }
}

void Reader::setFont(int, const Token &token)
{
    if (state().destination == Destination::Fonts) {
        m_fonts.start(token.value);
        state().codePage = m_documentCodePage;
        return;
    }
    state().look.font = token.value;
    useCodePageOf(token.value);
}

void Reader::setFontSize(int, const Token &token)
{
    state().look.halfPoints = std::clamp(token.value, 0, maxHalfPoints);
}

void Reader::setColour(int, const Token &token)
{
    state().look.colour = token.value;
}

void Reader::resetLook(int, const Token &)
{
    const int link = state().look.link;
    state().look = {};
    state().look.link = link;
    useCodePageOf(m_defaultFont);
}

void Reader::useCodePageOf(int font)
{
    const int codePage = m_fonts.find(font).codePage;
    state().codePage = codePage == 0 ? m_documentCodePage : codePage;
}

void Reader::resetParagraph(int, const Token &)
{
    state().leftTwips = 0;
    state().firstTwips = 0;
    state().alignment = ParagraphAlignment::Left;
    // Word writes the marker before the word that resets the formats of the last paragraph.
    state().bullet = m_paragraphHasBullet;
}

void Reader::setIndent(int isFirst, const Token &token)
{
    (isFirst ? state().firstTwips : state().leftTwips) =
        std::clamp(token.value, -maxIndentTwips, maxIndentTwips);
    if (isFirst && token.value > 0 && state().destination == Destination::Document) {
        m_losses |= RtfLoss::ParagraphLayout;
    }
}

void Reader::setAlignment(int alignment, const Token &)
{
    state().alignment = ParagraphAlignment(alignment);
}

void Reader::setUnicodeFallback(int, const Token &token)
{
    state().unicodeFallback = std::clamp(token.value, 0, maxFallback);
}

void Reader::setDocumentCodePage(int codePage, const Token &token)
{
    m_documentCodePage = codePage == 0 ? token.value : codePage;
    state().codePage = m_documentCodePage;
}

void Reader::setDefaultFont(int, const Token &token)
{
    m_defaultFont = token.value;
    m_numbers.clear();
}

void Reader::setCharset(int, const Token &token)
{
    if (state().destination == Destination::Fonts) {
        const int codePage = codePageOfCharset(token.value);
        m_fonts.current().codePage = codePage;
        state().codePage = codePage == 0 ? m_documentCodePage : codePage;
    }
}

void Reader::setFontCodePage(int, const Token &token)
{
    if (state().destination == Destination::Fonts && token.value > 0) {
        m_fonts.current().codePage = token.value;
        state().codePage = token.value;
    }
}

void Reader::setColourPart(int shift, const Token &token)
{
    if (state().destination == Destination::Colours) {
        m_colours.setPart(shift, token.value);
    }
}

void Reader::setBulletForm(int, const Token &)
{
    m_isBulletForm = m_isBulletForm || state().destination == Destination::BulletForm;
}

void Reader::enter(int destination, const Token &)
{
    state().destination = Destination(destination);
    if (state().destination == Destination::Fonts || state().destination == Destination::Colours) {
        m_numbers.clear();
    }
    if (state().destination == Destination::Marker) {
        m_marker.clear();
    } else if (state().destination == Destination::Instruction) {
        m_instruction.clear();
    }
}

} // namespace zeph::rtf
