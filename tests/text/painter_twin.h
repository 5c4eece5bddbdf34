// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The painter as it is told: one search a word over the whole text, each hit painted as it is
// found, the words in lists of their own. Slow, and independent of the painter that it judges.

#include "platform/core/text_search.h"
#include "text/painter.h"

#include <QStringList>

namespace zeph::test {

class PainterTwin
{
public:
    PainterTwin(QStringView text, const ColourScheme &scheme)
        : m_text(text), m_scheme(scheme), m_colours(size_t(text.size()), scheme.plain)
    {
    }

    void joystick(bool typing)
    {
        const auto first =
            typing ? &PainterTwin::colourOnlyWord : &PainterTwin::colourWordCheckWhole;
        const auto only = &PainterTwin::colourOnlyWord;
        const auto call = &PainterTwin::colJoyWordnotBracket;
        const ColorRef misc = m_scheme.miscellaneous;
        const ColorRef raw = m_scheme.raw;
        colourBTNorDEF(u"BTN", 2);
        each(only, m_scheme.slash, u"/U /M /D /I /O /A /H /T /P /R");
        each(first, misc, u"USE DISABLE MDEF NULLCHR OR NOT AND MTYPE KEYBOARD AS");
        each(only, misc, u"POV ARROWKEYS KEYPAD");
        each(first, misc, u"ZEPH GRAPHIC README PROFILE");
        each(first, raw, u"CURVE");
        each(only, misc, u"MOUSE");
        each(call, raw, u"DELAY PULSE USB DLY RPT KD KU MSX MSY MSZ");
        each(call, misc,
             u"RATE HAT1_SENSITIVITY HAT2_SENSITIVITY HAT3_SENSITIVITY HAT4_SENSITIVITY "
             "T1_SENSITIVITY MOUSE SHIFTBTN");
        each(call, raw, u"CURVE TRIM HOLDTRIM LOCK");
        each(call, misc, u"THR_RANGE");
        each(call, raw, u"UNLOCK SWAP REVERSE FORWARD");
        each(call, misc, u"SCREEN_RESOLUTION");
        each(call, raw, u"MOUSEXY MOUSEMOVE MOUSEROTATE");
        each(only, misc,
             u"REVERSE_LR REVERSE_UD REVERSE_DIR FORCED_CORNERS NOHOLD FORCE_MACROS NO_BUTTON "
             "ZERO_MOUSE");
        each(only, 255, u"STICK_OFF");
        each(only, misc, u"CHORDED_FDFU HWSTARTUP");
        each(only, raw,
             u"EMULATION_ON EMULATION_OFF AXIS_MODE_USER AXIS_MODE_WINDOWS CALIBRATION_AUTO "
             "CALIBRATION_MANUAL");
        each(only, 255, u"RUN_APP");
        each(only, misc,
             u"WINDOW_STYLE ALL_DIRECTX_BUTTONS S3_LOCK S3_UNLOCK SHIFTBTN LASTVALUE AXES_CONFIG "
             "MOUSE_LB MOUSE_RB MOUSE_MB REVERSE_TOGGLES RESET_TOGGLES MOUSEX MOUSEY MOUSEZ");
        each(only, 255, u"EMPTY_BUFFERS");
        each(only, misc,
             u"JOYX JOYY ANT RNG THR RDDR LBRK RBRK MIX MIY JOYSTICK ROTARIES TOEBRAKES "
             "MICROSTICK POVU POVD POVL POVR POVUL POVDL POVUR POVDR TO_CURRENT (AUTO) (CUSTOM)");
        brackets();
        colourBTNorDEF(u"DEF", 6);
        colourREM();
    }

