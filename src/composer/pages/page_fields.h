// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the forms of the hat page and the mouse page share.

#include "composer/generators/use_parts.h"

#include <QList>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace zeph {

class ComposerPage;

/// Gives a box these entries, of which the first is chosen.
void fill(QComboBox &box, language::Words words);

/// Gives a field the focus, with its text selected.
void askFor(QLineEdit &field);

/// Lets the page emit changed() when one of its fields changes or another tab comes to the front.
void announceChanges(ComposerPage &page);

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
