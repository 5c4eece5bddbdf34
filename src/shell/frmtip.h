// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "shell/help_set.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace zeph {

class Settings;
struct Paths;

namespace Ui {
class frmTip;
}

/// "Tip of the Day". OK saves whether it shows at the next start; closing it otherwise does not.
class frmTip : public QDialog
{
    Q_OBJECT
public:
    /// Gives a number from 0 to below count (at least 1).
    using Pick = std::function<qsizetype(qsizetype count)>;

    /// Loads the tips and shows one; pick chooses the first, a random one when it is not given.
    frmTip(const Paths &paths, Settings &settings, Pick pick = {}, QWidget *parent = nullptr);
    ~frmTip() override;

    /// Reads the tip file. False when there is none, or no tip in it.
    bool LoadTips();
    void DisplayCurrentTip();

    void accept() override;

private:
    const Paths &m_paths;
    Settings &m_settings;
    Pick m_pick;
    TipCycle m_tips;
    std::unique_ptr<Ui::frmTip> m_ui;
};

} // namespace zeph
