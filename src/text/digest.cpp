// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/digest.h"

#include "text/text_lines.h"

#include <algorithm>
#include <array>

namespace zeph {

using language::wordsOf;

namespace {

bool beginsAnyCase(QStringView line, QStringView start)
{
    return line.startsWith(start, Qt::CaseInsensitive);
}

struct UseRecord {
    QStringView start;
    QStringView label;
};

constexpr std::array<UseRecord, 5> useRecords = { {
    { u"USE HAT1 AS"_w, u"Hat1:" },
    { u"USE HAT2 AS"_w, u"Hat2:" },
    { u"USE HAT3 AS"_w, u"Hat3:" },
    { u"USE HAT4 AS"_w, u"Hat4:" },
    { u"USE RADIOSWITCH AS"_w, u"Radio:" },
} };
constexpr QStringView mouseType = u"USE MTYPE A"_w;

QStringView leadingDigits(QStringView text)
{
    const auto end = std::ranges::find_if_not(
        text, [](QChar character) { return character >= u'0' && character <= u'9'; });
    return text.first(end - text.begin());
}

/// The record's line for a USE line about a hat, the radio switch or the mouse; empty for other
/// lines.
QString useRecord(QStringView line)
{
    for (const UseRecord &each : useRecords) {
        if (beginsAnyCase(line, each.start) && line.size() > each.start.size()) {
            return each.label.toString() + line.sliced(each.start.size()).toString();
        }
    }
    if (beginsAnyCase(line, mouseType)) {
        const QStringView number = leadingDigits(line.sliced(mouseType.size()));
        return number.isEmpty() ? QString() : u"MType: "_s + number.toString();
    }
    return {};
}

/// Whether the line begins with the word and goes on after a blank.
bool begins(QStringView line, QStringView word)
{
    return line.size() > word.size() + 1 && line[word.size()] == u' ' && beginsAnyCase(line, word);
}

bool opensAxisRecord(QStringView line)
{
    return begins(line, u"CURVE"_w)
        || std::ranges::any_of(wordsOf<language::AxisRole>(),
                               [line](QStringView axis) { return begins(line, axis); });
}

class DigestWriter
{
public:
    /// Adds a line that the file has at this 1-based place.
    void addLine(QStringView line, int source)
    {
        m_source = source;
        if (beginsAnyCase(line, u"Rem"_w) || beginsAnyCase(line, u"DISABLE"_w) || line.size() < 2) {
            return;
        }
        if (beginsAnyCase(line, u"USE"_w)) {
            if (const QString record = useRecord(line); !record.isEmpty()) {
                open();
                write(record);
            }
            return;
        }
        if (beginsAnyCase(line, u"DEF"_w) || beginsAnyCase(line, u"BTN X"_w)) {
            return;
        }
        constexpr QStringView button = u"BTN"_w;
        if (begins(line, button)) {
            open();
            write(beforeRem(line.sliced(button.size() + 1)));
            return;
        }
        if (opensAxisRecord(line)) {
            open();
        }
        write(beforeRem(line));
    }

    Digest take()
    {
        open();
        write(u"END", 0);
        return std::move(m_digest);
    }

private:
    void open() { write(u"***", 0); }
    void write(QStringView line) { write(line, m_source); }
    void write(QStringView line, int source)
    {
        m_digest.text += line;
        m_digest.text += u" \n";
        m_digest.sources.push_back(source);
    }

    Digest m_digest;
    int m_source = 0;
};

} // namespace

Digest digestOf(QStringView joystickText)
{
    DigestWriter writer;
    int number = 0;
    forEachLine(joystickText, [&](QStringView line) {
        ++number;
        if (line.size() >= 3) {
            writer.addLine(normalisedLine(line), number);
        }
    });
    return writer.take();
}

QString LeftAlignAnalyse(QStringView joystickText)
{
    return digestOf(joystickText).text;
}

} // namespace zeph
