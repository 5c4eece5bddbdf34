// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/toolbar_table.h"

#include "editor/actions.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QSet>

using namespace zeph;

namespace {

using Tooltips = QMap<int, QString>;

Tooltips tooltipsOf(std::span<const ToolButtonRow> rows, const ToolbarChoices &choices)
{
    Tooltips tooltips;
    for (const ToolButtonRow &row : rows) {
        tooltips.insert(row.place, tooltipOf(row, choices));
    }
    return tooltips;
}

} // namespace

TEST(Toolbar1, SaysWhatWasPromisedAtEachPlace)
{
    const Tooltips promised{
        { 1, u"New joystick or macro file"_s },
        { 2, u"Open joystick file and its macro file (F8)"_s },
        { 3, u"Save both files"_s },
        { 4, u"Print currently selected file (Ctrl+P)"_s },
        { 6, u"Cut (Ctrl+X)"_s },
        { 7, u"Copy (Ctrl+C)"_s },
        { 8, u"Paste (Ctrl+V)"_s },
        { 10, u"Undo (Ctrl+Z)"_s },
        { 11, u"Redo (Ctrl+Y)"_s },
        { 13, u"Find word or phrase in file (Ctrl+F)"_s },
        { 14, u"Find and Replace (Ctrl+R)"_s },
        { 15, u"Goto line number (Ctrl+G)"_s },
        { 17, u"Add current files to Favourites"_s },
        { 19, u"View macros"_s },
        { 20, u"Update macros"_s },
        { 21, u"Identify macros used (F7)"_s },
        { 22, u"Tile joystick and macro files vertically"_s },
        { 25, u"Apply colour highlighting to selected file"_s },
        { 27, u"Insert Title"_s },
        { 28, u"Insert Heading (F5)"_s },
        { 29, u"Insert Rem statement (F6)"_s },
        { 31, u"Compile joystick file (F11)"_s },
        { 32, u"Download joystick file to joystick (F12)"_s },
        { 34, u"Edit Preferences (F9)"_s },
        { 35, u"Help topics (F1)"_s },
    };
    EXPECT_EQ(tooltipsOf(toolbar1Table(), { .openBoth = true, .saveBoth = true }), promised);
}

TEST(Toolbar1, OpensAndSavesOneFileWithTheSettingsOff)
{
    const Tooltips off = tooltipsOf(toolbar1Table(), { .openBoth = false, .saveBoth = false });
    EXPECT_EQ(off[2], u"Open file");
    EXPECT_EQ(off[3], u"Save currently selected file (Ctrl+S)");
}

TEST(Toolbar1, RunsTheEntryOfTheSelectedKind)
{
    const auto action = [](int place, const ToolbarChoices &choices, bool macro) {
        for (const ToolButtonRow &row : toolbar1Table()) {
            if (row.place == place) {
                return actionOf(lookOf(row, choices), macro);
            }
        }
        return QString();
    };
    EXPECT_EQ(action(1, {}, false), u"mnuFileNewJoystick");
    EXPECT_EQ(action(1, {}, true), u"mnuFileNewMacro");
    EXPECT_EQ(action(2, { .openBoth = true }, true), u"mnuFileOpen");
    EXPECT_EQ(action(2, { .openBoth = false }, true), u"MnuFileMacroLoad");
    EXPECT_EQ(action(3, { .saveBoth = true }, false), u"mnuFileSaveBoth");
    EXPECT_EQ(action(3, { .saveBoth = false }, false), u"mnuFileSave");
    EXPECT_EQ(action(4, {}, true), u"mnuFilePrintMacro");
    EXPECT_EQ(action(25, {}, true), u"mnuViewColourMacro");
}

TEST(Toolbar2, HoldsTheToolsInTheirOrder)
{
    QStringList tooltips;
    for (const ToolButtonRow &row : toolbar2Table().first(15)) {
        tooltips.append(tooltipOf(row, { .directXKeyTester = true }));
    }
    EXPECT_EQ(tooltips,
              QStringList({ u"Composer (F2)"_s, u"Tumbo (F4)"_s,
                            u"Template Editor/Text viewer (Shift F11)"_s, u"Image viewer"_s,
                            u"Advanced graphical mouse movement wizard"_s,
                            u"Quick View (Shift F4)"_s, u"Joystick layout editor (Shift F5)"_s,
                            u"Throttle layout editor (Shift F6)"_s,
                            u"Custom layout editor (Shift F7)"_s, u"Multiple File Editor"_s,
                            u"Launcher"_s, u"Key test (Ctrl+K)"_s, u"Joystick analyser"_s,
                            u"Logical Flag Viewer"_s, u"Cougar Control Panel"_s }));
    EXPECT_EQ(toolbar2Table().size(), 19U);
}

TEST(Toolbar2, TestsKeysThroughDirectXWhenAskedTo)
{
    const ToolButtonRow &row = toolbar2Table()[11];
    EXPECT_EQ(actionOf(lookOf(row, { .directXKeyTester = true }), false), u"mnuAppsDX8_0");
    EXPECT_EQ(actionOf(lookOf(row, { .directXKeyTester = false }), false), u"mnuAppsKeyTester");
}

TEST(Shortcuts, DescribeThemselvesOnTheStatusBar)
{
    QStringList described;
    for (const ToolButtonRow &row : shortcutTable()) {
        described.append(QString::fromUtf16(row.look.status));
    }
    EXPECT_EQ(described,
              QStringList({ u"Display the main editing window"_s,
                            u"View the graphical layout associated with the current files"_s,
                            u"View the ReadMe text file associated with the current files"_s }));
}

TEST(Toolbars, NameOnlyEntriesAndPicturesThatExist)
{
    QSet<QString> names;
    for (const ActionRow &row : actionTable()) {
        names.insert(QString::fromUtf16(row.name));
    }
    for (const auto rows : { toolbar1Table(), toolbar2Table(), shortcutTable() }) {
        for (const ToolButtonRow &row : rows) {
            for (const ToolButtonLook &look : { row.look, row.other }) {
                for (const char16_t *action : { look.action, look.macroAction }) {
                    const QString name = QString::fromUtf16(action);
                    EXPECT_TRUE(name.isEmpty() || names.contains(name)) << name.toStdString();
                }
            }
            const QString icon = QStringLiteral(ZEPH_SOURCE_DIR "/data/icons/")
                + QString::fromUtf16(row.icon) + u".svg"_s;
            EXPECT_TRUE(QFile::exists(icon)) << icon.toStdString();
            EXPECT_NE(row.look.status[0], 0);
        }
    }
}

TEST(Toolbars, GreetOverTheirEmptyParts)
{
    EXPECT_EQ(toolbarGreeting(false, u"Goose"_s),
              u"Welcome to Zeph, Goose! This is the Editor's main toolbar.");
    EXPECT_EQ(toolbarGreeting(true, u"Goose"_s),
              u"Welcome to Zeph, Goose! This is the Editor's Apps toolbar.");
}
