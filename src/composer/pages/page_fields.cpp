// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/page_fields.h"

#include <QAbstractButton>

namespace zeph {

void whenEdited(const QWidget &parent, QObject *context, const std::function<void()> &then)
{
    for (const QLineEdit *box : parent.findChildren<QLineEdit *>())
        QObject::connect(box, &QLineEdit::textChanged, context, then);
    for (const QComboBox *list : parent.findChildren<QComboBox *>())
        QObject::connect(list, &QComboBox::currentIndexChanged, context, then);
    for (const QAbstractButton *button : parent.findChildren<QAbstractButton *>()) {
        if (button->isCheckable())
            QObject::connect(button, &QAbstractButton::toggled, context, then);
    }
}

void askFor(QLineEdit &box)
{
    box.setFocus();
    box.selectAll();
}

void fitToNumber(QLineEdit &box)
{
    box.setFixedWidth(box.fontMetrics().horizontalAdvance(u"0000000"_s) + 12);
}

} // namespace zeph
