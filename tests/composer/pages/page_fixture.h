// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_settings.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>

namespace zeph::test {

/// The Composer in a scheme of easily told colours.
class PageTest : public TestIn<ComposerWorld>
{
protected:
    PageTest()
    {
        auto &colours = settings.of<ColourSettings>();
        colours.JoystickTextDefaultColour = 0x111111;
        colours.MacroTextDefaultColour = 0x222222;
        colours.BTNColour = 0xB00000;
        colours.SlashColour = 0x0000AA;
        colours.RAWColour = 0x00BB00;
        colours.MiscellaneousColour = 0xCCCC00;
        colours.RemStatements = 0x005500;
        editor->applySettings();
    }

    /// Opens the Composer at a page, which inserts no line ends.
    void openPage(InsertOptions::Page page)
    {
        if (!composer()) {
            showEditor();
            open();
            makeLineEnds(false);
            composer()->settingsChanged();
        }
        composer()->showPage(page);
    }
    /// Whether a line end follows what is inserted.
    void makeLineEnds(bool on) { settings.of<ComposerSettings>().CompTabsAddCr = on; }
    void choose(const QString &box, const QString &entry)
    {
        auto &combo = control<QComboBox>(box);
        ASSERT_GE(combo.findText(entry), 0) << entry.toStdString();
        combo.setCurrentText(entry);
    }
    void write(const QString &field, const QString &text)
    {
        control<QLineEdit>(field).setText(text);
    }
    QString textOf(const QString &field) { return control<QLineEdit>(field).text(); }
    void tick(const QString &box, bool on = true) { control<QCheckBox>(box).setChecked(on); }
    bool isTicked(const QString &box) { return control<QCheckBox>(box).isChecked(); }
    bool isEnabled(const QString &name) { return control<QWidget>(name).isEnabled(); }
    QStringList entries(const QString &box)
    {
        const auto &combo = control<QComboBox>(box);
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i) {
            texts.append(combo.itemText(i));
        }
        return texts;
    }
    /// A letter a character: "." plain, b BTN, s slash, r raw, m miscellaneous, k comment, "?"
    /// another colour.
    QString coloursOf(Document &document)
    {
        const auto &colours = settings.of<ColourSettings>();
        const QHash<ColorRef, QChar> letters = {
            { document.kind() == DocumentKind::Joystick ? colours.JoystickTextDefaultColour
                                                        : colours.MacroTextDefaultColour,
              u'.' },
            { colours.BTNColour, u'b' },
            { colours.SlashColour, u's' },
            { colours.RAWColour, u'r' },
            { colours.MiscellaneousColour, u'm' },
            { colours.RemStatements, u'k' },
        };
        QString marks;
        for (const CharRun &run : document.richText().characters) {
            marks += QString(run.length, letters.value(run.format.colour.value_or(0), u'?'));
        }
        return marks;
    }

    /// Shows that a button inserts a whole statement into the joystick file, wherever the caret is,
    /// and with a line end after it where one is wanted.
    void expectWholeStatement(const QString &button, const QString &statement)
    {
        SCOPED_TRACE(button.toStdString());
        setJoystick(QString());
        click(button);
        EXPECT_EQ(joystick().text(), statement);
        EXPECT_EQ(joystick().selStart(), statement.size());
        expectOneStepFrom(joystick(), QString());

        setJoystick(u"BTN S1 a b"_s, 8);
        click(button);
        EXPECT_EQ(joystick().text(), u"BTN S1 a\n%1 b"_s.arg(statement));
        EXPECT_EQ(joystick().selStart(), 9 + statement.size());
        expectOneStepFrom(joystick(), u"BTN S1 a b"_s);

        makeLineEnds(true);
        setJoystick(u"BTN S1 a\n"_s);
        click(button);
        EXPECT_EQ(joystick().text(), u"BTN S1 a\n%1\n"_s.arg(statement));
        EXPECT_EQ(joystick().selStart(), joystick().length());
        expectOneStepFrom(joystick(), u"BTN S1 a\n"_s);
        makeLineEnds(false);

        setJoystick(QString());
        setMacro(u"Fire = SPC"_s);
        click(button);
        EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
        EXPECT_EQ(joystick().text(), statement);
        EXPECT_EQ(macro().text(), u"Fire = SPC"_s);
    }
    /// Shows that a button refuses while a protected macro file is selected.
    void expectRefusedWhileProtected(const QString &button)
    {
        SCOPED_TRACE(button.toStdString());
        setJoystick(u"BTN S1 a"_s);
        setMacro(u"Fire = SPC"_s);
        editor->documents().setProtected(true);
        dialogs.answer(u"File protected"_s, BoxButton::Ok);
        click(button);
        EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
        EXPECT_EQ(macro().text(), u"Fire = SPC"_s);
        EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
        editor->documents().setProtected(false);
    }
    /// Shows that a button tells this box and leaves the joystick file alone.
    void expectRefusal(const QString &button, const QString &title, const QString &text)
    {
        setJoystick(u"BTN S1 a"_s);
        dialogs.answer(title, BoxButton::Ok);
        click(button);
        EXPECT_EQ(dialogs.boxes().last().text, text);
        EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
        EXPECT_FALSE(joystick().isModified());
    }
    void expectOneStepFrom(Document &document, const QString &before)
    {
        document.undo();
        EXPECT_EQ(document.text(), before);
    }
    /// Has a statement of the joystick file read into the page that makes such.
    void readFromFile(const QString &statement)
    {
        setJoystick(u"BTN S1 a\n%1\nBTN S2 b"_s.arg(statement), 10);
        click(u"CMD_ReadStatement"_s);
    }
    /// Shows that the page puts this statement in the place of the one that was read, in one step.
    void expectReplaced(const QString &before, const QString &statement)
    {
        click(u"CMD_ReplaceStatement"_s);
        EXPECT_EQ(joystick().text(), u"BTN S1 a\n%1\nBTN S2 b"_s.arg(statement));
        expectOneStepFrom(joystick(), u"BTN S1 a\n%1\nBTN S2 b"_s.arg(before));
    }
};

} // namespace zeph::test
