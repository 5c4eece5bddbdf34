// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/use_parts.h"

#include <QList>

class QCheckBox;
class QWidget;

namespace zeph {

/// The boxes CheckHatUse_i of one form.
class OptionBoxes
{
public:
    OptionBoxes() = default;
    /// The form must hold all boxes that checkHatUse has for the page, and outlive this.
    OptionBoxes(const QWidget *form, OptionPage page);

    UseOptions ticked() const;
    void tick(UseOptions options);
    /// Enables the boxes of these options; all others lose their ticks and are disabled.
    void enableOnly(UseOptions options);

private:
    struct Box {
        UseOption option;
        QCheckBox *check;
    };
    QList<Box> m_boxes;
};

} // namespace zeph
