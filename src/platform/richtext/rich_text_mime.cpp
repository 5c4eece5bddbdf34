// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_mime.h"

#include "platform/core/rtf.h"

#include <algorithm>
#include <array>

namespace zeph {

namespace {

constexpr QStringView plainType = u"text/plain";
// Word processors on Linux ask for either of the first two; on Windows the toolkit gives a program
// the format of its own name only in the third form.
constexpr std::array<QStringView, 3> rtfTypes = {
    u"text/rtf", u"application/rtf", u"application/x-qt-windows-mime;value=\"Rich Text Format\""
};

bool isRtf(const QString &type)
{
    return std::ranges::find(rtfTypes, QStringView(type)) != rtfTypes.end();
}

/// The runs of the text that is left when the characters that no text file may hold are removed.
RichText withoutNul(const RichText &text)
{
    if (!text.text.contains(QChar(0))) {
        return text;
    }
    RichText clean = RichText::plain({});
    qsizetype from = 0;
    while (from <= text.text.size()) {
        const qsizetype nul = text.text.indexOf(QChar(0), from);
        const qsizetype end = nul < 0 ? text.text.size() : nul;
        clean.append(text.mid(from, end - from));
        from = end + 1;
    }
    return clean;
}

} // namespace

RichTextMime::RichTextMime(RichText text) : m_text(std::move(text)) { }

QStringList RichTextMime::formats() const
{
    QStringList types{ plainType.toString() };
    for (const QStringView type : rtfTypes) {
        types.append(type.toString());
    }
    return types;
}

bool RichTextMime::hasFormat(const QString &type) const
{
    return type == plainType || isRtf(type);
}

QVariant RichTextMime::retrieveData(const QString &type, QMetaType preferred) const
{
    if (type == plainType) {
        return m_text.text;
    }
    return isRtf(type) ? QVariant(writeRtf(m_text)) : QMimeData::retrieveData(type, preferred);
}

bool holdsText(const QMimeData *data)
{
    return data && (data->hasText() || std::ranges::any_of(rtfTypes, [data](QStringView type) {
                        return data->hasFormat(type.toString());
                    }));
}

QString plainTextOf(const QMimeData &data)
{
    QString text = data.text();
    text.remove(QChar(0));
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    text.replace(QChar(QChar::ParagraphSeparator), u'\n');
    text.replace(QChar(QChar::LineSeparator), u'\n');
    return text;
}

std::optional<RichText> richTextOf(const QMimeData &data)
{
    for (const QStringView type : rtfTypes) {
        const QString name = type.toString();
        if (!data.hasFormat(name)) {
            continue;
        }
        if (const auto text = readRtf(data.data(name))) {
            return withoutNul(*text);
        }
    }
    return std::nullopt;
}

RichText pastedSimpleText(const QMimeData &data, const CharFormat &plain)
{
    return RichText::plain(plainTextOf(data), plain);
}

RichText pastedText(const QMimeData &data, const CharFormat &plain)
{
    std::optional<RichText> rich = richTextOf(data);
    if (!rich || rich->text.isEmpty()) {
        return pastedSimpleText(data, plain);
    }
    for (CharRun &run : rich->characters) {
        run.format.family = plain.family;
        run.format.pointSize = plain.pointSize;
        run.format.bold = plain.bold;
        run.format.strike = false;
        run.format.link.clear();
        if (!run.format.colour) {
            run.format.colour = plain.colour;
        }
    }
    // Margins, bullets and alignments of other programs have no place in a file of lines.
    rich->paragraphs.clear();
    rich->normalise();
    return *rich;
}

} // namespace zeph
