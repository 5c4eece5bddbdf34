// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "preferences/preferences_page.h"
#include "preferences/setting_fields.h"

#include <memory>

namespace zeph {

namespace Ui {
class FilesPage;
}

/// "File locations". The HOTAS folder holds from the moment that it is chosen, and for this run.
class FilesPage : public PreferencesPage
{
    Q_OBJECT
public:
    FilesPage(const Context &context, QWidget *parent);
    ~FilesPage() override;

    void collect() override;

private:
    void browseHotas();
    void browseWinZip();

    Context m_context;
    std::unique_ptr<Ui::FilesPage> m_ui;
    std::unique_ptr<SettingFields> m_fields;
};

} // namespace zeph
