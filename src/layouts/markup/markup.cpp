// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/markup/markup.h"

namespace zeph {

namespace {

struct Literals {
    QStringView open;
    QStringView tagEnd;
    QStringView close;
    QStringView lineEnd;
};

constexpr Literals ubb = { u"[color=", u"]", u"[/color]", u"\n" };
constexpr Literals html = { u"<FONT COLOR=\"#", u"\">", u"</FONT>", u"<BR>\n" };

/// Six digits: red, green, blue.
QString digitsOf(ColorRef colour)
{
    const int number = redOf(colour) << 16 | greenOf(colour) << 8 | blueOf(colour);
    return QString::number(number, 16).rightJustified(6, u'0').toUpper();
}

class Writer
{
public:
    explicit Writer(const MarkupOptions &options)
        : m_literals(options.type == CodeType::HTML ? html : ubb), m_escapes(options.escape)
    {
    }

    void write(QStringView text, ColorRef colour)
    {
        for (const QChar character : text) {
            if (character == u'\n') {
                m_result += m_literals.lineEnd;
                continue;
            }
            if (character != u' ' && colour != m_open) {
                close();
                m_result += m_literals.open;
                m_result += digitsOf(colour);
                m_result += m_literals.tagEnd;
                m_open = colour;
            }
            write(character);
        }
    }

    QString take()
    {
        close();
        return std::move(m_result);
    }

private:
    void close()
    {
        if (m_open) {
            m_result += m_literals.close;
            m_open.reset();
        }
    }

    void write(QChar character)
    {
        switch (m_escapes ? character.unicode() : u'\0') {
        case u'<':
            m_result += u"&lt;"_s;
            break;
        case u'>':
            m_result += u"&gt;"_s;
            break;
        case u'&':
            m_result += u"&amp;"_s;
            break;
        default:
            m_result += character;
        }
    }

    const Literals &m_literals;
    bool m_escapes;
    std::optional<ColorRef> m_open; ///< colour of the stretch that is open
    QString m_result;
};

} // namespace

QString markup(const RichText &text, const MarkupOptions &options, ColorRef plain)
{
    Writer writer(options);
    qsizetype at = 0;
    for (const CharRun &run : text.characters) {
        writer.write(QStringView(text.text).sliced(at, run.length),
                     run.format.colour.value_or(plain));
        at += run.length;
    }
    const QString result = writer.take();
    return options.type == CodeType::UBB && options.codeTags
        ? u"[CODE]\n"_s + result + u"\n[/CODE]"_s
        : result;
}

} // namespace zeph
