// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The colouring of boxes as it is told: a control with a text and a selection, in which one word
// after another is sought, selected and painted. Slow, with word lists of its own, and independent
// of the colouring that it judges.

#include "layouts/analysis/box_colours.h"
#include "platform/core/text_search.h"

#include <QStringList>

namespace zeph::test {

class BoxColoursTwin
{
public:
    BoxColoursTwin(const RichText &box, const ColourScheme &scheme)
        : m_text(box.text), m_scheme(scheme)
    {
        for (qsizetype i = 0; i < m_text.size(); ++i) {
            m_looks.push_back(box.formatAt(i));
        }
    }

    void applyColours(bool throttle, const CharFormat &font)
    {
        for (CharFormat &look : m_looks) {
            look.colour = 0;
            look.family = font.family;
            look.pointSize = font.pointSize;
            look.bold = font.bold;
        }
        m_selStart = 0;
        m_selLength = 0;
        colourButtons(u" "_s);
        if (throttle) {
            captions({ u"THR"_s, u"RDDR"_s, u"ANT"_s, u"RNG"_s, u"MIX"_s, u"MIY"_s, u"LBRK"_s,
                       u"RBRK"_s },
                     m_scheme.miscellaneous);
        } else {
            captions({ u"U:"_s, u"D:"_s, u"L:"_s, u"R:"_s, u"M:"_s, u"UL:"_s, u"UR:"_s, u"DL:"_s,
                       u"DR:"_s, u"Hat 1"_s, u"Hat 2"_s, u"Hat 3"_s, u"Hat 4"_s, u"Triggers"_s,
                       u"TG1"_s, u"TG2"_s },
                     m_scheme.btn);
            captions({ u"JOYX"_s, u"JOYY"_s }, m_scheme.miscellaneous);
        }
        captions(
            { u"Sim:"_s, u"File:"_s, u"Date:"_s, u"Custom 1:"_s, u"Custom 2:"_s, u"Custom 3:"_s },
            m_scheme.btn);
        colourButtons(u" \t"_s);
        words();
        colourRem();
    }

    void applyModes(const TextStyles &styles)
    {
        mode(u"/U"_s, { u"/M "_s, u"/D "_s }, styles[6].format);
        mode(u"/M"_s, { u"/U "_s, u"/D "_s }, styles[7].format);
        mode(u"/D"_s, { u"/U "_s, u"/M "_s }, styles[8].format);
        colourRem();
    }

    const std::vector<CharFormat> &looks() const { return m_looks; }

private:
    using Primitive = void (BoxColoursTwin::*)(const QString &word, ColorRef colour);

    /// Selects the hit; without one the selection stays.
    bool find(const QString &word, qsizetype from, int options)
    {
        const qsizetype hit = findText(m_text, word, from, options);
        if (hit == -1) {
            return false;
        }
        m_selStart = hit;
        m_selLength = word.size();
        return true;
    }

    QString at(qsizetype position) const { return m_text.mid(position, position < 0 ? 0 : 1); }

    void setColour(ColorRef colour)
    {
        for (qsizetype i = 0; i < m_selLength; ++i) {
            m_looks[size_t(m_selStart + i)].colour = colour;
        }
    }

    void growTo(const QString &enders)
    {
        while (m_selStart + m_selLength < m_text.size()
               && !enders.contains(at(m_selStart + m_selLength))) {
            ++m_selLength;
        }
    }

    void colourButtons(const QString &enders)
    {
        for (qsizetype start = 0; find(u"BTN"_s, start, 2); start = m_selStart + m_selLength) {
            if (m_selStart + m_selLength < m_text.size()) {
                ++m_selLength;
            }
            growTo(enders);
            setColour(m_scheme.btn);
        }
    }

    void captions(const QStringList &all, ColorRef colour)
    {
        for (const QString &caption : all) {
            find(caption, 0, 0);
            setColour(colour);
        }
    }

    void each(Primitive primitive, ColorRef colour, const QString &words)
    {
        for (const QString &word : words.split(u' ')) {
            (this->*primitive)(word, colour);
        }
    }

