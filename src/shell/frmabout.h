// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

namespace zeph {

struct Paths;

namespace Ui {
class frmAbout;
}

/// The About window: picture, version and what Zeph is.
class frmAbout : public QDialog
{
    Q_OBJECT
public:
    explicit frmAbout(const Paths &paths, QWidget *parent = nullptr);
    ~frmAbout() override;

    /// Closes the window, which is what its button does.
    void DialogAction();

private:
    std::unique_ptr<Ui::frmAbout> m_ui;
};

} // namespace zeph
