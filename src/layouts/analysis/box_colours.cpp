// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/analysis/box_colours.h"

#include "platform/core/text_search.h"
#include "text/layout_passes.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeph {

using language::operator""_w;

namespace {

/// No colour of 24 bits: marks what a painter has left alone.
constexpr ColorRef unpainted = 0xFF000000;

struct Stretch {
    qsizetype from = 0;
    qsizetype to = 0;
};

using Captions = std::span<const QStringView>;

constexpr QStringView joystickControls[] = { u"U:",    u"D:",       u"L:",    u"R:",
                                             u"M:",    u"UL:",      u"UR:",   u"DL:",
                                             u"DR:",   u"Hat 1",    u"Hat 2", u"Hat 3",
                                             u"Hat 4", u"Triggers", u"TG1",   u"TG2" };
constexpr QStringView joystickAxes[] = { u"JOYX", u"JOYY" };
constexpr QStringView throttleAxes[] = { u"THR", u"RDDR", u"ANT",  u"RNG",
                                         u"MIX", u"MIY",  u"LBRK", u"RBRK" };
constexpr QStringView sheetCaptions[] = { u"Sim:",      u"File:",     u"Date:",
                                          u"Custom 1:", u"Custom 2:", u"Custom 3:" };

/// Normal highlighting as a colour for each character. Later colours cover earlier ones.
class BoxColours
{
public:
    BoxColours(QStringView text, const ColourScheme &scheme)
        : m_text(text), m_scheme(scheme), m_colours(size_t(text.size()), ColorRef(0))
    {
    }

    /// BTN with the name after it, which here reaches over tabs.
    void paintButtons()
    {
        constexpr QStringView button = u"BTN"_w;
        qsizetype at = 0;
        while ((at = findText(m_text, button, at, SearchWholeWord)) >= 0) {
            const qsizetype name = std::min(at + button.size() + 1, m_text.size());
            const qsizetype blank = m_text.indexOf(u' ', name);
            m_last = { at, blank < 0 ? m_text.size() : blank };
            fill(m_last, m_scheme.btn);
            at = m_last.to;
        }
    }

    /// The first of each caption, in any case and even within a word. In place of one that the text
    /// lacks, what was painted last gets the colour.
    void paintCaptions(Captions captions, ColorRef colour)
    {
        for (const QStringView caption : captions) {
            const qsizetype at = findText(m_text, caption, 0, SearchPlain);
            if (at >= 0) {
                m_last = { at, at + caption.size() };
            }
            fill(m_last, colour);
        }
    }

    /// What the painter paints; the rest keeps its colour.
    void paintWords()
    {
        static const Painter painter(layoutPasses());
        ColourScheme scheme = m_scheme;
        scheme.plain = unpainted;
        qsizetype at = 0;
        for (const ColourRun &run : painter.paint(m_text, scheme)) {
            if (run.colour != unpainted) {
                fill({ at, at + run.length }, run.colour);
            }
            at += run.length;
        }
    }

    void giveTo(RichTextChanges &changes) const
    {
        for (auto at = m_colours.begin(); at != m_colours.end();) {
            const ColorRef colour = *at;
            const auto end = std::find_if(at, m_colours.end(),
                                          [colour](ColorRef each) { return each != colour; });
            changes.change(at - m_colours.begin(), end - at,
                           [colour](CharFormat &format) { format.colour = colour; });
            at = end;
        }
    }

private:
    void fill(Stretch stretch, ColorRef colour)
    {
        std::fill(m_colours.begin() + stretch.from, m_colours.begin() + stretch.to, colour);
    }

    QStringView m_text;
    ColourScheme m_scheme;
    std::vector<ColorRef> m_colours;
    Stretch m_last; ///< empty while nothing is painted
};

void paintSheetsCaptions(BoxColours &colours, SheetKind kind, const ColourScheme &scheme)
{
    if (kind == SheetKind::Throttle) {
        colours.paintCaptions(throttleAxes, scheme.miscellaneous);
    } else {
        colours.paintCaptions(joystickControls, scheme.btn);
        colours.paintCaptions(joystickAxes, scheme.miscellaneous);
    }
    colours.paintCaptions(sheetCaptions, scheme.btn);
}

/// A position of the dogfight switch, with what ends its text besides the hats' directions.
struct Mode {
    QStringView tag;
    std::array<QStringView, 2> others;
    size_t style; ///< index
};

constexpr Mode modes[] = {
    { u"/U"_w, { u"/M ", u"/D " }, 6 },
    { u"/M"_w, { u"/U ", u"/D " }, 7 },
    { u"/D"_w, { u"/U ", u"/M " }, 8 },
};

constexpr qsizetype stopLength = 3;
constexpr QStringView directionStops[] = { u"U: ", u"D: ", u"L: ", u"R: ", u"M: ",
                                           u"UL:", u"DL:", u"UR:", u"DR:" };

bool isStop(const Mode &mode, QStringView characters)
{
    return std::ranges::find(directionStops, characters) != std::end(directionStops)
        || std::ranges::find(mode.others, characters) != mode.others.end();
}

/// Where a mode's text ends that starts with its tag. A stop that is the text's very end stays
/// inside.
qsizetype modeEnd(QStringView text, const Mode &mode, qsizetype tag)
{
    for (qsizetype end = tag + stopLength; end < text.size(); ++end) {
        const QChar last = text[end - 1];
        if ((last == u' ' || last == u':')
            && isStop(mode, text.sliced(end - stopLength, stopLength))) {
            return end - stopLength;
        }
    }
    return text.size();
}

} // namespace

RichText ApplyColours(SheetKind kind, RichText box, const BoxLook &look)
{
    if (box.text.isEmpty()) {
        return box;
    }
    const QString text = box.text;
    RichTextChanges changes(std::move(box));
    changes.change(0, text.size(), [&look](CharFormat &format) {
        format.family = look.font.family;
        format.pointSize = look.font.pointSize;
        format.bold = look.font.bold;
    });
    BoxColours colours(text, look.colours);
    colours.paintButtons();
    paintSheetsCaptions(colours, kind, look.colours);
    colours.paintWords();
    colours.giveTo(changes);
    return changes.take();
}

RichText ApplyUMDcolours(RichText box, const TextStyles &styles, ColorRef remStatements)
{
    if (box.text.isEmpty()) {
        return box;
    }
    const QString text = box.text;
    RichTextChanges changes(std::move(box));
    for (const Mode &mode : modes) {
        const CharFormat &style = styles[mode.style].format;
        qsizetype at = 0;
        while ((at = findText(text, mode.tag, at, SearchWholeWord)) >= 0) {
            const qsizetype end = modeEnd(text, mode, at);
            changes.change(at, end - at, [&style](CharFormat &format) {
                format.family = style.family;
                format.pointSize = style.pointSize;
                format.bold = style.bold;
                format.colour = style.colour;
                format.underline = style.underline;
                format.italic = style.italic;
            });
            at = end;
        }
    }
    qsizetype at = 0;
    for (const ColourRun &run :
         paint(text, remPasses(), { .plain = unpainted, .rem = remStatements })) {
        if (run.colour != unpainted) {
            changes.change(at, run.length,
                           [&run](CharFormat &format) { format.colour = run.colour; });
        }
        at += run.length;
    }
    return changes.take();
}

} // namespace zeph
