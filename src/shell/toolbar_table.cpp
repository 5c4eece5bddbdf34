// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/toolbar_table.h"

#include "editor/actions.h"

#include <QHash>

#include <array>

namespace zeph {

namespace {

using enum ToolButtonChoice;
using enum ToolButtonKey;

// clang-format off
constexpr std::array toolbar1 = {
    ToolButtonRow{1, u"new", {u"New joystick or macro file", u"New file - puts a fresh joystick or macro file in place of the one on the selected tab", u"mnuFileNewJoystick", u"mnuFileNewMacro", KeyUntold}},
    ToolButtonRow{2, u"open",
                  {u"Open joystick file and its macro file", u"Open both - pick either file of a pair, and its partner comes along", u"mnuFileOpen"}, OpenBoth,
                  {u"Open file", u"Open file - opens a file of the kind that the selected tab shows, and leaves the other one alone", u"mnuFileJoystickLoad", u"MnuFileMacroLoad", KeyUntold}},
    ToolButtonRow{3, u"save",
                  {u"Save both files", u"Save both - saves the joystick file and the macro file in one go", u"mnuFileSaveBoth", u"", KeyUntold}, SaveBoth,
                  {u"Save currently selected file", u"Save - saves the file on the selected tab", u"mnuFileSave"}},
    ToolButtonRow{4, u"print", {u"Print currently selected file", u"Print - puts the file on the selected tab on paper, colours and all", u"mnuFilePrintJoystick", u"mnuFilePrintMacro"}},
    ToolButtonRow{6, u"cut", {u"Cut", u"Cut - moves the selected text to the clipboard", u"mnuEditCut"}},
    ToolButtonRow{7, u"copy", {u"Copy", u"Copy - copies the selected text to the clipboard", u"mnuEditCopy"}},
    ToolButtonRow{8, u"paste", {u"Paste", u"Paste - inserts what the clipboard holds at the cursor", u"mnuEditPaste"}},
    ToolButtonRow{10, u"undo", {u"Undo", u"Undo - takes the last change back, and then the one before it", u"mnuEditUndo"}},
    ToolButtonRow{11, u"redo", {u"Redo", u"Redo - for when undoing it was the mistake", u"mnuEditRedo"}},
    ToolButtonRow{13, u"find", {u"Find word or phrase in file", u"Find - looks for a word or phrase in the selected file", u"mnuEditFind"}},
    ToolButtonRow{14, u"replace", {u"Find and Replace", u"Replace - looks for a word or phrase and puts another in its place", u"mnuEditReplace"}},
    ToolButtonRow{15, u"goto", {u"Goto line number", u"Goto line number - useful when a download fails with an error at a line number", u"mnuEditGoto"}},
    ToolButtonRow{17, u"favourite-add", {u"Add current files to Favourites", u"Add to Favourites - keeps the current pair of files under a name of your choice", u"mnuFavouritesAddCurrent"}},
    ToolButtonRow{19, u"macros-view", {u"View macros", u"View macros - shows or hides the list of your macros beside the text", u"mnuViewMacros"}},
    ToolButtonRow{20, u"macros-update", {u"Update macros", u"Update macros - reads the macro list afresh from the saved macro file", u"mnuEditUpdateMacros"}},
    ToolButtonRow{21, u"macros-identify", {u"Identify macros used", u"Identify macros used - ticks the macros that the joystick file uses, and shows you the idle ones", u"mnuMacrosIdentify"}},
    ToolButtonRow{22, u"tile", {u"Tile joystick and macro files vertically", u"Tile - shows the joystick file and the macro file side by side", u"mnuViewTileVertically"}},
    ToolButtonRow{25, u"colour", {u"Apply colour highlighting to selected file", u"Colour highlighting - colours the statements of the selected file, so that mistakes stand out", u"mnuViewColourJoystick", u"mnuViewColourMacro"}},
    ToolButtonRow{27, u"insert-title", {u"Insert Title", u"Insert Title - a block with your name, the date and what the file is for", u"mnuInsertTitle"}},
    ToolButtonRow{28, u"insert-heading", {u"Insert Heading", u"Insert Heading - groups the macros below it in the macro list", u"mnuInsertHeading"}},
    ToolButtonRow{29, u"insert-rem", {u"Insert Rem statement", u"Insert Rem statement - a comment, for you and for whoever flies with your files", u"mnuInsertRemStatement"}},
    ToolButtonRow{31, u"compile", {u"Compile joystick file", u"Compile - checks the joystick file for errors and sends nothing to the joystick", u"mnuAppsCompile"}},
    ToolButtonRow{32, u"download", {u"Download joystick file to joystick", u"Download - compiles the joystick file and sends it to the joystick", u"DownloadArray1_0"}},
    ToolButtonRow{34, u"preferences", {u"Edit Preferences", u"Preferences - colours, folders, games and everything else that can be to your liking", u"mnuAppsPreferences"}},
    ToolButtonRow{35, u"help", {u"Help topics", u"Help - everything I know, page by page", u"mnuHelpContents"}},
};

constexpr std::array toolbar2 = {
    ToolButtonRow{1, u"composer", {u"Composer", u"Composer - writes statements for you: point at a control, say what it should do", u"mnuAppsComposer"}},
    ToolButtonRow{2, u"tumbo", {u"Tumbo", u"Tumbo - the virtual keyboard, which turns key presses into statements", u"mnuAppsTumbo"}},
    ToolButtonRow{3, u"template-editor", {u"Template Editor/Text viewer", u"Template Editor - for templates and for the ReadMe that goes with your files", u"mnuAppsTemplateEditor"}},
    ToolButtonRow{4, u"image-viewer", {u"Image viewer", u"Image viewer - shows the picture that belongs to the current files", u"mnuAppsImageViewer"}},
    ToolButtonRow{5, u"mouse-wizard", {u"Advanced graphical mouse movement wizard", u"Mouse wizard - draw where the mouse should go, and get the statement for it", u"mnuMouseWizard"}},
    ToolButtonRow{6, u"quick-view", {u"Quick View", u"Quick View - press something on the stick and see which statement it would perform", u"mnuAppsQuickView"}},
    ToolButtonRow{7, u"layout-joystick", {u"Joystick layout editor", u"Joystick layout - a reference sheet of what every button on the stick does", u"mnuAppsJoystickLayout"}},
    ToolButtonRow{8, u"layout-throttle", {u"Throttle layout editor", u"Throttle layout - a reference sheet of what every button on the throttle does", u"mnuAppsThrottleLayout"}},
    ToolButtonRow{9, u"layout-custom", {u"Custom layout editor", u"Custom layout - a reference sheet over a picture of your own", u"mnuAppsCustomLayout"}},
    ToolButtonRow{10, u"multi-editor", {u"Multiple File Editor", u"Multiple File Editor - for looking at more files than these two at once", u"mnuAppsMultiEditor"}},
    ToolButtonRow{11, u"launcher", {u"Launcher", u"Launcher - starts your other programs from one small window", u"mnuAppsLauncher"}},
    ToolButtonRow{12, u"key-tester",
                  {u"Key test", u"Key test - shows which keys the joystick sends, through DirectX", u"mnuAppsDX8_0"}, DirectXKeyTester,
                  {u"Key test", u"Key test - shows which keys the joystick sends when you press something on it", u"mnuAppsKeyTester"}},
    ToolButtonRow{13, u"analyser", {u"Joystick analyser", u"Joystick analyser - shows what the axes and buttons report", u"mnuAppsAnalyser"}},
    ToolButtonRow{14, u"logical-flags", {u"Logical Flag Viewer", u"Logical Flag Viewer - watches the logical flags of the running joystick file", u"MnuDiagArray_5"}},
    ToolButtonRow{15, u"control-panel", {u"Cougar Control Panel", u"Cougar Control Panel - the joystick's own settings", u"MnuDiagArray_0"}},
    ToolButtonRow{17, u"custom-app", {u"Custom application 1", u"The first of your own applications", u"mnuCustomApp_1"}},
    ToolButtonRow{18, u"custom-app", {u"Custom application 2", u"The second of your own applications", u"mnuCustomApp_2"}},
    ToolButtonRow{19, u"custom-app", {u"Custom application 3", u"The third of your own applications", u"mnuCustomApp_3"}},
    ToolButtonRow{20, u"custom-app", {u"Custom application 4", u"The fourth of your own applications", u"mnuCustomApp_4"}},
};

constexpr std::array shortcuts = {
    ToolButtonRow{0, u"shortcut-editor", {u"Editor", u"Display the main editing window", u""}},
    ToolButtonRow{1, u"shortcut-layout", {u"Graphical layout", u"View the graphical layout associated with the current files", u"mnuAppsViewGraphic"}},
    ToolButtonRow{2, u"shortcut-readme", {u"View ReadMe", u"View the ReadMe text file associated with the current files", u"mnuAppsViewReadMe"}},
};
// clang-format on

bool chosen(ToolButtonChoice choice, const ToolbarChoices &choices)
{
    switch (choice) {
    case None:
        return true;
    case OpenBoth:
        return choices.openBoth;
    case SaveBoth:
        return choices.saveBoth;
    case DirectXKeyTester:
        return choices.directXKeyTester;
    }
    return true;
}

} // namespace

std::span<const ToolButtonRow> toolbar1Table()
{
    return toolbar1;
}

std::span<const ToolButtonRow> toolbar2Table()
{
    return toolbar2;
}

std::span<const ToolButtonRow> shortcutTable()
{
    return shortcuts;
}

const ToolButtonLook &lookOf(const ToolButtonRow &row, const ToolbarChoices &choices)
{
    return chosen(row.choice, choices) ? row.look : row.other;
}

namespace {

/// The entry's keys; empty for one without. They are kept, because every change of an entry asks
/// for those of all buttons.
QString keysOf(const char16_t *action)
{
    static QHash<const char16_t *, QString> known;
    const auto found = known.constFind(action);
    return found == known.cend() ? *known.insert(action, shortcutOf(actionTable(), action))
                                 : *found;
}

} // namespace

QString tooltipOf(const ToolButtonRow &row, const ToolbarChoices &choices)
{
    const ToolButtonLook &look = lookOf(row, choices);
    const QString words = QString::fromUtf16(look.tooltip);
    QString keys = keysOf(look.action);
    if (keys.isEmpty()) {
        keys = keysOf(row.other.action);
    }
    if (keys.isEmpty() || look.key == KeyUntold) {
        return words;
    }
    return words + u" ("_s + keys.replace(u"Shift+"_s, u"Shift "_s) + u')';
}

QString actionOf(const ToolButtonLook &look, bool macroSelected)
{
    const bool ownForMacro = macroSelected && look.macroAction[0] != 0;
    return QString::fromUtf16(ownForMacro ? look.macroAction : look.action);
}

QString toolbarGreeting(bool appsToolbar, const QString &callsign)
{
    return u"Welcome to Zeph, "_s + callsign
        + (appsToolbar ? u"! This is the Editor's Apps toolbar."_s
                       : u"! This is the Editor's main toolbar."_s);
}

} // namespace zeph
