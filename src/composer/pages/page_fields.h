// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the fields of all pages of the Composer do alike.

#include "platform/core/base.h"

#include <QComboBox>
#include <QLineEdit>

#include <functional>

namespace zeph {

/// Calls a function whenever a text box, a list or a tick among the children of a widget changes.
void whenEdited(const QWidget &parent, QObject *context, const std::function<void()> &then);

/// Gives a box the focus, with its text selected.
void askFor(QLineEdit &box);

/// Gives a box the width of a number of a few digits.
void fitToNumber(QLineEdit &box);

/// Fills a list with words. What was selected stays so if it is there, otherwise it is the first.
template <class Words> void fillList(QComboBox &list, const Words &words)
{
    QStringList items;
    for (const QStringView word : words)
        items.append(word.toString());
    const QString before = list.currentText();
    list.clear();
    list.addItems(items);
    list.setCurrentIndex(std::max(0, list.findText(before)));
}

} // namespace zeph
