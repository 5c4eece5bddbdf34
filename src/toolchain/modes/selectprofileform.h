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

/// Asks which profile to send to the Cougar now. The profile that resets the axes before a download
/// is another matter and stays as it is.
class SelectProfileForm : public QDialog
{
    Q_OBJECT
public:
    explicit SelectProfileForm(const Context &context, QWidget *parent = nullptr);
    ~SelectProfileForm() override;

    /// Lists the profiles and selects the stored one. False, which is told, when there are none.
    bool UpdateProfiles();

    /// The user's choice, valid after the window was accepted.
    QString profile() const;
    CalibrationRequest calibration() const;

private:
    Context m_context;
    std::unique_ptr<Ui::SelectProfileForm> m_ui;
};

} // namespace zeph
