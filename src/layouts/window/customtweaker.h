// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class CustomTweaker;
}

struct LayoutsSettings;

/// The numbers that correct where a printer puts the boxes of a sheet.
class CustomTweaker : public QDialog
{
    Q_OBJECT
public:
    /// Shows the tweaks of the settings.
    explicit CustomTweaker(const LayoutsSettings &settings, QWidget *parent = nullptr);
    ~CustomTweaker() override;

    /// Puts the fields into the settings. A field that is no number leaves its setting alone.
    void store(LayoutsSettings &settings) const;

private:
    std::unique_ptr<Ui::CustomTweaker> m_ui;
};

} // namespace zeph
