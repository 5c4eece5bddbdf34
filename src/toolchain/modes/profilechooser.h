// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QWidget>

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

} // namespace zeph
