// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class FormResetOptions;
}

/// Asks which profile resets the axes before a download, and how they are calibrated.
class FormResetOptions : public QDialog
{
    Q_OBJECT
public:
    explicit FormResetOptions(const Context &context, QWidget *parent = nullptr);
    ~FormResetOptions() override;

    /// Lists the profiles. False, which is told, when there are none.
    bool UpdateProfiles();
    /// Shows what the settings say.
    void ShowResetValues();

    /// Puts the choice into the settings and switches the reset on.
    void accept() override;

private:
    Context m_context;
    std::unique_ptr<Ui::FormResetOptions> m_ui;
};

} // namespace zeph
