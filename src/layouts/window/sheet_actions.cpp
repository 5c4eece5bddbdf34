// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_actions.h"

#include "layouts/files/sheet_kinds.h"
#include "layouts/window/box_words.h"
#include "menus/menu_actions.h"
#include "text/text_styles.h"

#include <QStringList>

#include <array>
#include <deque>
#include <string>

namespace zeph {

namespace {

using enum CommonWhen;
using enum SheetWhen;
using enum ActionKind;

enum class On { All, Filled, CustomSheet };
using enum On;

bool isOn(On where, SheetKind kind)
{
    return where == All || (where == CustomSheet) == (kind == SheetKind::Custom);
}

constexpr std::array filledMenus = {
    MenuRow{ u"mnuFile", u"&File" },           MenuRow{ u"mnuEdit", u"&Edit" },
    MenuRow{ u"mnuView", u"&View" },           MenuRow{ u"mnuAnalyse", u"&Analyse" },
    MenuRow{ u"mnuFormat", u"F&ormat" },       MenuRow{ u"mnuTextboxes", u"&Textboxes" },
    MenuRow{ u"mnuLayout", u"&Layout" },       MenuRow{ u"mnuHelp", u"&Help" },
    MenuRow{ u"mnuTextboxPopUp", u"Textbox" },
};

constexpr std::array customMenus = {
    MenuRow{ u"mnuFile", u"&File" },           MenuRow{ u"mnuEdit", u"&Edit" },
    MenuRow{ u"mnuView", u"&View" },           MenuRow{ u"mnuInsert", u"&Insert" },
    MenuRow{ u"mnuFormat", u"F&ormat" },       MenuRow{ u"mnuTextboxes", u"&Textboxes" },
    MenuRow{ u"mnuLayout", u"&Layout" },       MenuRow{ u"mnuHelp", u"&Help" },
    MenuRow{ u"mnuTextboxPopUp", u"Textbox" },
};

struct SheetRow {
    On where;
    ActionRow row;
};

// clang-format off
constexpr std::array rows = {
    SheetRow{All, {u"mnuFile", u"mnuOpenTextWithPositions", u"&Open layout with text ...", u"Ctrl+O", u"Opens a layout with the texts that it was saved with", u"open", Always, Entry}},
    SheetRow{All, {u"mnuFile", u"mnuOpenPositions", u"Open pos&itions ...", u"", u"Gives the textboxes the places of a layout; their texts stay", u"", Always, Entry}},
    SheetRow{All, {u"mnuFile", u"mnuPrevLO", u"P&revious layouts", u"", u"", u"", Custom, Submenu}},
    SheetRow{All, separator(u"mnuPrevLO", u"mnuPrevLODivider")},
    SheetRow{All, {u"mnuPrevLO", u"mnuClearLayouts", u"&Clear all", u"", u"Forgets the layouts used before", u"", Always, Entry}},
    SheetRow{All, {u"mnuFile", u"mnuAutoLayout", u"Open this layout with this win&dow", u"", u"The layout that is open now comes up whenever this window is opened", u"", Layout, Tick}},
    SheetRow{All, separator(u"mnuFile")},
    SheetRow{All, {u"mnuFile", u"mnuSaveTextWithPositions", u"&Save layout with text ...", u"Ctrl+S", u"Saves places and texts under a name", u"save", Always, Entry}},
    SheetRow{All, {u"mnuFile", u"mnuSavePositions", u"Save positio&ns ...", u"", u"Saves the places of the textboxes alone", u"", Always, Entry}},
    SheetRow{All, {u"mnuFile", u"mnuExport", u"&Export", u"", u"", u"", Always, Submenu}},
    SheetRow{All, {u"mnuExport", u"mnuExportPDF", u"&PDF ...", u"", u"Writes the sheet into a PDF file; no printer is needed", u"", Always, Entry}},
    SheetRow{All, {u"mnuExport", u"mnuExportSVG", u"&SVG ...", u"", u"Writes the sheet as a drawing that stays sharp in every size", u"", Always, Entry}},
    SheetRow{All, {u"mnuExport", u"mnuExportPNG_0", u"P&NG ...", u"", u"Writes the sheet as a picture in its own size", u"", Always, Entry}},
    SheetRow{All, {u"mnuExport", u"mnuExportPNG_1", u"PNG, &twice the size ...", u"", u"Writes the sheet as a picture of twice as many pixels each way", u"", Always, Entry}},
    SheetRow{All, {u"mnuExport", u"mnuExportPNG_2", u"PNG, &four times the size ...", u"", u"Writes the sheet as a picture of four times as many pixels each way", u"", Always, Entry}},
    SheetRow{All, {u"mnuExport", u"mnuExportHTML", u"&Web page ...", u"", u"Writes the sheet into one file for web browsers", u"", Always, Entry}},
    SheetRow{All, {u"mnuFile", u"mnuCaptureAsBitmap", u"Capture as &bitmap", u"", u"Makes a picture of the sheet and opens it in the Image Viewer", u"image-viewer", Always, Entry}},
    SheetRow{All, separator(u"mnuFile")},
    SheetRow{All, {u"mnuFile", u"mnuPrint", u"&Print", u"Ctrl+P", u"Prints the sheet", u"print", Always, Entry}},
    SheetRow{CustomSheet, {u"mnuFile", u"mnuPrintWhite", u"Print text with &white background", u"", u"Textboxes hide what is under them on paper too", u"", Always, Tick}},
    SheetRow{All, {u"mnuFile", u"mnuPrinterSetup", u"Printer set&up ...", u"", u"Chooses printer and paper", u"", Always, Entry}},
    SheetRow{All, {u"mnuFile", u"mnuPrinterOrient", u"Printer orient&ation", u"", u"", u"", Always, Submenu}},
    SheetRow{All, {u"mnuPrinterOrient", u"mnuPrinterOrientArray_0", u"&Portrait", u"", u"Prints upright", u"", Always, Tick}},
    SheetRow{All, {u"mnuPrinterOrient", u"mnuPrinterOrientArray_1", u"&Landscape", u"", u"Prints across", u"", Always, Tick}},
    SheetRow{All, separator(u"mnuPrinterOrient")},
    SheetRow{All, {u"mnuPrinterOrient", u"mnuOrientAuto", u"&Use layout orientation", u"", u"Prints across when the layout is wider than high", u"", Always, Tick}},
    SheetRow{All, {u"mnuFile", u"mnuTweaks", u"&Tweaking factors for printouts", u"", u"Corrects a printer's idea of the textboxes", u"", Always, Entry}},
    SheetRow{All, {u"mnuFile", u"mnuShowImageSize", u"Show layout si&ze", u"", u"Compares the layout with the printer's paper", u"", Always, Entry}},
    SheetRow{All, separator(u"mnuFile")},
    SheetRow{All, {u"mnuFile", u"mnuClose", u"&Close", u"Ctrl+W", u"Closes the window, after asking about an unsaved layout", u"exit", Always, Entry}},

    SheetRow{All, {u"mnuEdit", u"mnuEditUndo", u"&Undo", u"Ctrl+Z", u"Takes the last change of the sheet back", u"undo", UndoReady, Repeats}},
    SheetRow{All, {u"mnuEdit", u"mnuEditRedo", u"&Redo", u"Ctrl+Y", u"Makes a change again that was taken back", u"redo", RedoReady, Repeats}},
    SheetRow{All, separator(u"mnuEdit")},
    SheetRow{All, {u"mnuEdit", u"mnuEditCut", u"Cu&t", u"Ctrl+X", u"Moves the selection to the clipboard", u"cut", Selection, Entry}},
    SheetRow{All, {u"mnuEdit", u"mnuEditCopy", u"&Copy", u"Ctrl+C", u"Copies the selection to the clipboard", u"copy", Selection, Entry}},
    SheetRow{All, {u"mnuEdit", u"mnuEditPaste", u"&Paste", u"Ctrl+V", u"Inserts what the clipboard holds", u"paste", PasteReady, Repeats}},
    SheetRow{All, {u"mnuEdit", u"mnuEditDelete", u"&Delete", u"", u"Deletes the selection", u"delete", Selection, Entry}},
    SheetRow{All, {u"mnuEdit", u"mnuEditSelectAll", u"Select &all", u"Ctrl+A", u"Selects all text of the textbox", u"", Box, Entry}},
    SheetRow{All, separator(u"mnuEdit")},
    SheetRow{All, {u"mnuEdit", u"mnuNextTextbox", u"&Next textbox", u"Ctrl+PgDown", u"Selects the next textbox that is shown", u"", Always, Repeats}},
    SheetRow{All, {u"mnuEdit", u"mnuPreviousTextbox", u"Pre&vious textbox", u"Ctrl+PgUp", u"Selects the textbox before", u"", Always, Repeats}},

    SheetRow{All, {u"mnuView", u"mnuViewToolBar", u"&Toolbar", u"", u"Shows or hides the toolbar", u"", Always, Tick}},
    SheetRow{All, {u"mnuView", u"mnuShowGrid", u"Show &grid", u"Ctrl+G", u"Draws the grid under the textboxes", u"", Always, Tick}},
    SheetRow{Filled, {u"mnuView", u"mnuLeaderLines", u"&Leader lines", u"", u"Lines from the textboxes to their controls", u"", Always, Tick}},
    SheetRow{All, {u"mnuView", u"mnuShowKeys", u"Show the &keys", u"", u"", u"", Always, Submenu}},
    SheetRow{All, {u"mnuShowKeys", u"mnuShowKeysArray_0", u"Macro &names", u"", u"Textboxes show what your files say", u"", Always, Tick}},
    SheetRow{All, {u"mnuShowKeys", u"mnuShowKeysArray_1", u"&Keys", u"", u"Textboxes show the keys of macros in place of their names", u"", Always, Tick}},
    SheetRow{All, {u"mnuShowKeys", u"mnuShowKeysArray_2", u"Names &and keys", u"", u"Textboxes show macros with their keys", u"", Always, Tick}},

    SheetRow{Filled, {u"mnuAnalyse", u"mnuAnalyseArray_0", u"&All text boxes", u"F5", u"Fills the textboxes from your joystick file", u"analyser", Always, Entry}},
    SheetRow{Filled, {u"mnuAnalyse", u"mnuAnalyseArray_1", u"&Selected textbox", u"", u"Fills one textbox from your joystick file", u"", Analysed, Entry}},

    SheetRow{CustomSheet, {u"mnuInsert", u"mnuInsertMacro", u"&Macros", u"", u"", u"", Box, Submenu}},
    SheetRow{CustomSheet, {u"mnuInsert", u"mnuSlash", u"&Slash words", u"", u"", u"", Box, Submenu}},
    SheetRow{CustomSheet, separator(u"mnuInsert")},
    SheetRow{CustomSheet, {u"mnuInsert", u"mnuGetText_0", u"&Joystick layout's text", u"", u"Takes over what the joystick layout sent last", u"", Always, Entry}},
    SheetRow{CustomSheet, {u"mnuInsert", u"mnuGetText_1", u"&Throttle layout's text", u"", u"Takes over what the throttle layout sent last", u"", Always, Entry}},

    SheetRow{All, {u"mnuFormat", u"mnuApplyColours", u"Apply c&olour highlighting", u"Ctrl+T", u"Colours the statements in all textboxes", u"colour", Always, Entry}},
    SheetRow{All, {u"mnuFormat", u"mnuApplyUMDcolours", u"Apply &/U,/M,/D colour highlighting", u"", u"Colours them, and gives what each position of the dogfight switch does its style", u"", Always, Entry}},
    SheetRow{All, separator(u"mnuFormat")},
    SheetRow{All, {u"mnuFormat", u"mnuFormatBold", u"&Bold", u"Ctrl+B", u"Bold text", u"bold", Box, Entry}},
    SheetRow{All, {u"mnuFormat", u"mnuFormatItalic", u"&Italic", u"Ctrl+I", u"Italic text", u"italic", Box, Entry}},
    SheetRow{All, {u"mnuFormat", u"mnuFormatUnderline", u"&Underline", u"Ctrl+U", u"Underlined text", u"underline", Box, Entry}},
    SheetRow{All, {u"mnuFormat", u"mnuFormatFont", u"&Font ...", u"", u"Chooses font, size and style of the selection", u"", Box, Entry}},
    SheetRow{All, {u"mnuFormat", u"mnuFormatColour", u"&Colour ...", u"", u"Chooses the colour of the selection", u"", Box, Entry}},
    SheetRow{All, {u"mnuFormat", u"mnuFormatter", u"Palette of fonts and co&lours", u"", u"A small window with fonts and colours", u"", Always, Entry}},
    SheetRow{All, {u"mnuFormat", u"mnuStyles", u"&Styles", u"", u"", u"", Box, Submenu}},
    SheetRow{All, {u"mnuFormat", u"mnuEditStyles", u"&Edit styles ...", u"", u"Changes the nine styles of the layouts", u"", Always, Entry}},
    SheetRow{All, separator(u"mnuFormat")},
    SheetRow{All, {u"mnuFormat", u"mnuFitText_0", u"Fit &all texts", u"", u"Makes texts that do not fit smaller, as far as need be", u"", Always, Entry}},
    SheetRow{All, {u"mnuFormat", u"mnuFitText_1", u"Fit &text of the selected textbox", u"", u"Makes the text smaller until all of it fits", u"", Box, Entry}},
    SheetRow{CustomSheet, {u"mnuFormat", u"mnuUnderscores", u"Con&vert underscores to spaces", u"", u"", u"", Always, Submenu}},
    SheetRow{CustomSheet, {u"mnuUnderscores", u"mnuConvertUnderscores_0", u"&All visible text boxes", u"", u"Short texts are left alone", u"", Always, Entry}},
    SheetRow{CustomSheet, {u"mnuUnderscores", u"mnuConvertUnderscores_1", u"&Current text box", u"", u"", u"", Box, Entry}},

    SheetRow{All, {u"mnuTextboxes", u"mnuVisible", u"Vi&sible", u"", u"", u"", Always, Submenu}},
    SheetRow{CustomSheet, {u"mnuTextboxes", u"mnuVisible2", u"Visible, fro&m 21", u"", u"", u"", Always, Submenu}},
    SheetRow{All, {u"mnuTextboxes", u"mnuLocked", u"&Locked", u"", u"", u"", Always, Submenu}},
    SheetRow{CustomSheet, {u"mnuTextboxes", u"mnuLocked2", u"Locked, &from 21", u"", u"", u"", Always, Submenu}},
    SheetRow{CustomSheet, {u"mnuTextboxes", u"mnuImageVisible", u"&Pictures", u"", u"", u"", Always, Submenu}},
    SheetRow{CustomSheet, {u"mnuImageVisible", u"mnuImageVisibleArray_0", u"&Joystick layout", u"", u"Shows or hides the picture of the stick", u"", Always, Tick}},
    SheetRow{CustomSheet, {u"mnuImageVisible", u"mnuImageVisibleArray_1", u"&Throttle layout", u"", u"Shows or hides the picture of the throttle", u"", Always, Tick}},
    SheetRow{CustomSheet, {u"mnuImageVisible", u"mnuImageVisibleArray_2", u"Thrustmaster &rudders", u"", u"Shows or hides the picture of the rudders", u"", Always, Tick}},
    SheetRow{CustomSheet, {u"mnuImageVisible", u"mnuImageVisibleArray_3", u"&My own picture", u"", u"Shows or hides your own picture", u"", Always, Tick}},
    SheetRow{CustomSheet, separator(u"mnuImageVisible")},
    SheetRow{CustomSheet, {u"mnuImageVisible", u"mnuOwnPicture", u"&Choose my own picture ...", u"", u"Puts a picture of yours on the sheet", u"", Always, Entry}},
    SheetRow{CustomSheet, {u"mnuTextboxes", u"mnuLockedImage", u"Loc&ked pictures", u"", u"", u"", Always, Submenu}},
    SheetRow{CustomSheet, {u"mnuLockedImage", u"mnuLockedImageArray_0", u"&Joystick layout", u"", u"The mouse does not move the picture of the stick", u"", Always, Tick}},
    SheetRow{CustomSheet, {u"mnuLockedImage", u"mnuLockedImageArray_1", u"&Throttle layout", u"", u"The mouse does not move the picture of the throttle", u"", Always, Tick}},
    SheetRow{CustomSheet, {u"mnuLockedImage", u"mnuLockedImageArray_2", u"Thrustmaster &rudders", u"", u"The mouse does not move the picture of the rudders", u"", Always, Tick}},
    SheetRow{CustomSheet, {u"mnuLockedImage", u"mnuLockedImageArray_3", u"&My own picture", u"", u"The mouse does not move your own picture", u"", Always, Tick}},
    SheetRow{All, separator(u"mnuTextboxes")},
    SheetRow{All, {u"mnuTextboxes", u"mnuHideEmptyText", u"&Hide all empty textboxes", u"", u"Hides the textboxes without text", u"", Always, Entry}},
    SheetRow{All, {u"mnuTextboxes", u"mnuShowAllText", u"Sho&w all textboxes", u"", u"Shows every textbox", u"", Always, Entry}},
    SheetRow{All, {u"mnuTextboxes", u"mnuShowHide", u"&Use the Show/Hide window", u"", u"A small window with a tick for each textbox", u"", Always, Entry}},
    SheetRow{All, {u"mnuTextboxes", u"mnuTextBoxSize", u"&Exact size ...", u"", u"Place and size of the selected textbox in pixels", u"", Always, Entry}},
    SheetRow{Filled, separator(u"mnuTextboxes")},
    SheetRow{Filled, {u"mnuTextboxes", u"mnuTransfer", u"&Transfer to the custom layout", u"", u"", u"", Always, Submenu}},
    SheetRow{Filled, {u"mnuTransfer", u"mnuTransferArray_0", u"&All visible text boxes", u"", u"Sends the texts to the custom layout editor", u"layout-custom", Always, Entry}},
    SheetRow{Filled, {u"mnuTransfer", u"mnuTransferArray_1", u"&Current text box", u"", u"Sends one text to the custom layout editor", u"", Box, Entry}},

    SheetRow{All, {u"mnuLayout", u"mnuLayoutSize", u"&Layout size ...", u"", u"Width and height of the sheet", u"", Always, Entry}},
    SheetRow{Filled, {u"mnuLayout", u"mnuArrange", u"&Arrange", u"Ctrl+R", u"Places the textboxes around the picture, each near its control", u"", Always, Entry}},
    SheetRow{All, separator(u"mnuLayout")},
    SheetRow{All, {u"mnuLayout", u"mnuGridCellSize", u"&Grid cell size ...", u"", u"The distance of the grid's lines", u"", Always, Entry}},
    SheetRow{All, {u"mnuLayout", u"mnuSnap", u"&Snap to grid", u"", u"", u"", Always, Submenu}},
    SheetRow{All, {u"mnuSnap", u"mnuSnapToGrid_0", u"&Current textbox", u"", u"", u"", Box, Entry}},
    SheetRow{All, {u"mnuSnap", u"mnuSnapToGrid_1", u"&All visible textboxes", u"", u"", u"", Always, Entry}},
    SheetRow{All, {u"mnuLayout", u"mnuResize", u"&Resize to grid", u"", u"", u"", Always, Submenu}},
    SheetRow{All, {u"mnuResize", u"mnuResizeToGrid_0", u"&Current textbox", u"", u"", u"", Box, Entry}},
    SheetRow{All, {u"mnuResize", u"mnuResizeToGrid_1", u"&All visible textboxes", u"", u"", u"", Always, Entry}},
    SheetRow{All, {u"mnuLayout", u"mnuWhenMoving", u"&When moving/resizing textboxes ...", u"", u"", u"", Always, Submenu}},
    SheetRow{All, {u"mnuWhenMoving", u"mnuWhenMovingArray_0", u"&Snap them to the grid", u"", u"", u"", Always, Tick}},
    SheetRow{All, {u"mnuWhenMoving", u"mnuWhenMovingArray_1", u"&Resize them to the grid", u"", u"", u"", Always, Tick}},
    SheetRow{All, {u"mnuWhenMoving", u"mnuWhenMovingArray_2", u"&Just leave them as they are", u"", u"", u"", Always, Tick}},

    SheetRow{All, {u"mnuHelp", u"mnuHelpContents", u"&Help on the layout editors", u"F1", u"The help page on this window", u"help", Always, Entry}},
    SheetRow{All, {u"mnuHelp", u"mnuHelpTutorials", u"&Graphical layout tutorials", u"", u"Shows step by step how a sheet is made", u"", Always, Entry}},

    SheetRow{Filled, {u"mnuTextboxPopUp", u"mnuReanalyse", u"Re&analyse this textbox", u"", u"Fills this textbox from your joystick file", u"", Analysed, Entry}},
    SheetRow{All, {u"mnuTextboxPopUp", u"mnuTextboxColours", u"Apply normal c&olour highlighting", u"", u"Colours the statements in this textbox", u"", Box, Entry}},
    SheetRow{All, {u"mnuTextboxPopUp", u"mnuTextboxUMDcolours", u"Apply &/U,/M,/D colour highlighting", u"", u"Colours this textbox, with a style for each position of the dogfight switch", u"", Box, Entry}},
    SheetRow{All, {u"mnuTextboxPopUp", u"mnuTextboxFit", u"&Fit text", u"", u"Makes the text smaller until all of it fits", u"", Box, Entry}},
    SheetRow{All, separator(u"mnuTextboxPopUp")},
    SheetRow{All, {u"mnuTextboxPopUp", u"mnuTextboxHide", u"&Hide this textbox", u"", u"The Visible menu shows it again", u"", Box, Entry}},
    SheetRow{All, {u"mnuTextboxPopUp", u"mnuTextboxLock", u"&Lock this textbox", u"", u"The mouse neither moves nor sizes it", u"", Box, Tick}},
    SheetRow{All, {u"mnuTextboxPopUp", u"mnuTextboxSize", u"&Exact size ...", u"", u"Place and size of this textbox in pixels", u"", Box, Entry}},
};
// clang-format on

/// The rows of one kind of sheet, with the arrays that have an entry a box.
class SheetTable
{
public:
    explicit SheetTable(SheetKind kind)
    {
        for (const SheetRow &row : zeph::rows) {
            if (isOn(row.where, kind)) {
                m_rows.push_back(row.row);
            }
        }
        const SheetKindRow &sheet = sheetKind(kind);
        addBoxes(sheet, u"mnuVisible"_s, u"Shows or hides this textbox");
        addBoxes(sheet, u"mnuLocked"_s, u"The mouse neither moves nor sizes what is locked");
        const QStringList styles(TextStyles().size(), u"Style"_s);
        addEntries(u"mnuStyles"_s, u"mnuStyleArray"_s, styles, Box);
        if (kind == SheetKind::Custom) {
            addEntries(u"mnuSlash"_s, u"mnuSlashArray"_s, slashCaptions(), Box);
        }
    }

