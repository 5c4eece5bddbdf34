// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/control_array.h"

#include <QDialog>

class QPushButton;

namespace zeph {

struct GlobalSettings;

/// The floating palette of the slash modifiers, captioned with the words that it inserts. Writing
/// them is whoever's who hears it.
class SlashWindow : public QDialog
{
    Q_OBJECT
public:
    explicit SlashWindow(const GlobalSettings &settings, QWidget *parent = nullptr);

Q_SIGNALS:
    /// A button was pressed: its index among slashWords().
    void chosen(int index);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeButtons();
    void showTexts();

    const GlobalSettings &m_settings;
    ControlArray<QPushButton> m_buttons;
};

} // namespace zeph
