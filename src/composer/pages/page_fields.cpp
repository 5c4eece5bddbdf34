// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/page_fields.h"

#include "composer/composer_settings.h"
#include "settings/settings.h"

#include <QRegularExpression>

namespace zeph {

void tieLineEndTick(QCheckBox &tick, Settings &settings)
{
    auto &values = settings.of<ComposerSettings>();
    tick.setChecked(values.CompTabsAddCr);
    QObject::connect(&tick, &QCheckBox::toggled, &tick, [&tick, &values](bool on) {
        values.CompTabsAddCr = on;
        static const QRegularExpression names(u"^CheckMultiAddCR_\\d$"_s);
        for (QCheckBox *other : tick.window()->findChildren<QCheckBox *>(names))
            other->setChecked(on);
    });
}

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

void fitToNumber(QLineEdit &box)
{
    box.setFixedWidth(box.fontMetrics().horizontalAdvance(u"0000000"_s) + 12);
}

} // namespace zeph
