// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/template_files.h"

#include "platform/core/rtf.h"
#include "platform/core/text1252.h"
#include "text/macro_search.h"
#include "text/text_lines.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace zeph {

namespace {

/// For each TemplateLeaving: the end of the question, and the message when saving failed.
struct LeavingRow {
    QStringView question;
    QStringView refusal;
};

constexpr std::array<LeavingRow, 4> leavings = { {
    { u"closing down the Template Editor?",
      u" wasn't saved for some reason. Exit Template Editor aborted." },
    { u"creating a new file?",
      u" wasn't saved for some reason. I won't proceed in creating a new file" },
    { u"opening another file?",
      u" wasn't saved for some reason. I won't proceed in opening another file" },
    { u"opening up Zeph.ini?",
      u" wasn't saved for some reason. I won't proceed in opening up Zeph.ini" },
} };

struct LossRow {
    RtfLoss loss;
    QStringView name;
};

constexpr std::array lossNames = {
    LossRow{ RtfLoss::Pictures, u"pictures" },
    LossRow{ RtfLoss::Drawings, u"drawings" },
    LossRow{ RtfLoss::Objects, u"embedded objects" },
    LossRow{ RtfLoss::Tables, u"tables (the texts in them stay)" },
    LossRow{ RtfLoss::HeadersAndFooters, u"headers or footers" },
    LossRow{ RtfLoss::Footnotes, u"footnotes" },
    LossRow{ RtfLoss::Comments, u"comments" },
    LossRow{ RtfLoss::Fields, u"fields such as page numbers and dates" },
    LossRow{ RtfLoss::PageBreaks, u"page breaks" },
    LossRow{ RtfLoss::TrackedChanges, u"tracked changes" },
    LossRow{ RtfLoss::NumberedLists, u"numbered lists (the numbers stay as text)" },
    LossRow{ RtfLoss::Effects, u"effects such as raised, highlighted or hidden letters" },
    LossRow{ RtfLoss::ParagraphLayout, u"the spacing, tab stops and margins of paragraphs" },
};

} // namespace

QString templateOpenFilter()
{
    return u"Templates/ReadMe files (*.rtf)|*.rtf|Joystick files |*.tmj|Macro files |*.tmm|"
           "Text files (*.txt)|*.txt|Ini files (*.ini)|*.ini|"
           "All of these|*.rtf;*.tmj;*.tmm;*.txt;*.ini|All files (*.*)|*.*"_s;
}

QString templateSaveFilter()
{
    return u"Templates/ReadMe files (*.rtf)|*.rtf|Text files (*.txt)|*.txt|"
           "All files (*.*)|*.*"_s;
}

bool holdsRichText(QStringView name)
{
    return name.endsWith(u".rtf", Qt::CaseInsensitive);
}

LineEnds lineEndsOf(const QByteArray &bytes)
{
    std::vector<LineEnd> each;
    std::array<qsizetype, 3> counts{};
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n') {
            continue;
        }
        const bool isPair = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
        each.push_back(isPair ? LineEnd::CrLf : bytes[i] == '\n' ? LineEnd::Lf : LineEnd::Cr);
        ++counts[size_t(each.back())];
        i += isPair ? 1 : 0;
    }
    const auto most = std::ranges::max_element(counts);
    LineEnds ends{ LineEnd(most - counts.begin()), {} };
    if (*most != qsizetype(each.size())) {
        ends.each = std::move(each);
    }
    return ends;
}

Expected<TemplateFile, QString> readTemplate(QStringView name, const QByteArray &bytes,
                                             const CharFormat &plain,
                                             const std::function<bool(qsizetype)> &goOn)
{
    if (holdsRichText(name)) {
        auto rich = readRtfWithLosses(bytes, goOn);
        if (!rich) {
            return Unexpected<QString>(rich.error().reason);
        }
        return TemplateFile{ rich->text.rich(), rich->losses, {} };
    }
    const auto text = documentText(bytes);
    if (!text) {
        return Unexpected<QString>(u"it isn't a text: there is a zero byte at "_s
                                   + QString::number(text.error()));
    }
    return TemplateFile{ RichText::plain(*text, plain), {}, lineEndsOf(bytes) };
}

QByteArray templateBytes(QStringView name, const RichText &text, const LineEnds &ends)
{
    if (holdsRichText(name)) {
        return writeRtf(text);
    }
    constexpr std::array signs = { "\r\n", "\n", "\r" };
    QByteArray bytes;
    bytes.reserve(text.text.size() * 17 / 16);
    size_t line = 0;
    for (const char byte : toText1252(text.text)) {
        if (byte == '\n') {
            bytes += signs[size_t(line < ends.each.size() ? ends.each[line] : ends.usual)];
            ++line;
        } else {
            bytes += byte;
        }
    }
    return bytes;
}

QString lossesInWords(RtfLosses losses)
{
    QStringList words;
    for (const auto &[loss, name] : lossNames) {
        if (losses & loss) {
            words.append(name.toString());
        }
    }
    const QString last = words.isEmpty() ? QString() : words.takeLast();
    return words.isEmpty() ? last : words.join(u", ") + u" and "_s + last;
}

QString copyName(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    const qsizetype end = dot < 0 ? name.size() : dot;
    return name.first(end) + u" (copy)"_s + name.sliced(end);
}

qsizetype firstUnsavable(QStringView name, const QString &text)
{
    return holdsRichText(name) ? -1 : firstNot1252(text);
}

bool differs(QStringView name, const RichText &text, const RichText &saved)
{
    return holdsRichText(name) ? text != saved : text.text != saved.text;
}

TemplateQuestion templateQuestion(TemplateLeaving leaving, const QString &name)
{
    const LeavingRow &row = leavings.at(size_t(leaving));
    return { u" Save "_s + name + u" now?"_s,
             name + u" has changed and isn't saved. Do you want to save it before "_s
                 + row.question.toString(),
             name + row.refusal.toString() };
}

QString templateWordOver(QString line, qsizetype position)
{
    return wordOver(line.replace(u'/', u' '), position);
}

} // namespace zeph
