// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/control_array.h"

#include <QDialog>

class QPushButton;

namespace zeph {

struct EditorSettings;

/// The floating palette of the slash modifiers, captioned with the words that it inserts.
/// Emits chosen(); InsertForms writes the word.
class SlashWindow : public QDialog
{
    Q_OBJECT
public:
    explicit SlashWindow(const EditorSettings &settings, QWidget *parent = nullptr);

    /// The delay of DLY is a setting.
    void applySettings();

Q_SIGNALS:
    /// A button was pressed: its index in insertWords.
    void chosen(int index);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void makeButtons();

    const EditorSettings &m_settings;
    ControlArray<QPushButton> m_buttons;
};

} // namespace zeph
