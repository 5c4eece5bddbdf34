// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/option_boxes.h"

#include <QCheckBox>

namespace zeph {

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
