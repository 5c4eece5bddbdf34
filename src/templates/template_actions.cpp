// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/template_actions.h"

#include <array>

namespace zeph {

namespace {

using enum CommonWhen;
using enum TemplateWhen;
using enum ActionKind;

constexpr std::array menus = {
    MenuRow{ u"mnuFile", u"&File" },     MenuRow{ u"mnuEdit", u"&Edit" },
    MenuRow{ u"mnuView", u"&View" },     MenuRow{ u"mnuFormat", u"F&ormat" },
    MenuRow{ u"mnuStyles", u"&Styles" }, MenuRow{ u"mnuApps", u"&Apps" },
    MenuRow{ u"mnuHelp", u"&Help" },
};

// clang-format off
constexpr std::array actions = {
    ActionRow{u"mnuFile", u"mnuFileNew", u"&New", u"Ctrl+N", u"Starts a fresh rich text file", u"new", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileOpen", u"&Open ...", u"Ctrl+O", u"Opens a template, a ReadMe or any text file", u"open", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileOpenDefault", u"Open &default file", u"", u"Opens the file that you set as default", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileSetDefault", u"Set as de&fault", u"", u"Makes this file the one that Open default file opens", u"", Always, Entry},
    separator(u"mnuFile"),
    ActionRow{u"mnuFile", u"mnuFileSave", u"&Save", u"Ctrl+S", u"Saves the file", u"save", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileSaveAs", u"Save &as ...", u"", u"Saves the file under another name", u"", Always, Entry},
    separator(u"mnuFile"),
    ActionRow{u"mnuFile", u"mnuFilePrint", u"&Print", u"Ctrl+P", u"Prints the file", u"print", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFilePrintSelection", u"Print se&lection", u"", u"Prints what is selected", u"", Selection, Entry},
    ActionRow{u"mnuFile", u"mnuFilePrintPreview", u"Print previe&w ...", u"", u"Shows the pages as they will be printed", u"", Always, Entry},
    ActionRow{u"mnuFile", u"mnuFileExportPDF", u"&Export as PDF ...", u"", u"Writes the pages into a PDF file; no printer is needed", u"", Always, Entry},
    separator(u"mnuFile"),
    ActionRow{u"mnuFile", u"mnuFileClose", u"&Close", u"Ctrl+W", u"Closes the Template Editor, after asking about unsaved changes", u"exit", Always, Entry},

    ActionRow{u"mnuEdit", u"mnuEditUndo", u"&Undo", u"Ctrl+Z", u"Takes the last change back", u"undo", Custom, Repeats},
    ActionRow{u"mnuEdit", u"mnuEditRedo", u"&Redo", u"Ctrl+Y", u"Makes a change again that was taken back", u"redo", Custom, Repeats},
    separator(u"mnuEdit"),
    ActionRow{u"mnuEdit", u"mnuEditCut", u"Cu&t", u"Ctrl+X", u"Moves the selection to the clipboard", u"cut", Selection, Entry},
    ActionRow{u"mnuEdit", u"mnuEditCopy", u"&Copy", u"Ctrl+C", u"Copies the selection to the clipboard", u"copy", Selection, Entry},
    ActionRow{u"mnuEdit", u"mnuEditPaste", u"&Paste", u"Ctrl+V", u"Inserts what the clipboard holds", u"paste", PasteReady, Repeats},
    ActionRow{u"mnuEdit", u"mnuEditDelete", u"&Delete", u"", u"Deletes the selection", u"delete", Selection, Entry},
    ActionRow{u"mnuEdit", u"mnuEditSelectAll", u"Select &all", u"Ctrl+A", u"Selects the whole text", u"", Always, Entry},
    separator(u"mnuEdit"),
    ActionRow{u"mnuEdit", u"mnuEditIniFile", u"Open Zeph.&ini", u"", u"Shows the settings file of this Zeph", u"", Always, Entry},

    ActionRow{u"mnuView", u"mnuViewToolBar", u"&Toolbar", u"", u"Shows or hides the toolbar", u"", Always, Tick},
    separator(u"mnuView"),
    ActionRow{u"mnuView", u"mnuViewColour", u"Apply &colour highlighting", u"Ctrl+T", u"Colours statements as in your joystick and macro files", u"colour", Always, Entry},

    ActionRow{u"mnuFormat", u"mnuFormatArray1_0", u"&Bold", u"Ctrl+B", u"Bold text", u"bold", Always, Tick},
    ActionRow{u"mnuFormat", u"mnuFormatArray1_1", u"&Italic", u"Ctrl+I", u"Italic text", u"italic", Always, Tick},
    ActionRow{u"mnuFormat", u"mnuFormatArray1_2", u"&Underline", u"Ctrl+U", u"Underlined text", u"underline", Always, Tick},
    ActionRow{u"mnuFormat", u"mnuFormatArray1_3", u"Stri&ke out", u"", u"Text with a line through it", u"", Always, Tick},
    separator(u"mnuFormat"),
    ActionRow{u"mnuFormat", u"mnuFormatBullets", u"Bu&llets", u"Ctrl+Shift+L", u"A bullet before each of the selected paragraphs", u"bullets", Always, Tick},
    separator(u"mnuFormat"),
    ActionRow{u"mnuFormat", u"mnuFormatAlign_0", u"Align l&eft", u"Ctrl+L", u"Paragraphs at the left margin", u"align-left", Always, Tick},
    ActionRow{u"mnuFormat", u"mnuFormatAlign_1", u"&Centre", u"Ctrl+E", u"Paragraphs in the middle", u"align-centre", Always, Tick},
    ActionRow{u"mnuFormat", u"mnuFormatAlign_2", u"Align &right", u"Ctrl+R", u"Paragraphs at the right margin", u"align-right", Always, Tick},
    separator(u"mnuFormat"),
    ActionRow{u"mnuFormat", u"mnuFormatFont", u"&Font ...", u"", u"Chooses font, size and style of the selection", u"", Always, Entry},
    ActionRow{u"mnuFormat", u"mnuFormatColour", u"C&olour ...", u"", u"Chooses the colour of the selection", u"", Always, Entry},

    ActionRow{u"mnuStyles", u"mnuStyleArray_0", u"Style 1", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuStyles", u"mnuStyleArray_1", u"Style 2", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuStyles", u"mnuStyleArray_2", u"Style 3", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuStyles", u"mnuStyleArray_3", u"Style 4", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuStyles", u"mnuStyleArray_4", u"Style 5", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuStyles", u"mnuStyleArray_5", u"Style 6", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuStyles", u"mnuStyleArray_6", u"/U style", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuStyles", u"mnuStyleArray_7", u"/M style", u"", u"", u"", Always, Entry},
    ActionRow{u"mnuStyles", u"mnuStyleArray_8", u"/D style", u"", u"", u"", Always, Entry},

    ActionRow{u"mnuApps", u"mnuComposerPlugin", u"&Composer's Templates", u"", u"Opens the Composer where templates are inserted into your files", u"composer", Custom, Entry},

    ActionRow{u"mnuHelp", u"mnuHelpContents", u"&Help on the Template Editor", u"F1", u"The help page on this window", u"help", Always, Entry},
};
// clang-format on

} // namespace

std::span<const MenuRow> templateMenuBar()
{
    return menus;
}

std::span<const ActionRow> templateActions()
{
    return actions;
}

} // namespace zeph
