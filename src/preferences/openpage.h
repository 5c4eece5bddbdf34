// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "preferences/preferences_page.h"
#include "preferences/setting_fields.h"

#include <memory>

namespace zeph {

namespace Ui {
class OpenPage;
}

/// "Open/Save/Undo": opening, saving, autosave, backups and undo.
class OpenPage : public PreferencesPage
{
    Q_OBJECT
public:
    OpenPage(const Context &context, QWidget *parent);
    ~OpenPage() override;

    void collect() override;
    bool restores() const;

Q_SIGNALS:
    /// The tick of RestoreStatus flipped.
    void restoresChanged(bool restores);
    /// The pilot wants the undo memory emptied now.
    void deleteUndosWanted();

private:
    void tidyAutoSave();
    void browseBackups();

    Context m_context;
    std::unique_ptr<Ui::OpenPage> m_ui;
    std::unique_ptr<SettingFields> m_fields;
};

} // namespace zeph
