// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/ubbandhtmlview.h"

#include "tests/support/fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace zeph;

namespace {

class ConvertTest : public test::WorldTest
{
protected:
    ConvertTest()
    {
        RichText text = RichText::plain(u"BTN <S1>"_s);
        text.change(4, 4, [](CharFormat &format) { format.colour = 0x0000FF; });
        view = std::make_unique<UBBandHTMLview>(text, 0);
    }
    QCheckBox *check(const QString &name) { return view->findChild<QCheckBox *>(name); }
    QPushButton *command() { return view->findChild<QPushButton *>(u"Command1"_s); }
    QString result() { return view->findChild<QPlainTextEdit *>(u"RTBforUBB"_s)->toPlainText(); }

    std::unique_ptr<UBBandHTMLview> view;
};

} // namespace

TEST_F(ConvertTest, ForumCodeIsConvertedThenCopied)
{
    EXPECT_EQ(view->windowTitle(), u"Convert code to UBB or HTML");
    EXPECT_EQ(command()->text(), u"&Convert");
    command()->click();
    EXPECT_EQ(result(), u"[color=000000]BTN [/color][color=FF0000]<S1>[/color]");
    EXPECT_EQ(command()->text(), u"&Copy");
    command()->click();
    EXPECT_EQ(QApplication::clipboard()->text(), result());
    EXPECT_EQ(view->result(), int(QDialog::Accepted));
}

TEST_F(ConvertTest, TheTagsAreForForumsAlone)
{
    check(u"CheckCodeTag"_s)->click();
    view->findChild<QRadioButton *>(u"CodeType_1"_s)->click();
    EXPECT_FALSE(check(u"CheckCodeTag"_s)->isEnabled());
    EXPECT_TRUE(check(u"CheckEscape"_s)->isChecked());
    command()->click();
    EXPECT_EQ(result(),
              u"<FONT COLOR=\"#000000\">BTN </FONT><FONT COLOR=\"#FF0000\">&lt;S1&gt;</FONT>");
}

TEST_F(ConvertTest, EscapingIsOffForForums)
{
    view->findChild<QRadioButton *>(u"CodeType_1"_s)->click();
    view->findChild<QRadioButton *>(u"CodeType_0"_s)->click();
    EXPECT_FALSE(check(u"CheckEscape"_s)->isChecked());
    check(u"CheckCodeTag"_s)->click();
    command()->click();
    EXPECT_TRUE(result().startsWith(u"[CODE]\n"));
    EXPECT_TRUE(result().endsWith(u"\n[/CODE]"));
}
