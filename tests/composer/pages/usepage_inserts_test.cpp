// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/composer/pages/use_page_fixture.h"

using namespace zeph;
using namespace zeph::test;

namespace {

/// What each button writes with the fields that SetUp() fills, and the colours of its characters:
/// "3m." is "mmm.".
struct Written {
    int button;
    const char16_t *text;
    bool startsLine;
    const char *colours;
};

// clang-format off
const Written written[] = {
    { 0, u"USE MDEF Falcon.tmm ", true, "3m.4m.10.." },
    { 1, u"RATE (60)", false, "4m.r2.r" },
    { 2, u"USE T10 AS DX28 ", true, "3m.3..2m.4.." },
    { 3, u"SHIFTBTN (S4) ", false, "8m.r2.r." },
    { 4, u"USE S3_LOCK ", true, "3m.7m." },
    { 5, u"S3_LOCK ", false, "7m." },
    { 6, u"S3_UNLOCK ", false, "9m." },
    { 7, u"USE HAT2_SENSITIVITY (5) ", true, "3m.16m.r.r." },
    { 8, u"USE T1_SENSITIVITY (7) ", true, "3m.14m.r.r." },
    { 9, u"REVERSE_TOGGLES ", false, "15m." },
    { 10, u"RESET_TOGGLES ", false, "13m." },
    { 11, u"USE KEYBOARD AZERTY ", true, "3m.8m.6.." },
    { 12, u"STICK_OFF ", false, "9!." },
    { 13, u"USE PROFILE Alpha.tmc (AUTO)", true, "3m.7m.9..r4mr" },
    { 14, u"USE CHORDED_FDFU ", true, "3m.12m." },
    { 15, u"USE NULLCHR #", true, "3m.7m.." },
    { 16, u"EMPTY_BUFFERS ", false, "13!." },
    { 17, u"USE ZEPH GRAPHIC a.bmp", true, "3m.4m.7m.5." },
    { 18, u"USE ZEPH README a.txt", true, "3m.4m.6m.5." },
    { 19, u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_WINDOWS, CALIBRATION_AUTO)", true,
      "3m.9m.r12r2.17r2.16rr" },
    { 20, u"USE ZEPH RUN_APP a.exe", true, "3m.4m.7!.5." },
};
// clang-format on

QString marks(QByteArrayView short_)
{
    QString all;
    int count = 0;
    for (const char each : short_) {
        if (each >= '0' && each <= '9') {
            count = count * 10 + (each - '0');
            continue;
        }
        all += QString(std::max(count, 1), QLatin1Char(each));
        count = 0;
    }
    return all;
}

class EachInsertButton : public UsePageTest, public testing::WithParamInterface<Written>
{
protected:
    void SetUp() override
    {
        UsePageTest::SetUp();
        const QStringList texts{ u"Falcon.tmm"_s, u"60"_s,    u"5"_s,     u"7"_s,
                                 u"#"_s,          u"a.bmp"_s, u"a.txt"_s, u"a.exe"_s };
        for (int i = 0; i < texts.size(); ++i)
            text(i).setText(texts[i]);
        list(0).setCurrentText(u"T10"_s);
        list(1).setCurrentText(u"28"_s);
        list(2).setCurrentText(u"S4"_s);
        list(3).setCurrentText(u"HAT2"_s);
    }

    const QString statement = QString::fromUtf16(GetParam().text);
    const QString looks = marks(GetParam().colours);
};

} // namespace

TEST_P(EachInsertButton, WritesIntoAnEmptyFileWithALineEnd)
{
    settings.of<ComposerSettings>().CompTabsAddCr = true;
    ASSERT_EQ(statement.size(), looks.size());
    insert(GetParam().button);
    EXPECT_EQ(file().text(), statement + u'\n');
    EXPECT_EQ(colours(J), looks + u'.');
    EXPECT_EQ(file().selStart(), file().length());
}

TEST_P(EachInsertButton, WritesNoLineEndWithoutTheTick)
{
    settings.of<ComposerSettings>().CompTabsAddCr = false;
    insert(GetParam().button);
    EXPECT_EQ(file().text(), statement);
    EXPECT_EQ(colours(J), looks);
}

TEST_P(EachInsertButton, WritesAtTheCaretOfALineAsOneStepToUndo)
{
    settings.of<ComposerSettings>().CompTabsAddCr = true;
    const QString before = u"BTN S1 abc\nBTN S2 d"_s;
    set(J, before);
    file().select(7, 0);
    insert(GetParam().button);
    const QString start = GetParam().startsLine ? u"\n"_s : QString();
    const QString head = u"BTN S1 "_s + start + statement + u" \n"_s;
    EXPECT_EQ(file().text(), head + u"abc\nBTN S2 d"_s);
    EXPECT_EQ(colours(J),
              u"......."_s + QString(start.size(), u'.') + looks + u".."_s + QString(12, u'.'));
    EXPECT_EQ(file().selStart(), head.size());
    EXPECT_EQ(file().selLength(), 0);
    EXPECT_TRUE(file().isModified());
    file().undo();
    EXPECT_EQ(file().text(), before);
    EXPECT_FALSE(file().history().canUndo());
}

TEST_P(EachInsertButton, ChoosesTheJoystickFileAndMindsNoProtectedMacroFile)
{
    settings.of<ComposerSettings>().CompTabsAddCr = false;
    set(M, u"a = b"_s);
    documents().setProtected(true);
    documents().select(M);
    insert(GetParam().button);
    EXPECT_EQ(file().text(), statement);
    EXPECT_EQ(documents().macro().text(), u"a = b");
    EXPECT_EQ(documents().selected().kind(), J);
}

TEST_P(EachInsertButton, IsWhatThePagePreviewsWhenItHasTheFocus)
{
    showPage();
    auto &button = control<QPushButton>(u"CMD_UseInsert_%1"_s.arg(GetParam().button));
    for (QWidget *inner = &button; inner != page.get(); inner = inner->parentWidget()) {
        for (const QString &name : { u"SSTab5"_s, u"SSTab8"_s, u"SSTab6"_s }) {
            if (const int at = tabs(name).indexOf(inner); at >= 0)
                tabs(name).setCurrentIndex(at);
        }
    }
    ASSERT_TRUE(button.isVisible());
    button.setFocus();
    EXPECT_EQ(preview(), statement);
}

TEST_P(EachInsertButton, ReadsItsStatementIntoAFreshPage)
{
    make();
    ASSERT_TRUE(page->read(statement));
    EXPECT_EQ(preview(), statement);
    EXPECT_EQ(inserted(GetParam().button), statement);
}

INSTANTIATE_TEST_SUITE_P(UsePage, EachInsertButton, testing::ValuesIn(written),
                         [](const auto &instance) {
                             return std::to_string(instance.param.button);
                         });
