// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settings.h"

#include <QDialog>
#include <QSize>

#include <memory>

namespace zeph {

class Printers;

namespace Ui {
class LayoutSize;
}

/// A typed width or height, in pixels: truncated, and at least 400.
int layoutPixels(const QString &text);

/// The whole paper of the printer in pixels of 96 to the inch, as it lies now; none without one.
std::optional<QSize> paperPixels(Printers &printers);

/// What the user wants of the sheet's size.
struct LayoutSizeChoice {
    QSize size;
    bool isDefault = false; ///< of all new sheets too
    bool repositions = false; ///< the boxes are arranged for the size

    friend bool operator==(const LayoutSizeChoice &, const LayoutSizeChoice &) = default;
};

/// Puts a choice into the settings and writes those of the sheets.
Expected<void, FileError> keepLayoutSize(Settings &settings, const SettingsFiles &files,
                                         const LayoutSizeChoice &choice);

/// Asks for the size of a sheet.
class LayoutSize : public QDialog
{
    Q_OBJECT
public:
    /// Shows a choice; without a printer there is no optimum size.
    LayoutSize(const LayoutSizeChoice &shown, const std::optional<QSize> &optimum,
               QWidget *parent = nullptr);
    ~LayoutSize() override;

    /// The choice as the fields say now.
    LayoutSizeChoice choice() const;

private:
    void showSize(const QSize &size);

    std::unique_ptr<Ui::LayoutSize> m_ui;
};

} // namespace zeph
