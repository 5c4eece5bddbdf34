// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QObject>

namespace zeph {

class CougarModes;
class Editor;
class Mum;

/// Ties the Cougar's modes to the main window: the mode picture of the status bar, the entries of
/// the Cougar menu and the emergency key.
class ModeMenu : public QObject
{
    Q_OBJECT
public:
    ModeMenu(const Context &context, CougarModes &modes, Mum &mum, Editor &editor);
};

} // namespace zeph
