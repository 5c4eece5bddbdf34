// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

#include <ostream>
#include <random>

namespace zeph {

// How a failing test shows a value.
inline void PrintTo(const CharFormat &format, std::ostream *out)
{
    *out << format.family.toStdString() << ' ' << format.pointSize << (format.bold ? " b" : "")
         << (format.italic ? " i" : "") << (format.underline ? " u" : "")
         << (format.strike ? " s" : "");
    if (!format.link.isEmpty()) {
        *out << " -> " << format.link.toStdString();
    }
    if (format.colour) {
        *out << " #" << std::hex << *format.colour << std::dec;
    }
}

inline void PrintTo(const RichText &text, std::ostream *out)
{
    *out << '"' << text.text.toStdString() << '"';
    for (const CharRun &run : text.characters) {
        *out << "\n  " << run.length << ": ";
        PrintTo(run.format, out);
    }
    for (const ParagraphRun &run : text.paragraphs) {
        *out << "\n  paragraphs " << run.count << ": left " << run.format.leftIndentTwips << " at "
             << int(run.format.alignment) << (run.format.bullet ? " bullet" : "");
    }
}

} // namespace zeph

namespace zeph::test {

/// Rich texts as chance makes them, the same in every run: small alphabets, so that equal
/// neighbours, empty lines and odd characters meet often.
class RichTextMaker
{
public:
    explicit RichTextMaker(quint32 seed) : m_random(seed) { }

    RichText make(const QString &alphabet, int maxLength)
    {
        RichText result;
        const int length = upTo(maxLength);
        for (int i = 0; i < length; ++i) {
            result.text += alphabet[upTo(int(alphabet.size()) - 1)];
        }
        for (qsizetype covered = 0; covered < length;) {
            const qsizetype size = 1 + upTo(9);
            result.characters.push_back({ size, characterFormat() });
            covered += size;
        }
        for (qsizetype covered = 0; covered < result.paragraphCount();) {
            const qsizetype count = 1 + upTo(3);
            result.paragraphs.push_back({ count, paragraphFormat() });
            covered += count;
        }
        result.normalise();
        return result;
    }

    CharFormat characterFormat()
    {
        const QString families[] = { {}, u"Arial"_s, u"Courier New"_s, u"A;{b}\\ \u65e5"_s };
        const QString links[] = { u"http://x/?a=b&c"_s, u"C:\\My {notes}.txt"_s,
                                  u"#a \"place\" \u65e5"_s };
        CharFormat format;
        format.family = families[upTo(3)];
        format.pointSize = upTo(3) == 0 ? 0 : 6 + upTo(40) / 2.0;
        format.bold = upTo(1) == 1;
        format.italic = upTo(3) == 1;
        format.underline = upTo(3) == 1;
        format.strike = upTo(5) == 1;
        if (upTo(5) == 1) {
            format.link = links[upTo(2)];
        }
        if (upTo(2) > 0) {
            format.colour = ColorRef(upTo(5)) * 0x2A1703;
        }
        return format;
    }

    ParagraphFormat paragraphFormat()
    {
        return { upTo(2) * 355, ParagraphAlignment(upTo(2)), upTo(3) == 0 };
    }

    int upTo(int most) { return int(m_random() % (quint32(most) + 1)); }

private:
    std::mt19937 m_random;
};

} // namespace zeph::test
