// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/base.h"

#include <QWidget>

#include <QDialog>
#include <memory>

namespace zeph {

class Dialogs;

namespace Ui {
class ProfileChooser;
}

/// A list of profiles and the choice of the calibration, a part of the windows that ask for both.
class ProfileChooser : public QWidget
{
    Q_OBJECT
public:
    explicit ProfileChooser(QWidget *parent = nullptr);
    ~ProfileChooser() override;

    /// Lists the profiles of a folder. False, which is told, when there are none.
    bool UpdateProfiles(const QString &folder, Dialogs &dialogs);
    /// Selects a profile by its name, without regard to case; a name that is not there selects
    /// none.
    void select(const QString &name, bool manualCalibration);

    /// The selected profile; empty when there is none.
    QString profile() const;
    bool manualCalibration() const;

Q_SIGNALS:
    /// Another profile is selected now, or none (an empty name).
    void profileChanged(const QString &name);
    /// A profile was double-clicked.
    void activated();

private:
    std::unique_ptr<Ui::ProfileChooser> m_ui;
};

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