    void macro()
    {
        const auto only = &PainterTwin::colourOnlyWord;
        const auto call = &PainterTwin::colJoyWordnotBracket;
        const ColorRef misc = m_scheme.miscellaneous;
        const ColorRef raw = m_scheme.raw;
        each(only, m_scheme.slash, u"/U /M /D /I /O /A /H /T /P /R");
        each(&PainterTwin::colourWordCheckWhole, raw, u"CURVE");
        each(call, raw, u"USB DLY RPT KD KU MSX MSY MSZ");
        each(call, misc, u"RATE MOUSE SHIFTBTN");
        each(call, raw, u"CURVE TRIM HOLDTRIM LOCK");
        each(call, misc, u"THR_RANGE");
        each(call, raw, u"UNLOCK SWAP REVERSE FORWARD MOUSEXY MOUSEMOVE MOUSEROTATE");
        each(only, misc,
             u"REVERSE_LR REVERSE_UD REVERSE_DIR SHIFTBTN LASTVALUE MOUSE_LB MOUSE_RB MOUSE_MB "
             "MOUSEX MOUSEY MOUSEZ JOYX JOYY ANT RNG THR RDDR LBRK RBRK MIX MIY JOYSTICK ROTARIES "
             "TOEBRAKES MICROSTICK POVU POVD POVL POVR POVUL POVDL POVUR POVDR TO_CURRENT");
        each(only, 255, u"EMPTY_BUFFERS STICK_OFF");
        brackets();
        colourREM();
    }

    void remOnly() { colourREM(); }

    const std::vector<ColorRef> &colours() const { return m_colours; }

private:
    using Primitive = void (PainterTwin::*)(QStringView word, ColorRef colour);

    void each(Primitive primitive, ColorRef colour, QStringView words)
    {
        for (const QStringView word : words.split(u' ')) {
            (this->*primitive)(word, colour);
        }
    }

    void brackets()
    {
        each(&PainterTwin::colourBracket, m_scheme.raw, u"( )");
        each(&PainterTwin::colourBracket, m_scheme.slash, u"< >");
        each(&PainterTwin::colourBracket, m_scheme.miscellaneous, u"{ }");
    }

    /// "" beyond the ends.
    QStringView at(qsizetype position) const
    {
        return position < 0 || position >= m_text.size() ? QStringView() : m_text.mid(position, 1);
    }

    void set(qsizetype from, qsizetype to, ColorRef colour)
    {
        for (qsizetype i = from; i < std::min(to, m_text.size()); ++i) {
            m_colours[size_t(i)] = colour;
        }
    }

    void colourOnlyWord(QStringView word, ColorRef colour)
    {
        for (qsizetype hit = findText(m_text, word, 0, 6); hit != -1;
             hit = findText(m_text, word, hit + word.size(), 6)) {
            set(hit, hit + word.size(), colour);
        }
    }

    void colourWordCheckWhole(QStringView word, ColorRef colour)
    {
        for (qsizetype hit = findText(m_text, word, 0, 2); hit != -1;
             hit = findText(m_text, word, hit + word.size(), 2)) {
            const bool blankAfter = at(hit + word.size()) == u" ";
            if (hit == 0 ? blankAfter : blankAfter && at(hit - 1) != u"_") {
                set(hit, hit + word.size(), colour);
            }
        }
    }

    void colJoyWordnotBracket(QStringView word, ColorRef colour)
    {
        for (qsizetype hit = findText(m_text, word, 0, 2); hit != -1;
             hit = findText(m_text, word, hit + word.size(), 2)) {
            if (at(hit + word.size()) == u"(" || at(hit + word.size() + 1) == u"(") {
                set(hit, hit + word.size(), colour);
            }
        }
    }

    void colourBracket(QStringView word, ColorRef colour)
    {
        for (qsizetype hit = findText(m_text, word, 0, 0); hit != -1;
             hit = findText(m_text, word, hit + 1, 0)) {
            set(hit, hit + 1, colour);
        }
    }

    void colourBTNorDEF(QStringView word, int options)
    {
        qsizetype start = 0;
        while ((start = findText(m_text, word, start, options)) != -1) {
            qsizetype end = start + word.size() + 1;
            while (end < m_text.size() && at(end) != u" " && at(end) != u"\t") {
                ++end;
            }
            set(start, end, m_scheme.btn);
            start = end;
        }
    }

    void colourREM()
    {
        qsizetype start = 0;
        while ((start = findText(m_text, u"Rem", start, 2)) != -1) {
            qsizetype end = start + 3;
            while (end < m_text.size() && at(end) != u"\n") {
                ++end;
            }
            set(start, end, m_scheme.rem);
            start = end;
        }
    }

    QStringView m_text;
    ColourScheme m_scheme;
    std::vector<ColorRef> m_colours;
};

/// The colour of each character.
inline std::vector<ColorRef> perCharacter(const std::vector<ColourRun> &runs)
{
    std::vector<ColorRef> colours;
    for (const ColourRun &run : runs) {
        colours.insert(colours.end(), size_t(run.length), run.colour);
    }
    return colours;
}

} // namespace zeph::test