    std::span<const ActionRow> rows() const { return m_rows; }

private:
    void addBoxes(const SheetKindRow &sheet, const QString &menu, const char16_t *status)
    {
        for (int i = 0; i < sheet.boxes; ++i) {
            const bool isSecond = i >= sheet.secondMenuFrom;
            const QString second = isSecond ? u"2"_s : QString();
            const int number = isSecond ? i - sheet.secondMenuFrom : i;
            add(menu + second, menu + u"Array"_s + second, number, sheet.boxNames[size_t(i)],
                status, Always, Tick);
        }
        if (sheet.pictureEntry != noPictureEntry) {
            m_rows.push_back(separator(kept(menu)));
            add(menu, menu + u"Array"_s, sheet.pictureEntry, u"Picture", status, Always, Tick);
        }
    }
    void addEntries(const QString &menu, const QString &array, const QStringList &captions,
                    When when)
    {
        for (qsizetype i = 0; i < captions.size(); ++i) {
            add(menu, array, int(i), captions[i], u"", when, Entry);
        }
    }
    void add(const QString &menu, const QString &array, int index, QStringView caption,
             const char16_t *status, When when, ActionKind kind)
    {
        m_rows.push_back({ kept(menu), kept(array + u'_' + QString::number(index)),
                           kept(caption.toString()), u"", status, u"", when, kind });
    }
    const char16_t *kept(const QString &text)
    {
        m_texts.push_back(text.toStdU16String());
        return m_texts.back().c_str();
    }

    std::deque<std::u16string> m_texts; ///< what the rows point to stays where it is
    std::vector<ActionRow> m_rows;
};

} // namespace

std::span<const MenuRow> sheetMenuBar(SheetKind kind)
{
    return kind == SheetKind::Custom ? std::span<const MenuRow>(customMenus)
                                     : std::span<const MenuRow>(filledMenus);
}

std::span<const ActionRow> sheetActions(SheetKind kind)
{
    static const std::array tables = { SheetTable(SheetKind::Joystick),
                                       SheetTable(SheetKind::Throttle),
                                       SheetTable(SheetKind::Custom) };
    return tables[size_t(kind)].rows();
}

} // namespace zeph
