// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_formatting.h"

#include "documents/styleeditor.h"
#include "layouts/window/customformatter.h"
#include "layouts/window/sheet_actions.h"
#include "layouts/window/sheet_view.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/richtext/rich_text_mime.h"
#include "platform/tool_windows.h"
#include "settings/settings_files.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QMenu>

namespace zeph {

SheetFormatting::SheetFormatting(const SheetDesk &desk) : QObject(&desk.window), m_desk(desk)
{
    connectEntries();
    connect(&box(), &RichTextBox::selectionChanged, this, &SheetFormatting::updateConditions);
    connect(&m_desk.model, &SheetModel::selectedChanged, this, &SheetFormatting::updateConditions);
    connect(&m_desk.model, &SheetModel::changed, this, &SheetFormatting::updateConditions);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this,
            &SheetFormatting::updateConditions);
    UpdateStyleCaptions();
    updateConditions();
}

RichTextBox &SheetFormatting::box() const
{
    return m_desk.view.canvas().editor();
}

void SheetFormatting::connectEntries()
{
    MenuActions &on = m_desk.actions;
    on.connectTo(u"mnuEditCut", [this] { box().cut(); });
    on.connectTo(u"mnuEditCopy", [this] { box().copy(); });
    on.connectTo(u"mnuEditPaste", [this] { box().paste(); });
    on.connectTo(u"mnuEditDelete", [this] { box().textCursor().removeSelectedText(); });
    on.connectTo(u"mnuEditSelectAll", [this] {
        box().setFocus();
        box().selectAll();
    });
    on.connectTo(u"mnuFormatBold", [this] { toggle(&CharFormat::bold); });
    on.connectTo(u"mnuFormatItalic", [this] { toggle(&CharFormat::italic); });
    on.connectTo(u"mnuFormatUnderline", [this] { toggle(&CharFormat::underline); });
    on.connectTo(u"mnuFormatFont", [this] { mnuFormatFont_Click(); });
    on.connectTo(u"mnuFormatColour", [this] { mnuFormatColour_Click(); });
    on.connectTo(u"mnuFormatter", [this] { showFormatter(); });
    on.connectTo(u"mnuEditStyles", [this] { editStyles(); });
    on.connectArray(u"mnuStyleArray"_s, [this](int i) { mnuStyleArray_Click(i); });
    connect(on.menu(u"mnuStyles"), &QMenu::aboutToShow, this,
            &SheetFormatting::UpdateStyleCaptions);
}

void SheetFormatting::updateConditions()
{
    const bool isEditing = m_desk.view.canvas().isEditing();
    m_desk.actions.setCondition(SheetWhen::Selection, isEditing && box().selLength() > 0);
    m_desk.actions.setCondition(SheetWhen::PasteReady,
                                isEditing && holdsText(QApplication::clipboard()->mimeData()));
}

CharFormat SheetFormatting::look() const
{
    return box().selLength() > 0 ? box().richText().formatAt(box().selStart())
                                 : fromTextFormat(box().currentCharFormat());
}

void SheetFormatting::change(const Change &change)
{
    if (!m_desk.view.canvas().isEditing()) {
        return;
    }
    const int start = box().selStart();
    const int length = box().selLength();
    if (length == 0) {
        CharFormat typing = fromTextFormat(box().currentCharFormat());
        change(typing);
        box().setCurrentCharFormat(toTextFormat(typing));
        return;
    }
    m_desk.changeSelected(
        [&](LayoutTextBox &selected) { selected.text.change(start, length, change); });
}

void SheetFormatting::toggle(bool CharFormat::*flag)
{
    const bool isOn = look().*flag;
    change([flag, isOn](CharFormat &format) { format.*flag = !isOn; });
}

void SheetFormatting::mnuStyleArray_Click(int index)
{
    const TextStyles styles = readLayoutStyles(settingsFilesOf(m_desk.context.paths).layoutsIni);
    const CharFormat &style = styles.at(size_t(index)).format;
    change([&style](CharFormat &format) {
        format.family = style.family;
        format.pointSize = style.pointSize;
        format.bold = style.bold;
        format.colour = style.colour;
        format.underline = style.underline;
        format.italic = style.italic;
    });
}

void SheetFormatting::UpdateStyleCaptions()
{
    const TextStyles styles = readLayoutStyles(settingsFilesOf(m_desk.context.paths).layoutsIni);
    for (size_t i = 0; i < styles.size(); ++i) {
        // The names mark their letters themselves: "/&U style".
        m_desk.actions.action(u"mnuStyleArray_"_s + QString::number(i))->setText(styles[i].name);
    }
}

void SheetFormatting::ColourTextFormatter(ColorRef colour)
{
    change([colour](CharFormat &format) { format.colour = colour; });
}

void SheetFormatting::AssignFontName(const QString &family)
{
    change([&family](CharFormat &format) { format.family = family; });
}

void SheetFormatting::AssignFontSize(double points)
{
    change([points](CharFormat &format) { format.pointSize = points; });
}

void SheetFormatting::mnuFormatFont_Click()
{
    CharFormat start = look();
    const CharFormat plain = m_desk.plain();
    start.family = start.family.isEmpty() ? plain.family : start.family;
    start.pointSize = start.pointSize > 0 ? start.pointSize : plain.pointSize;
    if (const auto chosen = m_desk.context.dialogs.chooseFont(start)) {
        change([&chosen](CharFormat &format) {
            const auto colour = format.colour;
            format = *chosen;
            format.colour = colour;
        });
    }
}

void SheetFormatting::mnuFormatColour_Click()
{
    if (const auto colour = m_desk.context.dialogs.chooseColour(look().colour.value_or(0))) {
        ColourTextFormatter(*colour);
    }
}

void SheetFormatting::editStyles()
{
    constexpr ColorRef paper = 0xFFFFFF;
    const ProfileFile store = settingsFilesOf(m_desk.context.paths).layoutsIni;
    StyleEditor editor(readLayoutStyles(store), paper, m_desk.context.dialogs, &m_desk.window);
    if (editor.exec() != QDialog::Accepted) {
        return;
    }
    if (const auto written = writeLayoutStyles(store, editor.styles()); !written) {
        tellNotSaved(m_desk.context.dialogs, written.error());
    }
    UpdateStyleCaptions();
}

void SheetFormatting::showFormatter()
{
    auto *palette = m_desk.window.findChild<CustomFormatter *>();
    if (!palette) {
        palette = new CustomFormatter(settingsFilesOf(m_desk.context.paths).layoutsIni,
                                      m_desk.context.dialogs, &m_desk.window);
        connect(palette, &CustomFormatter::colourChosen, this,
                &SheetFormatting::ColourTextFormatter);
        connect(palette, &CustomFormatter::familyChosen, this, &SheetFormatting::AssignFontName);
        connect(palette, &CustomFormatter::sizeChosen, this, &SheetFormatting::AssignFontSize);
    }
    ToolWindows::raise(*palette);
}

} // namespace zeph
