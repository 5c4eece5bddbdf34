// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_model.h"

namespace zeph {

namespace {

constexpr size_t mostSteps = 100;

/// Whether the step of typing that made one text of the other is complete: something was pasted, or
/// a word or a line was ended. What is deleted or replaced goes on.
bool endsWord(const QString &before, const QString &after)
{
    if (after.size() != before.size() + 1) {
        return after.size() > before.size();
    }
    return std::ranges::mismatch(before, after).in2->isSpace();
}

} // namespace

SheetModel::SheetModel(Sheet sheet, QObject *parent)
    : QObject(parent), m_sheet(std::move(sheet)) { }

const LayoutTextBox *SheetModel::selectedBox() const
{
    return m_selected < 0 ? nullptr : &m_sheet.boxes[size_t(m_selected)];
}

void SheetModel::select(int box)
{
    if (box != m_selected && box < int(m_sheet.boxes.size())) {
        m_selected = box;
        m_typing = -1;
        Q_EMIT selectedChanged(box);
    }
}

void SheetModel::show(Sheet sheet)
{
    m_sheet = std::move(sheet);
    m_typing = -1;
    Q_EMIT changed();
    Q_EMIT stepsChanged();
}

void SheetModel::replace(Sheet sheet)
{
    m_undo.clear();
    m_redo.clear();
    m_before.reset();
    show(std::move(sheet));
}

void SheetModel::keep(Sheet before)
{
    m_undo.push_back(std::move(before));
    if (m_undo.size() > mostSteps) {
        m_undo.pop_front();
    }
    m_redo.clear();
}

bool SheetModel::change(Sheet sheet)
{
    commit();
    if (sheet == m_sheet) {
        return false;
    }
    keep(m_sheet);
    show(std::move(sheet));
    return true;
}

void SheetModel::preview(Sheet sheet)
{
    if (sheet == m_sheet) {
        return;
    }
    if (!m_before) {
        m_before = m_sheet;
    }
    m_sheet = std::move(sheet);
    Q_EMIT changed();
}

bool SheetModel::commit()
{
    const auto before = std::exchange(m_before, std::nullopt);
    if (!before || *before == m_sheet) {
        return false;
    }
    keep(*before);
    m_typing = -1;
    Q_EMIT stepsChanged();
    return true;
}

void SheetModel::type(int box, const RichText &text)
{
    const RichText before = m_sheet.boxes[size_t(box)].text;
    if (before == text) {
        return;
    }
    const bool goesOn = m_typing == box && !m_undo.empty();
    Sheet sheet = m_sheet;
    sheet.boxes[size_t(box)].text = text;
    if (goesOn) {
        m_redo.clear();
        m_sheet = std::move(sheet);
        Q_EMIT changed();
    } else {
        change(std::move(sheet));
    }
    m_typing = endsWord(before.text, text.text) ? -1 : box;
}

void SheetModel::undo()
{
    commit();
    step(m_undo, m_redo);
}

void SheetModel::redo()
{
    commit();
    step(m_redo, m_undo);
}

void SheetModel::step(std::deque<Sheet> &from, std::deque<Sheet> &to)
{
    if (from.empty()) {
        return;
    }
    to.push_back(m_sheet);
    Sheet sheet = std::move(from.back());
    from.pop_back();
    show(std::move(sheet));
}

} // namespace zeph
