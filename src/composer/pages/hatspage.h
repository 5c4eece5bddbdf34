// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/generators/hat_statements.h"
#include "composer/pages/option_boxes.h"

#include <memory>

namespace zeph {

namespace Ui {
class HatsPage;
}

/// The page "Hats": what a whole hat is used as, and FORCED_CORNERS.
class HatsPage : public ComposerPage
{
    Q_OBJECT
public:
    HatsPage(const ComposerParts &parts, QWidget *parent);
    ~HatsPage() override;

    std::optional<Generated> current() const override;
    bool read(const QString &statement) override;
    void enter() override;

private:
    HatFields fields() const;
    void showFields(const HatFields &fields);
    /// Enables the fields that the chosen hat and role take.
    void SetupHatUSE();
    void CMDHatViewInsert_Click();

    std::unique_ptr<Ui::HatsPage> m_ui;
    OptionBoxes m_options;
};

} // namespace zeph
