// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/template_files.h"

#include "platform/core/rtf.h"
#include "platform/core/text1252.h"
#include "text/macro_search.h"
#include "text/text_lines.h"

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

Expected<RichText, QString> templateText(QStringView name, const QByteArray &bytes,
                                         const CharFormat &plain)
{
    if (holdsRichText(name)) {
        auto rich = readRtf(bytes);
        if (!rich) {
            return Unexpected<QString>(rich.error().reason);
        }
        return std::move(*rich);
    }
    const auto text = documentText(bytes);
    if (!text) {
        return Unexpected<QString>(u"it isn't a text: there is a zero byte at "_s
                                   + QString::number(text.error()));
    }
    return RichText::plain(*text, plain);
}

QByteArray templateBytes(QStringView name, const RichText &text)
{
    return holdsRichText(name) ? writeRtf(text) : documentBytes(text.text);
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
