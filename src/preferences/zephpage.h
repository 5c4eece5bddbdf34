// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "preferences/preferences_page.h"
#include "preferences/setting_fields.h"

#include <memory>

namespace zeph {

namespace Ui {
class ZephPage;
}

/// "Zeph": the pilot's names, and options that stand on menus and in other windows, gathered.
class ZephPage : public PreferencesPage
{
    Q_OBJECT
public:
    ZephPage(const Context &context, QWidget *parent);
    ~ZephPage() override;

    void collect() override;

private:
    Context m_context;
    std::unique_ptr<Ui::ZephPage> m_ui;
    std::unique_ptr<SettingFields> m_fields;
};

} // namespace zeph
