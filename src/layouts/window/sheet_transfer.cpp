// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_transfer.h"

#include "layouts/files/layout_store.h"
#include "layouts/window/box_words.h"
#include "layouts/window/sheet_view.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "platform/richtext/rich_text_box.h"
#include "text/macro_table.h"

#include <QMainWindow>
#include <QMenu>

namespace zeph {

SheetTransfer::SheetTransfer(const SheetDesk &desk, const MacroTable &macros)
    : QObject(&desk.window), m_desk(desk), m_macros(macros)
{
    MenuActions &on = m_desk.actions;
    if (m_desk.kind != SheetKind::Custom) {
        on.connectArray(u"mnuTransferArray"_s, [this](int i) {
            if (i == 0) {
                SaveAllForTransfer();
            } else {
                SaveSingleForTransfer();
            }
        });
        return;
    }
    on.connectArray(u"mnuGetText"_s,
                    [this](int i) { getAll(i == 0 ? SheetKind::Joystick : SheetKind::Throttle); });
    on.connectArray(u"mnuSlashArray"_s, [this](int i) { mnuSlashArray_Click(i); });
    on.connectArray(u"mnuConvertUnderscores"_s, [this](int i) { mnuConvertUnderscores_Click(i); });
    connect(on.menu(u"mnuInsertMacro"), &QMenu::aboutToShow, this, &SheetTransfer::fillMacroMenu);
}

void SheetTransfer::SaveAllForTransfer()
{
    const auto saved = saveAllForTransfer(m_desk.kind, m_desk.context.paths.layoutsFolder(),
                                          shownBoxes(m_desk.model.sheet()));
    if (!saved) {
        tellNotSaved(m_desk.context.dialogs, saved.error().fileError());
        return;
    }
    Q_EMIT transferWanted(m_desk.kind, true);
}

void SheetTransfer::SaveSingleForTransfer()
{
    const LayoutTextBox *box = m_desk.model.selectedBox();
    if (!box) {
        return;
    }
    const TransferBox sent{ QRectF(box->Left, box->Top, box->Width, box->Height), box->text };
    if (const auto saved =
            saveSingleForTransfer(m_desk.kind, m_desk.context.paths.layoutsFolder(), sent);
        !saved) {
        tellNotSaved(m_desk.context.dialogs, saved.error().fileError());
        return;
    }
    Q_EMIT transferWanted(m_desk.kind, false);
}

void SheetTransfer::getAll(SheetKind from)
{
    const auto sent = loadAllForTransfer(from, m_desk.context.paths.layoutsFolder());
    if (!sent) {
        m_desk.context.dialogs.tell(u"something's up!"_s, sent.error().text(),
                                    BoxIcon::Exclamation);
        return;
    }
    take(*sent);
}

void SheetTransfer::getSingle(SheetKind from)
{
    const auto sent = loadSingleForTransfer(from, m_desk.context.paths.layoutsFolder());
    if (!sent) {
        m_desk.context.dialogs.tell(u"something's up!"_s, sent.error().text(),
                                    BoxIcon::Exclamation);
        return;
    }
    take(*sent);
}

void SheetTransfer::take(const std::vector<TransferBox> &sent)
{
    if (sent.empty()) {
        m_desk.context.dialogs.tell(u"something's up!"_s,
                                    u"I didn't detect any text to transfer, sorry!"_s,
                                    BoxIcon::Exclamation);
        return;
    }
    Sheet sheet = m_desk.model.sheet();
    bool isFull = false;
    for (const TransferBox &each : sent) {
        const int free = GetEmptyTextBox(sheet);
        isFull = free < 0;
        if (isFull) {
            break;
        }
        LayoutTextBox &box = sheet.boxes[size_t(free)];
        box.Left = float(each.place.left());
        box.Top = float(each.place.top());
        box.Width = float(each.place.width());
        box.Height = float(each.place.height());
        box.text = each.text;
        box.Visible = true;
    }
    m_desk.model.change(std::move(sheet));
    if (isFull) {
        m_desk.context.dialogs.tell(
            u"All text boxes have text in them"_s,
            u"There aren't any more empty text boxes on the Custom Layout window for me to "
            u"transfer "
            "the text to. Either clear them, or copy and paste the text to the area you want to "
            "place it."_s,
            BoxIcon::Exclamation);
    }
}

void SheetTransfer::InsertMacro(const QString &name)
{
    SheetCanvas &canvas = m_desk.view.canvas();
    if (!canvas.isEditing()) {
        return;
    }
    RichTextBox &box = canvas.editor();
    box.insertPlainText(insertedWord(box.richText().text, box.selStart(), name));
    canvas.editorFocus();
}

void SheetTransfer::mnuSlashArray_Click(int index)
{
    InsertMacro(slashWord(index));
}

void SheetTransfer::mnuConvertUnderscores_Click(int scope)
{
    if (scope == 1) {
        m_desk.changeSelected([](LayoutTextBox &box) { box.text = withoutUnderscores(box.text); });
        return;
    }
    m_desk.changeShown([](LayoutTextBox &box) {
        if (box.text.text.size() >= leastConvertedCharacters) {
            box.text = withoutUnderscores(box.text);
        }
    });
}

/// The macros by their headings, as the saved macro file has them now.
void SheetTransfer::fillMacroMenu()
{
    QMenu *menu = m_desk.actions.menu(u"mnuInsertMacro");
    menu->clear();
    // The first heading stands for all macros, which need no menu where there are others.
    for (qsizetype i = m_macros.MacroHeadings.size() > 1 ? 1 : 0;
         i < m_macros.MacroHeadings.size() && i < m_macros.names.size(); ++i) {
        QMenu *heading = menu->addMenu(captionOf(m_macros.MacroHeadings[i]));
        for (const QString &name : m_macros.names[i]) {
            connect(heading->addAction(captionOf(name)), &QAction::triggered, this,
                    guarded(m_desk.context.dialogs, [this, name](bool) { InsertMacro(name); }));
        }
    }
    if (menu->isEmpty()) {
        menu->addAction(u"(no macros)"_s)->setEnabled(false);
    }
}

} // namespace zeph
