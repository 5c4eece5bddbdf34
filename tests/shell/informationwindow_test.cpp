// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/informationwindow.h"

#include "platform/richtext/rich_text_box.h"
#include "tests/support/shell_world.h"

using namespace zeph;

namespace {

struct Information : test::ShellWorld {
    InformationWindow window{ dialogs };

    QString text() const
    {
        return window.findChild<RichTextBox *>(u"txtInformation"_s)->toPlainText();
    }
};

} // namespace

TEST_F(Information, ShowsRichText)
{
    const QString path =
        folder.write(u"Info/Syntax.rtf"_s, "{\\rtf1\\ansi Hello {\\b pilot}\\par}");
    EXPECT_TRUE(window.showFile(path, u"Syntax"_s));
    EXPECT_EQ(window.windowTitle(), u"Syntax");
    EXPECT_TRUE(text().startsWith(u"Hello pilot"));
}

TEST_F(Information, ShowsPlainTextOfTheCodePage)
{
    const QString path = folder.write(u"Info/ReadMe.txt"_s, "Caf\xE9\r\nopen\r\n");
    EXPECT_TRUE(window.showFile(path, u"ReadMe"_s));
    EXPECT_EQ(text(), u"Caf\u00E9\nopen\n");
}

TEST_F(Information, AMissingFileIsToldWithItsPathAndTheWindowStays)
{
    window.showFile(folder.write(u"a.txt"_s, "kept"), u"A"_s);
    dialogs.answer(u"Missing file"_s, BoxButton::Ok);
    const QString gone = folder.file(u"Info/Gone.rtf"_s);
    EXPECT_FALSE(window.showFile(gone, u"Gone"_s));
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(gone));
    EXPECT_EQ(text(), u"kept");
    EXPECT_EQ(window.windowTitle(), u"A");
}

TEST_F(Information, AFileThatIsBrokenIsTold)
{
    dialogs.answer(u"Can't read file"_s, BoxButton::Ok);
    const QString broken = folder.write(u"broken.rtf"_s, "{\\rtf1 {never closed");
    EXPECT_FALSE(window.showFile(broken, u"Broken"_s));
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(broken));
}

TEST_F(Information, TextsOfTheProgramCanAllBeRead)
{
    const QDir info(QStringLiteral(ZEPH_SOURCE_DIR "/data/Info"));
    const QStringList names = info.entryList({ u"*.rtf"_s });
    EXPECT_TRUE(names.contains(u"Information 20.rtf"_s));
    EXPECT_TRUE(names.contains(u"Information 21.rtf"_s));
    for (const QString &name : names) {
        const auto read = readInformation(info.filePath(name));
        ASSERT_TRUE(read) << name.toStdString();
        EXPECT_GT(read->text.size(), 100) << name.toStdString();
    }
}
