// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/window/sheet_desk.h"

#include <QObject>

namespace zeph {

struct MacroTable;
struct TransferBox;

/// How texts reach the custom sheet: from the joystick and throttle sheets, from the macro list,
/// and by its own menu of slash words.
class SheetTransfer : public QObject
{
    Q_OBJECT
public:
    /// The window owns this; the macros must outlive it.
    SheetTransfer(const SheetDesk &desk, const MacroTable &macros);

    // On the joystick and throttle sheets.
    void SaveAllForTransfer();
    void SaveSingleForTransfer();

    // On the custom sheet.
    void GetF22textboxes() { getAll(SheetKind::Joystick); }
    void GetThrottletextboxes() { getAll(SheetKind::Throttle); }
    void GetSingleF22textbox() { getSingle(SheetKind::Joystick); }
    void GetSingleThrottletextbox() { getSingle(SheetKind::Throttle); }
    void InsertMacro(const QString &name);
    void mnuSlashArray_Click(int index);
    /// Scope 0: all boxes that are shown; 1: the selected box.
    void mnuConvertUnderscores_Click(int scope);

Q_SIGNALS:
    /// Texts lie ready for the custom sheet: all of this sheet's, or one.
    void transferWanted(zeph::SheetKind from, bool all);

private:
    void getAll(SheetKind from);
    void getSingle(SheetKind from);
    void take(const std::vector<TransferBox> &sent);
    void fillMacroMenu();

    SheetDesk m_desk;
    const MacroTable &m_macros;
};

} // namespace zeph
