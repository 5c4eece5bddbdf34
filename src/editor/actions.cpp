// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/actions.h"

#include "language/words.h"

#include <array>

namespace zeph {

namespace {

using enum CommonWhen;
using enum EditorWhen;
using enum ActionKind;

constexpr std::array menus = {
    MenuRow{ u"mnuFile", u"&File" },         MenuRow{ u"mnuEdit", u"&Edit" },
    MenuRow{ u"mnuView", u"&View" },         MenuRow{ u"mnuInsert", u"&Insert" },
    MenuRow{ u"mnuFormat", u"F&ormat" },     MenuRow{ u"mnuMacros", u"&Macros" },
    MenuRow{ u"mnuDownload", u"&Download" }, MenuRow{ u"mnuCougar", u"&Cougar" },
    MenuRow{ u"mnuApps", u"&Apps" },         MenuRow{ u"mnuGames", u"&Games" },
    MenuRow{ u"mnuHelp", u"&Help" },
};

/// The entry for a word of insertWords.
constexpr ActionRow insertEntry(const char16_t *name, size_t word)
{
    return {
        u"mnuInsert", name, language::insertWords[word].caption, u"", u"", u"", Always, Entry
    };
}

// clang-format off
constexpr std::array actions = {
    ActionRow{u"mnuFile", u"mnuFileNewJoystick", u"&New joystick file", u"Ctrl+N", u"Starts a fresh joystick file", u"new", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileNewMacro", u"New mac&ro file", u"", u"Starts a fresh macro file", u"new", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileNewBoth", u"New joystick and macro files", u"", u"Starts a fresh pair of files", u"", Always, Entry},
    separator(u"mnuFile"),
    ActionRow{u"mnuFile", u"mnuFileOpen", u"&Open joystick file and its macro file ...", u"F8", u"Opens a pair of files that belong together", u"open", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileJoystickLoad", u"Open &joystick file ...", u"Ctrl+O", u"Opens a joystick file alone", u"open", Always, Entry},
    ActionRow{u"mnuFile", u"MnuFileMacroLoad", u"Open &macro file ...", u"", u"Opens a macro file alone", u"open", Always, Entry},
    ActionRow{u"mnuFile", u"mnuJoyPopUpSingleFile", u"Open a sin&gle file from the lists", u"", u"A file from the lists below opens without its partner", u"", Always, Tick},
    ActionRow{u"mnuFile", u"mnuJFList", u"&Previous joystick files", u"", u"", u"", Custom, Submenu},
    separator(u"mnuJFList", u"mnuJFDivider"),
    ActionRow{u"mnuJFList", u"mnuPreviousClearAllJ", u"&Clear all", u"", u"Forgets the joystick files opened before", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuMFList", u"Previo&us macro files", u"", u"", u"", Custom, Submenu},
    separator(u"mnuMFList", u"mnuMFDivider"),
    ActionRow{u"mnuMFList", u"mnuPreviousClearAllM", u"&Clear all", u"", u"Forgets the macro files opened before", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFavourites", u"Fa&vourites", u"", u"", u"", Always, Submenu},
    ActionRow{u"mnuFavourites", u"mnuFavouritesAddCurrent", u"&Add current files to Favourites ...", u"", u"Keeps the current pair under a name of yours", u"favourite-add", Always, Entry},
    ActionRow{u"mnuFavourites", u"mnuSortFavourites", u"&Sort alphabetically", u"", u"Sorts the favourites by their names", u"", Always, Entry},
    separator(u"mnuFavourites", u"mnuFavouritesDivider"),
    separator(u"mnuFile"),
    ActionRow{u"mnuFile", u"mnuFileSave", u"&Save", u"Ctrl+S", u"Saves the selected file", u"save", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileSaveAs", u"Save &as ...", u"", u"Saves the selected file under another name", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileSaveBoth", u"Save &both files", u"Ctrl+F8", u"Saves the joystick file and the macro file", u"save", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileClose", u"C&lose", u"", u"Puts a fresh file in place of the selected one", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileCloseBoth", u"Close bo&th files", u"", u"Puts a fresh pair in place of the current files", u"", Always, Entry},
    separator(u"mnuFile"),
    ActionRow{u"mnuFile", u"mnuFileCreateDistribution", u"Create &distribution package ...", u"", u"Gathers everything that belongs to these files for passing on", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuOpenZip", u"Open distribution &zip ...", u"", u"Unpacks somebody else's files among yours", u"", Always, Entry},
    separator(u"mnuFile"),
    ActionRow{u"mnuFile", u"mnuFilePrintJoystick", u"Pr&int joystick file ...", u"Ctrl+P", u"Prints the joystick file", u"print", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFilePrintMacro", u"Print macro file ...", u"", u"Prints the macro file", u"print", Always, Entry},
    ActionRow{u"mnuFile", u"printtest", u"Print selection", u"", u"Prints what is selected", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFilePrintPreview", u"Print previe&w ...", u"", u"Shows the selected file's pages as they will be printed", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFilePrinterSetup", u"Printer setup ...", u"", u"Chooses the printer and its paper", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileExportPDF", u"Export as PD&F ...", u"", u"Writes the selected file's pages into a PDF file; no printer is needed", u"", Always, Entry},
    separator(u"mnuFile"),
    ActionRow{u"mnuFile", u"mnuFileExit", u"E&xit Zeph", u"", u"Leaves Zeph, after asking about unsaved files", u"exit", Always, Entry},

    ActionRow{u"mnuEdit", u"mnuEditUndo", u"&Undo", u"Ctrl+Z", u"Takes the last change back", u"undo", Custom, Repeats},
    ActionRow{u"mnuEdit", u"mnuEditRedo", u"&Redo", u"Ctrl+Y", u"Makes a change again that was taken back", u"redo", Custom, Repeats},
    separator(u"mnuEdit"),
    ActionRow{u"mnuEdit", u"mnuEditCut", u"Cu&t", u"Ctrl+X", u"Moves the selection to the clipboard", u"cut", Selection, Entry},
    ActionRow{u"mnuEdit", u"mnuEditCopy", u"&Copy", u"Ctrl+C", u"Copies the selection to the clipboard", u"copy", Selection, Entry},
    ActionRow{u"mnuEdit", u"mnuEditPaste", u"&Paste", u"Ctrl+V", u"Inserts what the clipboard holds", u"paste", PasteReady, Repeats},
    ActionRow{u"mnuEdit", u"mnuPasteSimple", u"Paste as &simple text", u"", u"Inserts the clipboard's text without its looks", u"", PasteReady, Entry},
    ActionRow{u"mnuEdit", u"mnuEditDelete", u"&Delete", u"", u"Deletes the selection", u"delete", Selection, Entry},
    ActionRow{u"mnuEdit", u"mnuEditSelectAll", u"Select &all", u"Ctrl+A", u"Selects the whole file", u"", Always, Entry},
    ActionRow{u"mnuEdit", u"mnuEditSelectLine", u"Select &line", u"", u"Selects the caret's line", u"", Always, Entry},
    separator(u"mnuEdit"),
    ActionRow{u"mnuEdit", u"mnuEditFind", u"&Find ...", u"Ctrl+F", u"Finds a word or phrase in a file", u"find", Always, Entry},
    ActionRow{u"mnuEdit", u"mnuEditReplace", u"R&eplace ...", u"Ctrl+R", u"Finds a word or phrase and puts another in its place", u"replace", Always, Entry},
    ActionRow{u"mnuEdit", u"mnuEditGoto", u"&Go to line ...", u"Ctrl+G", u"Goes to a line by its number", u"goto", Always, Entry},
    separator(u"mnuEdit"),
    ActionRow{u"mnuEdit", u"mnuBlockREM", u"Comment the lines &out with Rem", u"", u"Puts Rem before the selected lines", u"", Always, Entry},
    ActionRow{u"mnuEdit", u"mnuBlockRemoveREM", u"Remove Rem from the li&nes", u"", u"Takes Rem away from the selected lines", u"", Always, Entry},

    ActionRow{u"mnuView", u"mnuViewJoystickFile", u"Joystick &file", u"", u"Goes to the joystick file", u"", Always, Tick},
    ActionRow{u"mnuView", u"mnuViewMacroFile", u"Macro fil&e", u"", u"Goes to the macro file", u"", Always, Tick},
    ActionRow{u"mnuView", u"mnuViewOtherFile", u"The ot&her file", u"Ctrl+Tab", u"Goes from one file to the other", u"", Always, Repeats},
    ActionRow{u"mnuView", u"mnuViewGoToMacros", u"&Go to the macro list and back", u"Ctrl+Shift+M", u"Gives the keys to the macro list, and back to the text", u"", Always, Entry},
    separator(u"mnuView"),
    ActionRow{u"mnuView", u"mnuViewTileVertically", u"&Tile files vertically", u"", u"Shows both files side by side", u"tile", Always, Tick},
    ActionRow{u"mnuView", u"mnuViewMacros", u"View &Macro list", u"", u"Shows or hides the macro list", u"macros-view", Always, Tick},
    ActionRow{u"mnuView", u"mnuViewLineNumbers", u"Line &numbers", u"", u"Numbers the lines at the left of the texts", u"", Always, Tick},
    ActionRow{u"mnuView", u"mnuViewCurrentLine", u"Mar&k the caret's line", u"", u"Marks the line that the caret is in", u"", Always, Tick},
    ActionRow{u"mnuView", u"mnuViewZoomIn", u"&Zoom in", u"Ctrl++", u"Shows both files larger; so does the wheel with Ctrl", u"", Always, Repeats},
    ActionRow{u"mnuView", u"mnuViewZoomOut", u"Zoom o&ut", u"Ctrl+-", u"Shows both files smaller; so does the wheel with Ctrl", u"", Always, Repeats},
    ActionRow{u"mnuView", u"mnuViewZoomBack", u"Zoom to &100 %", u"Ctrl+0", u"Shows both files in the size of their fonts again", u"", Always, Entry},
    separator(u"mnuView"),
    ActionRow{u"mnuView", u"mnuViewColourJoystick", u"Apply colour to &joystick file", u"", u"Colours the joystick file's statements", u"colour", Always, Entry},
    ActionRow{u"mnuView", u"mnuViewColourMacro", u"Apply colour to ma&cro file", u"", u"Colours the macro file", u"colour", Always, Entry},
    ActionRow{u"mnuView", u"mnuViewApplyColourBothFiles", u"Apply colour to &both files", u"Ctrl+T", u"Colours both files", u"colour", Always, Entry},
    ActionRow{u"mnuView", u"mnuViewHighlightLine", u"Colour this &line", u"Ctrl+L", u"Colours the caret's line", u"", Always, Entry},
    ActionRow{u"mnuView", u"mnuRemoveColourJoystick", u"&Remove colour from joystick file", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuView", u"mnuRemoveColourMacro", u"Remo&ve colour from macro file", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuView", u"mnuRemoveColourSelectedText", u"Remove colour from &selection", u"", u"", u"", Selection, Entry},
    separator(u"mnuView"),
    ActionRow{u"mnuView", u"mnuAlignSlash", u"&Align slash modifiers", u"Ctrl+M", u"Stands slash modifiers under one another", u"", Always, Entry},
    ActionRow{u"mnuView", u"mnuIndentSlashes", u"&Indent statements when aligning", u"", u"", u"", Always, Tick},
    ActionRow{u"mnuView", u"mnuViewReformat", u"Refresh la&yout", u"Ctrl+H", u"Sets font and margin of the whole file afresh", u"", Always, Entry},
    ActionRow{u"mnuView", u"mnuViewrefreshIndent", u"Refresh indent &only", u"", u"Sets the margin of the whole file afresh", u"", Always, Entry},

    ActionRow{u"mnuInsert", u"mnuInsertTitle", u"&Title ...", u"", u"Inserts a title block for the file", u"insert-title", Always, Entry},
    ActionRow{u"mnuInsert", u"mnuInsertHeading", u"&Heading ...", u"F5", u"Inserts a heading, which groups macros", u"insert-heading", Always, Entry},
    ActionRow{u"mnuInsert", u"mnuInsertRemStatement", u"&Rem statement ...", u"F6", u"Inserts a comment", u"insert-rem", Always, Entry},
    separator(u"mnuInsert"),
    insertEntry(u"mnuSlashArray_0", 0),
    insertEntry(u"mnuSlashArray_1", 1),
    insertEntry(u"mnuSlashArray_2", 2),
    insertEntry(u"mnuSlashArray_3", 3),
    insertEntry(u"mnuSlashArray_4", 4),
    insertEntry(u"mnuSlashArray_5", 5),
    insertEntry(u"mnuSlashArray_6", 6),
    insertEntry(u"mnuSlashArray_7", 7),
    insertEntry(u"mnuSlashArray_8", 8),
    insertEntry(u"mnuSlashArray_9", 9),
    insertEntry(u"mnuSlashArray_10", 10),
    insertEntry(u"mnuSlashArray_11", 11),
    separator(u"mnuInsert"),
    ActionRow{u"mnuInsert", u"mnuSlashWindow", u"Show the Slash windo&w ...", u"", u"A floating palette of the slash modifiers", u"", Always, Entry},
    separator(u"mnuInsert", u"mnuInsertDivider8"),
    ActionRow{u"mnuInsert", u"mnuInsertQuickTip", u"&Quick tip - read me", u"", u"", u"", Always, Entry},

    ActionRow{u"mnuFormat", u"mnuFormatArray1_0", u"&Bold", u"Ctrl+B", u"", u"bold", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuFormatArray1_1", u"&Italic", u"Ctrl+I", u"", u"italic", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuFormatArray1_2", u"&Underline", u"Ctrl+U", u"", u"underline", Always, Entry},
    separator(u"mnuFormat"),
    ActionRow{u"mnuFormat", u"mnuStyleArray_0", u"Style &1", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuStyleArray_1", u"Style &2", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuStyleArray_2", u"Style &3", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuStyleArray_3", u"Style &4", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuStyleArray_4", u"Style &5", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuStyleArray_5", u"Style &6", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuStyleArray_6", u"/U style", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuStyleArray_7", u"/M style", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuStyleArray_8", u"/D style", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuFormatStyleEditor", u"&Edit the styles ...", u"", u"", u"", Always, Entry},
    separator(u"mnuFormat"),
    ActionRow{u"mnuFormat", u"mnuFormatFont", u"&Font ...", u"", u"Chooses the font of both files", u"", Always, Entry},
    separator(u"mnuFormat"),
    ActionRow{u"mnuFormat", u"mnuExportToUBB", u"&Convert to UBB/HTML", u"", u"Turns the selection into mark-up for forums and web pages", u"", Selection, Entry},

    ActionRow{u"mnuMacros", u"mnuEditUpdateMacros", u"&Update macros", u"", u"Reads the macro list from the saved macro file", u"macros-update", Always, Entry},
    ActionRow{u"mnuMacros", u"mnuMacrosIdentify", u"&Identify macros used", u"F7", u"Ticks the macros that the joystick file uses", u"macros-identify", Always, Entry},
    ActionRow{u"mnuMacros", u"mnuFindInJoyFile", u"&Find in Joystick file", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuMacros", u"mnuRenameMacro", u"&Rename in both files ...", u"", u"", u"", Always, Entry},
    separator(u"mnuMacros"),
    ActionRow{u"mnuMacros", u"mnuPreferencesProtectMacroFile", u"&Protect macro file", u"", u"Guards the macro file against typing", u"tab-protected", Always, Tick},
    separator(u"mnuMacros"),
    ActionRow{u"mnuMacros", u"mnuMacrosSave", u"&When saving the macro file", u"", u"", u"", Always, Submenu},
    ActionRow{u"mnuMacrosSave", u"mnuMacrosSaveOptions_0", u"&Update macro list", u"", u"", u"", Always, Tick},
    ActionRow{u"mnuMacrosSave", u"mnuMacrosSaveOptions_1", u"&Identify macros used in joystick file", u"", u"", u"", Always, Tick},
    ActionRow{u"mnuMacros", u"mnuMacroMouseActive", u"&Show the macro under the mouse", u"", u"", u"", Always, Tick},
    ActionRow{u"mnuMacros", u"MnuMacroSelectMacroShow", u"&Highlight macro in macro file when selecting macro in macro list", u"", u"", u"", Always, Tick},

    ActionRow{u"mnuDownload", u"DownloadArray1_0", u"&Download joystick file", u"F12", u"Compiles the joystick file and sends it to the Cougar", u"download", JoystickText, Entry},
    ActionRow{u"mnuDownload", u"DownloadArray1_1", u"&Enable after download (Programmed mode)", u"", u"", u"", Always, Tick},
    ActionRow{u"mnuDownload", u"DownloadArray1_2", u"Run &Key Test after download", u"", u"", u"", Custom, Tick},
    ActionRow{u"mnuDownload", u"DownloadArray1_3", u"Ensure NumLock is on after download", u"", u"", u"", Always, Tick},
    ActionRow{u"mnuDownload", u"DownloadArray1_4", u"Ignore RUN_APP statements on download", u"", u"", u"", Always, Tick},
    separator(u"mnuDownload"),
    ActionRow{u"mnuDownload", u"mnuAppsCompile", u"&Compile joystick file", u"F11", u"Checks the joystick file with the compiler and sends nothing to the Cougar", u"compile", JoystickText, Entry},
    separator(u"mnuDownload"),
    ActionRow{u"mnuDownload", u"mnuResetAxes", u"&Reset axes when downloading", u"", u"", u"", Always, Tick},
    ActionRow{u"mnuDownload", u"mnuApplyDefaultTMC", u"&Apply Default.tmc now", u"", u"", u"", Custom, Entry},
    ActionRow{u"mnuDownload", u"mnuResetOptions", u"Reset &options", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuDownload", u"mnuDownloadProfile", u"Download a profile (*.tmc) ...", u"", u"", u"", Always, Entry},

    ActionRow{u"mnuCougar", u"mnuButtonsMode", u"&Buttons", u"", u"", u"", Always, Submenu},
    // EditorKeys handles this key; the caption only mentions it.
    ActionRow{u"mnuButtonsMode", u"mnuButtonsModeArray_0", u"&Windows (DirectX) mode\tShift+Break", u"", u"The Cougar's buttons act as those of a plain game controller", u"mode-windows", Always, Entry},
    ActionRow{u"mnuButtonsMode", u"mnuButtonsModeArray_1", u"&Programmed mode", u"", u"The Cougar's buttons do what the downloaded joystick file says", u"mode-programmed", Always, Entry},
    ActionRow{u"mnuCougar", u"mnuAxesMode", u"&Axes", u"", u"", u"", Always, Submenu},
    ActionRow{u"mnuAxesMode", u"mnuAxesModeArray_0", u"&Windows axes", u"", u"The Cougar's axes act as those of a plain game controller", u"", Always, Entry},
    ActionRow{u"mnuAxesMode", u"mnuAxesModeArray_1", u"&User defined axes", u"", u"The Cougar's axes follow the profile and the downloaded joystick file", u"", Always, Entry},
    separator(u"mnuCougar"),
    ActionRow{u"mnuCougar", u"MnuDiagArray_0", u"Cougar Control &Panel (CCP)", u"", u"", u"control-panel", Always, Entry},
    ActionRow{u"mnuCougar", u"MnuDiagArray_1", u"&Calibrate controllers", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"MnuDiagArray_2", u"Axes &response curves, trim and deadzones", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"MnuDiagArray_3", u"HOTAS &View to test axes and buttons", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"MnuDiagArray_4", u"Set active Cougar with multiple Cougar setups", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"MnuDiagArray_5", u"Logical Flag viewer", u"", u"", u"logical-flags", Always, Entry},
    separator(u"mnuCougar"),
    ActionRow{u"mnuCougar", u"mnuMemoryClear_0", u"&Empty buffers", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"mnuMemoryClear_1", u"Clear &memory", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"mnuMemoryClear_2", u"Re&set", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"mnuMemoryClear_3", u"HOTAS Clea&nse", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"mnuMemoryClear_4", u"Resynchronise Cougar mode detection", u"", u"", u"", Always, Entry},
    separator(u"mnuCougar"),
    ActionRow{u"mnuCougar", u"mnuFlashUpgrade", u"&Flash upgrade / Update firmware", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"mnuHandleInstall", u"&Install new joystick handle", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"mnuFlashArray_0", u"Control Panel &Gaming Options", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuCougar", u"mnuFlashArray_1", u"&Joystick ID in Gaming Options", u"", u"", u"", Always, Entry},

    ActionRow{u"mnuApps", u"mnuAppsComposer", u"&Composer", u"F2", u"Writes statements from forms and pictures", u"composer", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsTumbo", u"&Tumbo", u"F4", u"The virtual keyboard", u"tumbo", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsTemplateEditor", u"Template &Editor/Text viewer ...", u"Shift+F11", u"Templates and readme files", u"template-editor", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsImageViewer", u"&Image viewer", u"", u"The picture that belongs to the files", u"image-viewer", Always, Entry},
    ActionRow{u"mnuApps", u"mnuMouseWizard", u"Advanced graphical &mouse movement wizard", u"", u"Mouse statements from what you draw on a picture of the game", u"mouse-wizard", Always, Entry},
    ActionRow{u"mnuApps", u"mnuMouseManual", u"Mouse movement pr&ogramming", u"", u"Mouse statements from numbers that you type", u"", Always, Entry},
    ActionRow{u"mnuApps", u"mnuMacroWizard", u"Macro file &wizard", u"", u"Makes a macro file with you, step by step", u"", Always, Entry},
    ActionRow{u"mnuApps", u"mnuJoystickWizard", u"Joystick file wi&zard", u"", u"Makes a joystick file with you, step by step", u"", Always, Entry},
    ActionRow{u"mnuApps", u"mnuSpeedy", u"Spee&dy", u"", u"Writes many macros fast", u"", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsQuickView", u"&Quick View", u"Shift+F4", u"Shows live which statement a control would perform", u"quick-view", Always, Entry},
    separator(u"mnuApps"),
    ActionRow{u"mnuApps", u"mnuAppsJoystickLayout", u"&Joystick layout editor", u"Shift+F5", u"A reference sheet of the stick", u"layout-joystick", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsThrottleLayout", u"T&hrottle layout editor", u"Shift+F6", u"A reference sheet of the throttle", u"layout-throttle", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsCustomLayout", u"C&ustom layout editor", u"Shift+F7", u"A reference sheet of your own", u"layout-custom", Always, Entry},
    separator(u"mnuApps"),
    ActionRow{u"mnuApps", u"mnuAppsMultiEditor", u"Multip&le File Editor", u"", u"", u"multi-editor", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsLauncher", u"Lau&ncher", u"", u"", u"launcher", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsKeyTester", u"&Key Tester ...", u"Ctrl+K", u"Shows which keys the Cougar sends", u"key-tester", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsAnalyser", u"Joystick &analyser", u"", u"", u"analyser", Always, Entry},
    separator(u"mnuApps", u"mnuAppsDX8Divider"),
    ActionRow{u"mnuApps", u"mnuAppsDX8_0", u"DirectX key tester", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsDX8_1", u"DirectX joystick tester", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuApps", u"mnuAppsDX8_2", u"DirectX mouse tester", u"", u"", u"", Always, Entry},
    separator(u"mnuApps"),
    ActionRow{u"mnuApps", u"mnuCustomApp_1", u"Custom application 1", u"", u"", u"custom-app", Custom, Entry},
    ActionRow{u"mnuApps", u"mnuCustomApp_2", u"Custom application 2", u"", u"", u"custom-app", Custom, Entry},
    ActionRow{u"mnuApps", u"mnuCustomApp_3", u"Custom application 3", u"", u"", u"custom-app", Custom, Entry},
    ActionRow{u"mnuApps", u"mnuCustomApp_4", u"Custom application 4", u"", u"", u"custom-app", Custom, Entry},
    separator(u"mnuApps"),
    ActionRow{u"mnuApps", u"mnuAppsViewGraphic", u"View the &graphical layout of these files", u"", u"The picture that USE ZEPH GRAPHIC names", u"shortcut-layout", Graphic, Entry},
    ActionRow{u"mnuApps", u"mnuAppsViewReadMe", u"View the &ReadMe of these files ...", u"", u"The text that USE ZEPH README names", u"shortcut-readme", ReadMe, Entry},
    separator(u"mnuApps"),
    ActionRow{u"mnuApps", u"mnuAppsPreferences", u"&Preferences ...", u"F9", u"All the settings of Zeph", u"preferences", Always, Entry},

    ActionRow{u"mnuGames", u"mnuGamesAdd", u"&Add game settings", u"", u"Puts a game on this menu, with what the Cougar needs for it", u"", Always, Entry},
    separator(u"mnuGames", u"mnuGamesDivider"),
    separator(u"mnuGames", u"mnuGamesSortDivider"),
    ActionRow{u"mnuGames", u"mnuGamesSort", u"&Sort alphabetically", u"", u"Sorts the games by their names", u"", Always, Entry},
    ActionRow{u"mnuGames", u"mnuGamesEdit", u"&Edit game settings", u"", u"Opens Preferences at the games", u"", Always, Entry},

    ActionRow{u"mnuHelp", u"mnuHelpContents", u"&Help topics ...", u"F1", u"The help, at its contents", u"help", Always, Entry},
    ActionRow{u"mnuHelp", u"mnuHelpHowDoI", u"How &do I", u"", u"", u"", Custom, Submenu},
    ActionRow{u"mnuHelp", u"mnuHelpShowMeHow", u"Show me ho&w", u"", u"", u"", Always, Submenu},
    ActionRow{u"mnuHelpShowMeHow", u"mnuShowMeSlashModifiers", u"&Slash modifiers", u"", u"What slash modifiers do, with examples", u"", Always, Entry},
    ActionRow{u"mnuHelpShowMeHow", u"mnuShowMeMouseMicrostick", u"&Mouse and microstick", u"", u"How the microstick moves the mouse", u"", Always, Entry},
    ActionRow{u"mnuHelpShowMeHow", u"mnuShowMeDLYandRATE", u"&DLY and RATE", u"", u"How fast keys follow one another", u"", Always, Entry},
    ActionRow{u"mnuHelpShowMeHow", u"mnuShowMeConfigurationStatements", u"&Configuration statements", u"", u"What the statements with USE set up", u"", Always, Entry},
    ActionRow{u"mnuHelp", u"mnuHelpManuals", u"&Manuals", u"", u"", u"", Custom, Submenu},
    separator(u"mnuHelp"),
    ActionRow{u"mnuHelp", u"mnuHelpSyntax", u"&Syntax ...", u"", u"The statements and how they are written", u"", Always, Entry},
    ActionRow{u"mnuHelp", u"mnuHelpSlashModifiers", u"S&lash modifiers ...", u"", u"What each slash modifier does", u"", Always, Entry},
    ActionRow{u"mnuHelp", u"mnuHelpErrorCodes", u"&Error codes ...", u"", u"What the compiler's codes mean", u"", Always, Entry},
    separator(u"mnuHelp"),
    ActionRow{u"mnuHelp", u"mnuHelpTip", u"&Tip of the Day ...", u"", u"A tip, and then another", u"", Always, Entry},
    separator(u"mnuHelp"),
    ActionRow{u"mnuHelp", u"mnuHelpAbout_0", u"Check for a newer &version ...", u"", u"Asks the makers' server for the latest version", u"", Always, Entry},
    ActionRow{u"mnuHelp", u"mnuHelpAbout_1", u"Vista &compatibility ...", u"", u"What Zeph needs of the system", u"", Always, Entry},
    ActionRow{u"mnuHelp", u"mnuHelpAbout_2", u"&About Zeph ...", u"", u"", u"zeph", Always, Entry},
};

constexpr std::array rightMenu = {
    RightMenuRow{u"mnuRHMUndo", u"", u"mnuEditUndo", RightMenuRow::Both},
    RightMenuRow{u"mnuRHMRedo", u"", u"mnuEditRedo", RightMenuRow::Both},
    RightMenuRow{u"", u"", u"", RightMenuRow::Divider},
    RightMenuRow{u"mnuRHMCut", u"", u"mnuEditCut", RightMenuRow::Both},
    RightMenuRow{u"mnuRHMCopy", u"", u"mnuEditCopy", RightMenuRow::Both},
    RightMenuRow{u"mnuRHMPaste", u"", u"mnuEditPaste", RightMenuRow::Both},
    RightMenuRow{u"mnuRHMDelete", u"", u"mnuEditDelete", RightMenuRow::Both},
    RightMenuRow{u"mnuRHMSelectAll", u"", u"mnuEditSelectAll", RightMenuRow::Both},
    RightMenuRow{u"", u"", u"", RightMenuRow::Divider},
    RightMenuRow{u"mnuRHMColoursSelection", u"", u"mnuRemoveColourSelectedText", RightMenuRow::Both},
    RightMenuRow{u"mnuRHMStyle", u"St&yles", u"", RightMenuRow::Submenu},
    RightMenuRow{u"mnuRHMStyleArray_0", u"", u"mnuStyleArray_0", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMStyleArray_1", u"", u"mnuStyleArray_1", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMStyleArray_2", u"", u"mnuStyleArray_2", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMStyleArray_3", u"", u"mnuStyleArray_3", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMStyleArray_4", u"", u"mnuStyleArray_4", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMStyleArray_5", u"", u"mnuStyleArray_5", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMStyleArray_6", u"", u"mnuStyleArray_6", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMStyleArray_7", u"", u"mnuStyleArray_7", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMStyleArray_8", u"", u"mnuStyleArray_8", RightMenuRow::InSubmenu},
    RightMenuRow{u"mnuRHMExportToUBB", u"Convert to U&BB/HTML", u"mnuExportToUBB", RightMenuRow::Both},
    RightMenuRow{u"mnuRHMGoto", u"", u"mnuEditGoto", RightMenuRow::JoystickOnly},
    RightMenuRow{u"mnuRHMIdentify", u"", u"mnuMacrosIdentify", RightMenuRow::JoystickOnly},
    RightMenuRow{u"mnuRHMDownload", u"Do&wnload joystick file", u"DownloadArray1_0", RightMenuRow::JoystickOnly},
    RightMenuRow{u"mnuRHMUpdateMacros", u"Update &macros", u"mnuEditUpdateMacros", RightMenuRow::MacroOnly},
    RightMenuRow{u"mnuRHMProtect", u"Pr&otect macro file", u"mnuPreferencesProtectMacroFile", RightMenuRow::MacroOnly},
};
// clang-format on

} // namespace

std::span<const MenuRow> menuBarTable()
{
    return menus;
}

std::span<const ActionRow> actionTable()
{
    return actions;
}

std::span<const RightMenuRow> rightMenuTable()
{
    return rightMenu;
}

} // namespace zeph
