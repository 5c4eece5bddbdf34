// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_boxes.h"

#include "layouts/window/formgridcellsize.h"
#include "layouts/window/frmtextboxsize.h"
#include "layouts/window/grid.h"
#include "layouts/window/sheet_view.h"
#include "layouts/window/showhidewindow.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"

#include <QAction>
#include <QMainWindow>

namespace zeph {

SheetBoxes::SheetBoxes(const SheetDesk &desk) : QObject(&desk.window), m_desk(desk)
{
    connectEntries();
    connect(&m_desk.model, &SheetModel::changed, this, &SheetBoxes::showTicks);
    connect(&m_desk.model, &SheetModel::selectedChanged, this, &SheetBoxes::showTicks);
    connect(&m_desk.view.canvas(), &SheetCanvas::boxMoved, this, &SheetBoxes::afterMoving);
    m_desk.actions.tickOnly(u"mnuWhenMovingArray"_s,
                            m_desk.settings().*sheetSettings(m_desk.kind).whenMoving);
    showTicks();
}

void SheetBoxes::connectEntries()
{
    MenuActions &on = m_desk.actions;
    const auto connectIndex = [&](const QString &name, void (SheetBoxes::*operation)(int)) {
        if (on.has(name + u"_0"_s)) {
            on.connectArray(name, [this, operation](int i) { (this->*operation)(i); });
        }
    };
    connectIndex(u"mnuVisibleArray"_s, &SheetBoxes::mnuVisibleArray_Click);
    connectIndex(u"mnuVisibleArray2"_s, &SheetBoxes::mnuVisibleArray2_Click);
    connectIndex(u"mnuLockedArray"_s, &SheetBoxes::mnuLockedArray_Click);
    connectIndex(u"mnuLockedArray2"_s, &SheetBoxes::mnuLockedArray2_Click);
    connectIndex(u"mnuImageVisibleArray"_s, &SheetBoxes::mnuImageVisibleArray_Click);
    connectIndex(u"mnuLockedImageArray"_s, &SheetBoxes::mnuLockedImageArray_Click);
    connectIndex(u"mnuSnapToGrid"_s, &SheetBoxes::mnuSnapToGrid_Click);
    connectIndex(u"mnuResizeToGrid"_s, &SheetBoxes::mnuResizeToGrid_Click);
    connectIndex(u"mnuWhenMovingArray"_s, &SheetBoxes::mnuWhenMovingArray_Click);
    on.connectTo(u"mnuHideEmptyText", [this] { mnuHideEmptyText_Click(); });
    on.connectTo(u"mnuShowAllText", [this] { MakeAllTextBoxesVisible(); });
    on.connectTo(u"mnuShowGrid", [this] { mnuShowGrid_Click(); });
    on.connectTo(u"mnuGridCellSize", [this] { showGridCellSize(); });
    on.connectTo(u"mnuTextBoxSize", [this] { showTextBoxSize(); });
    on.connectTo(u"mnuTextboxSize", [this] { showTextBoxSize(); });
    on.connectTo(u"mnuShowHide", [this] { showShowHide(); });
    on.connectTo(u"mnuNextTextbox", [this] { selectNext(1); });
    on.connectTo(u"mnuPreviousTextbox", [this] { selectNext(-1); });
    on.connectTo(u"mnuTextboxHide",
                 [this] { toggleBox(size_t(m_desk.model.selected()), &LayoutTextBox::Visible); });
    on.connectTo(u"mnuTextboxLock",
                 [this] { toggleBox(size_t(m_desk.model.selected()), &LayoutTextBox::Locked); });
}

void SheetBoxes::showTicks()
{
    const SheetKindRow &row = sheetKind(m_desk.kind);
    const Sheet &sheet = m_desk.model.sheet();
    const auto tick = [this](const QString &array, int index, bool isOn) {
        m_desk.actions.action(array + u'_' + QString::number(index))->setChecked(isOn);
    };
    for (int i = 0; i < row.boxes; ++i) {
        const LayoutTextBox &box = sheet.boxes[size_t(i)];
        const bool isSecond = i >= row.secondMenuFrom;
        const QString second = isSecond ? u"2"_s : QString();
        const int number = isSecond ? i - row.secondMenuFrom : i;
        tick(u"mnuVisibleArray"_s + second, number, box.Visible);
        tick(u"mnuLockedArray"_s + second, number, box.Locked);
    }
    if (row.pictureEntry != noPictureEntry) {
        tick(u"mnuVisibleArray"_s, row.pictureEntry, sheet.pictures[0].Visible);
        tick(u"mnuLockedArray"_s, row.pictureEntry, sheet.pictures[0].Locked);
    } else {
        for (int i = 0; i < int(sheet.pictures.size()); ++i) {
            tick(u"mnuImageVisibleArray"_s, i, sheet.pictures[size_t(i)].Visible);
            tick(u"mnuLockedImageArray"_s, i, sheet.pictures[size_t(i)].Locked);
        }
    }
    const LayoutTextBox *selected = m_desk.model.selectedBox();
    m_desk.actions.action(u"mnuTextboxLock")->setChecked(selected && selected->Locked);
}

void SheetBoxes::toggleBox(size_t box, bool LayoutTextBox::*flag)
{
    Sheet sheet = m_desk.model.sheet();
    sheet.boxes.at(box).*flag = !(sheet.boxes[box].*flag);
    m_desk.model.change(std::move(sheet));
}

void SheetBoxes::togglePicture(size_t picture, bool SheetPicture::*flag)
{
    Sheet sheet = m_desk.model.sheet();
    sheet.pictures.at(picture).*flag = !(sheet.pictures[picture].*flag);
    m_desk.model.change(std::move(sheet));
}

void SheetBoxes::mnuVisibleArray_Click(int index)
{
    if (index == sheetKind(m_desk.kind).pictureEntry) {
        togglePicture(0, &SheetPicture::Visible);
    } else {
        toggleBox(size_t(index), &LayoutTextBox::Visible);
    }
}

void SheetBoxes::mnuVisibleArray2_Click(int index)
{
    toggleBox(size_t(index + sheetKind(m_desk.kind).secondMenuFrom), &LayoutTextBox::Visible);
}

void SheetBoxes::mnuLockedArray_Click(int index)
{
    if (index == sheetKind(m_desk.kind).pictureEntry) {
        togglePicture(0, &SheetPicture::Locked);
    } else {
        toggleBox(size_t(index), &LayoutTextBox::Locked);
    }
}

void SheetBoxes::mnuLockedArray2_Click(int index)
{
    toggleBox(size_t(index + sheetKind(m_desk.kind).secondMenuFrom), &LayoutTextBox::Locked);
}

void SheetBoxes::mnuImageVisibleArray_Click(int index)
{
    togglePicture(size_t(index), &SheetPicture::Visible);
}

void SheetBoxes::mnuLockedImageArray_Click(int index)
{
    togglePicture(size_t(index), &SheetPicture::Locked);
}

void SheetBoxes::mnuHideEmptyText_Click()
{
    m_desk.changeShown([](LayoutTextBox &box) { box.Visible = !box.text.text.isEmpty(); });
}

void SheetBoxes::MakeAllTextBoxesVisible()
{
    Sheet sheet = m_desk.model.sheet();
    for (LayoutTextBox &box : sheet.boxes) {
        box.Visible = true;
    }
    m_desk.model.change(std::move(sheet));
}

void SheetBoxes::inScope(int scope, const std::function<void(LayoutTextBox &)> &change)
{
    if (scope == 0) {
        m_desk.changeSelected(change);
    } else {
        m_desk.changeShown(change);
    }
}

void SheetBoxes::mnuSnapToGrid_Click(int scope)
{
    inScope(scope, [this](LayoutTextBox &box) { snapToGrid(box, gridCell()); });
}

void SheetBoxes::mnuResizeToGrid_Click(int scope)
{
    inScope(scope, [this](LayoutTextBox &box) { resizeToGrid(box, gridCell()); });
}

void SheetBoxes::afterMoving()
{
    const int option = m_desk.settings().*sheetSettings(m_desk.kind).whenMoving;
    if (m_desk.model.selected() < 0 || WhenMoving(option) == WhenMoving::Leave) {
        return;
    }
    Sheet sheet = m_desk.model.sheet();
    LayoutTextBox &box = sheet.boxes[size_t(m_desk.model.selected())];
    if (WhenMoving(option) == WhenMoving::Snap) {
        snapToGrid(box, gridCell());
    } else {
        resizeToGrid(box, gridCell());
    }
    m_desk.model.preview(std::move(sheet));
}

void SheetBoxes::mnuShowGrid_Click()
{
    const bool isOn = m_desk.actions.action(u"mnuShowGrid")->isChecked();
    m_desk.view.canvas().setGrid(isOn ? gridCell() : 0);
}

void SheetBoxes::mnuWhenMovingArray_Click(int index)
{
    m_desk.settings().*sheetSettings(m_desk.kind).whenMoving = index;
    m_desk.actions.tickOnly(u"mnuWhenMovingArray"_s, index);
    m_desk.keep({ sheetSettings(m_desk.kind).whenMoving });
}

int SheetBoxes::gridCell() const
{
    return m_desk.settings().*sheetSettings(m_desk.kind).cellSize;
}

void SheetBoxes::setGridCell(int cell)
{
    m_desk.settings().*sheetSettings(m_desk.kind).cellSize = cell;
    m_desk.keep({ sheetSettings(m_desk.kind).cellSize });
    mnuShowGrid_Click();
}

void SheetBoxes::selectNext(int step)
{
    const std::vector<LayoutTextBox> &boxes = m_desk.model.sheet().boxes;
    const int count = int(boxes.size());
    int box = m_desk.model.selected();
    if (box < 0) {
        box = step > 0 ? count - 1 : 0;
    }
    for (int i = 0; i < count; ++i) {
        box = (box + step + count) % count;
        if (boxes[size_t(box)].Visible) {
            m_desk.model.select(box);
            m_desk.view.showSelected();
            m_desk.view.canvas().editorFocus();
            return;
        }
    }
}

void SheetBoxes::showGridCellSize()
{
    FormGridCellSize form(gridCell(), &m_desk.window);
    if (form.exec() == QDialog::Accepted) {
        setGridCell(form.cellSize());
    }
}

void SheetBoxes::showTextBoxSize()
{
    auto *form = m_desk.window.findChild<FrmTextBoxSize *>();
    if (!form) {
        form = new FrmTextBoxSize(m_desk.model, &m_desk.window);
    }
    ToolWindows::raise(*form);
}

void SheetBoxes::showShowHide()
{
    auto *form = m_desk.window.findChild<ShowHideWindow *>();
    if (!form) {
        form = new ShowHideWindow(m_desk.kind, m_desk.model, m_desk.actions, &m_desk.window);
    }
    ToolWindows::raise(*form);
}

} // namespace zeph
