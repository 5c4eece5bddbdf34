// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/template_files.h"

#include "templates/template_actions.h"
#include "templates/template_formatting.h"
#include "tests/support/rich_texts.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace zeph;

namespace {

const CharFormat plain{ .family = u"Arial"_s, .pointSize = 10, .colour = {} };

} // namespace

TEST(TemplateFiles, OnlyRtfHoldsRichText)
{
    EXPECT_TRUE(holdsRichText(u"ReadMe.rtf"));
    EXPECT_TRUE(holdsRichText(u"README.RTF"));
    EXPECT_FALSE(holdsRichText(u"ReadMe.txt"));
    EXPECT_FALSE(holdsRichText(u"Falcon.tmj"));
    EXPECT_FALSE(holdsRichText(u"rtf"));
}

TEST(TemplateFiles, APlainTextOpensInThePlainFormatAndComesBackByteByByte)
{
    const QByteArray bytes = "[Section]\r\nKey=Caf\xE9\r\n";
    const auto file = readTemplate(u"Zeph.ini", bytes, plain);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->text.text.toStdString(), u"[Section]\nKey=Caf\u00e9\n"_s.toStdString());
    EXPECT_EQ(file->text.formatAt(3), plain);
    EXPECT_EQ(templateBytes(u"Zeph.ini", file->text, file->lineEnds), bytes);
}

TEST(TemplateFiles, APlainTextKeepsItsOwnLineEndsMixedOnesToo)
{
    for (const QByteArray &bytes :
         { QByteArray("a\nb\n"), QByteArray("a\rb\r"), QByteArray("a\r\nb\n\rc\r\n\r\nd"),
           QByteArray("\n\r\n"), QByteArray("none"), QByteArray() }) {
        const auto file = readTemplate(u"a.txt", bytes, plain);
        ASSERT_TRUE(file);
        EXPECT_EQ(templateBytes(u"a.txt", file->text, file->lineEnds), bytes);
    }
}

TEST(TemplateFiles, NewLinesEndAsMostOfTheOthersDo)
{
    EXPECT_EQ(lineEndsOf("a\nb\nc\r\n").usual, LineEnd::Lf);
    EXPECT_EQ(lineEndsOf("a\rb").usual, LineEnd::Cr);
    EXPECT_EQ(lineEndsOf("").usual, LineEnd::CrLf);
    EXPECT_TRUE(lineEndsOf("a\nb\n").each.empty());
    EXPECT_EQ(templateBytes(u"a.txt", RichText::plain(u"a\nb\nc\n"_s),
                            { LineEnd::Lf, { LineEnd::Lf, LineEnd::CrLf } }),
              "a\nb\r\nc\n");
}

TEST(TemplateFiles, WhatWouldBeLostIsTold)
{
    const auto file =
        readTemplate(u"a.rtf", "{\\rtf1{\\header h}{\\pict 00}text{\\footnote f}\\par}", plain);
    ASSERT_TRUE(file);
    EXPECT_EQ(lossesInWords(file->losses).toStdString(),
              "pictures, headers or footers and footnotes");
    EXPECT_EQ(lossesInWords(RtfLoss::Tables).toStdString(), "tables (the texts in them stay)");
    EXPECT_EQ(lossesInWords({}).toStdString(), "");
    EXPECT_EQ(copyName(u"My notes.rtf"_s).toStdString(), "My notes (copy).rtf");
    EXPECT_EQ(copyName(u"notes"_s).toStdString(), "notes (copy)");
}

TEST(TemplateFiles, ATextThatLooksLikeRtfIsShownAsItIsUnderAnotherName)
{
    const auto file = readTemplate(u"source.txt", "{\\rtf1 x}", plain);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->text.text.toStdString(), "{\\rtf1 x}");
}

TEST(TemplateFiles, WhatIsNoRtfUnderAnRtfNameIsRefused)
{
    EXPECT_FALSE(readTemplate(u"broken.rtf", "just text", plain));
    EXPECT_FALSE(readTemplate(u"program.exe", QByteArray("MZ\0x", 4), plain));
}

TEST(TemplateFiles, ALetterBeyondTheCodePageStopsPlainTextsOnly)
{
    EXPECT_EQ(firstUnsavable(u"a.txt", u"ab\u0436"_s), 2);
    EXPECT_EQ(firstUnsavable(u"a.rtf", u"ab\u0436"_s), -1);
}

TEST(TemplateFiles, LooksCountAsAChangeOnlyWhereTheyAreSaved)
{
    const RichText before = RichText::plain(u"abc"_s, plain);
    RichText after = before;
    after.change(0, 2, [](CharFormat &format) { format.bold = true; });
    EXPECT_TRUE(differs(u"a.rtf", after, before));
    EXPECT_FALSE(differs(u"a.txt", after, before));
    EXPECT_TRUE(differs(u"a.txt", RichText::plain(u"abd"_s, plain), before));
}

