// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"

#include <QDialog>

#include <memory>

namespace zeph {

enum class CalibrationRequest;

namespace Ui {
class SelectProfileForm;
}

/// Which profile goes to the Cougar right now. What resets the axes before a download stays as it
/// is.
class SelectProfileForm : public QDialog
{
    Q_OBJECT
public:
    explicit SelectProfileForm(const Context &context, QWidget *parent = nullptr);
    ~SelectProfileForm() override;

    /// Lists the profiles that there are, the stored one selected. False, which is told, when there
    /// are none.
    bool UpdateProfiles();

    /// The choice, once the window was left by Download.
    QString profile() const;
    CalibrationRequest calibration() const;

private:
    Context m_context;
    std::unique_ptr<Ui::SelectProfileForm> m_ui;
};

} // namespace zeph