    void words()
    {
        const auto only = &BoxColoursTwin::onlyWord;
        const auto call = &BoxColoursTwin::wordNotBracket;
        const auto bracket = &BoxColoursTwin::bracketOnly;
        const ColorRef misc = m_scheme.miscellaneous;
        const ColorRef raw = m_scheme.raw;
        each(only, m_scheme.slash, u"/U /M /D /I /O /A /H /T /P /R"_s);
        each(&BoxColoursTwin::wordCheckWhole, raw, u"CURVE"_s);
        each(only, misc, u"POV ARROWKEYS KEYPAD MOUSE"_s);
        each(call, raw, u"USB DLY RPT KD KU MSX MSY MSZ"_s);
        each(call, misc, u"RATE MOUSE SHIFTBTN"_s);
        each(call, raw, u"CURVE"_s);
        each(call, raw, u"TRIM HOLDTRIM LOCK"_s);
        each(call, misc, u"THR_RANGE"_s);
        each(call, raw, u"UNLOCK SWAP REVERSE FORWARD MOUSEXY MOUSEMOVE MOUSEROTATE"_s);
        each(only, misc,
             u"REVERSE_LR REVERSE_UD REVERSE_DIR FORCED_CORNERS NOHOLD FORCE_MACROS NO_BUTTON "
             "ZERO_MOUSE"_s);
        each(only, 255, u"STICK_OFF RUN_APP"_s);
        each(only, misc,
             u"WINDOW_STYLE S3_LOCK S3_UNLOCK SHIFTBTN LASTVALUE MOUSE_LB MOUSE_RB MOUSE_MB "
             "REVERSE_TOGGLES RESET_TOGGLES"_s);
        each(only, misc, u"MOUSEX MOUSEY MOUSEZ"_s);
        each(only, 255, u"EMPTY_BUFFERS"_s);
        each(only, misc,
             u"JOYX JOYY ANT RNG THR RDDR LBRK RBRK MIX MIY JOYSTICK ROTARIES TOEBRAKES "
             "MICROSTICK POVU POVD POVL POVR POVUL POVDL POVUR POVDR TO_CURRENT"_s);
        each(bracket, raw, u"( )"_s);
        each(bracket, m_scheme.slash, u"< >"_s);
        each(bracket, misc, u"{ }"_s);
    }

    void onlyWord(const QString &word, ColorRef colour)
    {
        for (qsizetype start = 0; find(word, start, 6); start = m_selStart + m_selLength) {
            setColour(colour);
        }
    }

    void wordCheckWhole(const QString &word, ColorRef colour)
    {
        for (qsizetype start = 0; find(word, start, 2); start = m_selStart + m_selLength) {
            const bool blankAfter = at(m_selStart + m_selLength) == u" ";
            if (blankAfter && (m_selStart == 0 || at(m_selStart - 1) != u"_")) {
                setColour(colour);
            }
        }
    }

    void wordNotBracket(const QString &word, ColorRef colour)
    {
        for (qsizetype start = 0; find(word, start, 2); start = m_selStart + m_selLength) {
            const qsizetype end = m_selStart + m_selLength;
            if (at(end) == u"(" || at(end + 1) == u"(") {
                setColour(colour);
            }
        }
    }

    void bracketOnly(const QString &word, ColorRef colour)
    {
        for (qsizetype start = 0; find(word, start, 0); start = m_selStart + m_selLength) {
            setColour(colour);
        }
    }

    void colourRem()
    {
        for (qsizetype start = 0; find(u"Rem"_s, start, 2); start = m_selStart + m_selLength) {
            growTo(u"\n"_s);
            setColour(m_scheme.rem);
        }
    }

    void mode(const QString &tag, const QStringList &others, const CharFormat &style)
    {
        const QStringList stops = QStringList{ u"U: "_s, u"D: "_s, u"L: "_s, u"R: "_s, u"M: "_s,
                                               u"UL:"_s, u"DL:"_s, u"UR:"_s, u"DR:"_s }
            + others;
        qsizetype position = 0;
        while (find(tag, position, 2)) {
            const qsizetype p = m_selStart;
            while (p + m_selLength < m_text.size()) {
                ++m_selLength;
                if (stops.contains(m_text.mid(p, m_selLength).right(3))) {
                    break;
                }
            }
            if (p + m_selLength < m_text.size()) {
                m_selLength -= 3;
            }
            for (qsizetype i = p; i < p + m_selLength; ++i) {
                CharFormat &look = m_looks[size_t(i)];
                look.family = style.family;
                look.pointSize = style.pointSize;
                look.bold = style.bold;
                look.colour = style.colour;
                look.underline = style.underline;
                look.italic = style.italic;
            }
            position = p + m_selLength;
        }
    }

    QString m_text;
    ColourScheme m_scheme;
    std::vector<CharFormat> m_looks;
    qsizetype m_selStart = 0;
    qsizetype m_selLength = 0;
};

} // namespace zeph::test
