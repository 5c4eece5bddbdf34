// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/page_fields.h"

#include "composer/composer_page.h"

#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>

namespace zeph {

namespace {

template <class T, class Signal> void announce(ComposerPage &page, Signal signal)
{
    for (const T *field : page.findChildren<T *>()) {
        QObject::connect(field, signal, &page, &ComposerPage::changed);
    }
}

} // namespace

void fill(QComboBox &box, language::Words words)
{
    box.clear();
    for (const QStringView word : words) {
        box.addItem(word.toString());
    }
}

void askFor(QLineEdit &field)
{
    field.setFocus();
    field.selectAll();
}

void announceChanges(ComposerPage &page)
{
    announce<QComboBox>(page, &QComboBox::currentTextChanged);
    announce<QListWidget>(page, &QListWidget::currentRowChanged);
    announce<QLineEdit>(page, &QLineEdit::textChanged);
    announce<QCheckBox>(page, &QCheckBox::toggled);
    announce<QRadioButton>(page, &QRadioButton::toggled);
    announce<QTabWidget>(page, &QTabWidget::currentChanged);
}

OptionBoxes::OptionBoxes(const QWidget *form, OptionPage page)
{
    for (size_t i = 0; i < std::size(checkHatUse); ++i) {
        if (checkHatUse[i].page == page) {
            m_boxes.append({ checkHatUse[i].option,
                             form->findChild<QCheckBox *>(u"CheckHatUse_%1"_s.arg(i)) });
        }
    }
}

UseOptions OptionBoxes::ticked() const
{
    UseOptions options;
    for (const Box &box : m_boxes) {
        options.setFlag(box.option, box.check->isChecked());
    }
    return options;
}

void OptionBoxes::tick(UseOptions options)
{
    for (const Box &box : m_boxes) {
        box.check->setChecked(options.testFlag(box.option));
    }
}

void OptionBoxes::enableOnly(UseOptions options)
{
    for (const Box &box : m_boxes) {
        const bool enabled = options.testFlag(box.option);
        box.check->setEnabled(enabled);
        box.check->setChecked(enabled && box.check->isChecked());
    }
}

} // namespace zeph
