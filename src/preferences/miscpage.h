// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "preferences/preferences_page.h"
#include "preferences/setting_fields.h"

#include <memory>

namespace zeph {

namespace Ui {
class MiscPage;
}

/// "Misc.": what Zeph says where, the Games menu's caption, the DLY button, the mode detector.
class MiscPage : public PreferencesPage
{
    Q_OBJECT
public:
    MiscPage(const Context &context, QWidget *parent);
    ~MiscPage() override;

    void collect() override;

private:
    Context m_context;
    std::unique_ptr<Ui::MiscPage> m_ui;
    std::unique_ptr<SettingFields> m_fields;
};

} // namespace zeph