TEST(TemplateFiles, TheQuestionEndsByWhatComesNext)
{
    struct Row {
        TemplateLeaving leaving;
        const char *text;
        const char *refusal;
    };
    const Row rows[] = {
        { TemplateLeaving::Closing,
          "A.rtf has changed and isn't saved. Do you want to save it before closing down the "
          "Template Editor?",
          "A.rtf wasn't saved for some reason. Exit Template Editor aborted." },
        { TemplateLeaving::New,
          "A.rtf has changed and isn't saved. Do you want to save it before creating a new file?",
          "A.rtf wasn't saved for some reason. I won't proceed in creating a new file" },
        { TemplateLeaving::Open,
          "A.rtf has changed and isn't saved. Do you want to save it before opening another file?",
          "A.rtf wasn't saved for some reason. I won't proceed in opening another file" },
        { TemplateLeaving::IniFile,
          "A.rtf has changed and isn't saved. Do you want to save it before opening up Zeph.ini?",
          "A.rtf wasn't saved for some reason. I won't proceed in opening up Zeph.ini" },
    };
    for (const Row &row : rows) {
        const TemplateQuestion question = templateQuestion(row.leaving, u"A.rtf"_s);
        EXPECT_EQ(question.title.toStdString(), " Save A.rtf now?");
        EXPECT_EQ(question.text.toStdString(), row.text);
        EXPECT_EQ(question.refusal.toStdString(), row.refusal);
    }
}

TEST(TemplateFiles, TheFilterBeginsWithTheTemplatesAndKnowsIniFiles)
{
    EXPECT_TRUE(templateOpenFilter().startsWith(
        u"Templates/ReadMe files (*.rtf)|*.rtf|Joystick files |*.tmj|Macro files |*.tmm|Text files (*.txt)|*.txt|Ini files (*.ini)|*.ini|"_s));
}

TEST(TemplateWordOver, ASlashIsNoPartOfAWord)
{
    EXPECT_EQ(templateWordOver(u"BTN S1 /U Fire_Gun/P"_s, 8).toStdString(), "U");
    EXPECT_EQ(templateWordOver(u"BTN S1 /U Fire_Gun/P"_s, 12).toStdString(), "Fire_Gun");
    EXPECT_EQ(templateWordOver(u"BTN S1 /U Fire_Gun/P"_s, 7).toStdString(), "");
}

TEST(CommonLook, MixedSelectionsHaveNoFontNoSizeAndNoAlignment)
{
    RichText text = RichText::plain(u"ab\ncd"_s, plain);
    text.change(0, 1, [](CharFormat &format) {
        format.family = u"Courier New"_s;
        format.pointSize = 12;
        format.bold = true;
    });
    text.paragraphs = { { 1, { .alignment = ParagraphAlignment::Right, .bullet = true } },
                        { 1, {} } };
    const CommonLook look = commonLook(text);
    EXPECT_FALSE(look.family);
    EXPECT_FALSE(look.pointSize);
    EXPECT_FALSE(look.alignment);
    EXPECT_FALSE(look.bold);
    EXPECT_FALSE(look.bullets);
}

TEST(CommonLook, WhatAllOfItHasIsShown)
{
    RichText text = RichText::plain(
        u"ab"_s, { .family = u"Arial"_s, .pointSize = 9, .bold = true, .colour = 7 },
        { .alignment = ParagraphAlignment::Centre, .bullet = true });
    const CommonLook look = commonLook(text);
    EXPECT_EQ(look.family, u"Arial"_s);
    EXPECT_EQ(look.pointSize, 9);
    EXPECT_EQ(look.colour, ColorRef(7));
    EXPECT_TRUE(look.bold && !look.italic && look.bullets);
    EXPECT_EQ(look.alignment, ParagraphAlignment::Centre);
}

TEST(TemplateActions, NoMnemonicAndNoShortcutStandsTwice)
{
    QSet<QString> mnemonics;
    QSet<QString> shortcuts;
    QSet<QString> names;
    for (const ActionRow &row : templateActions()) {
        const QString caption = QString::fromUtf16(row.caption);
        const QString shortcut = QString::fromUtf16(row.shortcut);
        const qsizetype at = caption.indexOf(u'&');
        if (at >= 0) {
            const QString key = QString::fromUtf16(row.menu) + caption.mid(at + 1, 1).toLower();
            EXPECT_FALSE(mnemonics.contains(key)) << caption.toStdString();
            mnemonics.insert(key);
        }
        if (!shortcut.isEmpty()) {
            EXPECT_FALSE(shortcuts.contains(shortcut)) << caption.toStdString();
            shortcuts.insert(shortcut);
        }
        if (row.kind != ActionKind::Separator) {
            EXPECT_FALSE(names.contains(QString::fromUtf16(row.name))) << caption.toStdString();
            names.insert(QString::fromUtf16(row.name));
        }
    }
}
