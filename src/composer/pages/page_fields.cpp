// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/page_fields.h"

#include "composer/composer_page.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QTabWidget>

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

void announceChanges(ComposerPage &page)
{
    whenEdited(page, &page, [&page] { Q_EMIT page.changed(); });
    for (const QListWidget *list : page.findChildren<QListWidget *>())
        QObject::connect(list, &QListWidget::currentRowChanged, &page, &ComposerPage::changed);
    for (const QTabWidget *tabs : page.findChildren<QTabWidget *>())
        QObject::connect(tabs, &QTabWidget::currentChanged, &page, &ComposerPage::changed);
}

void askFor(QLineEdit &field)
{
    field.setFocus();
    field.selectAll();
}

void fitToNumber(QLineEdit &box)
{
    box.setFixedWidth(box.fontMetrics().horizontalAdvance(u"0000000"_s) + 12);
}

} // namespace zeph
