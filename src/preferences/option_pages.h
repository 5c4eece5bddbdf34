// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/control_array.h"
#include "preferences/preferences_page.h"
#include "preferences/setting_fields.h"
#include "toolchain/default_options.h"

#include <memory>

class QCheckBox;

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
    /// The tick RestoreStatus was changed.
    void restoresChanged(bool restores);
    /// The user wants to empty the undo memory now.
    void deleteUndosWanted();

private:
    void tidyAutoSave();
    void browseBackups();

    Context m_context;
    std::unique_ptr<Ui::OpenPage> m_ui;
    std::unique_ptr<SettingFields> m_fields;
};

namespace Ui {
class FilesPage;
}

/// "File locations". A chosen HOTAS folder is used at once, and remembered.
class FilesPage : public PreferencesPage
{
    Q_OBJECT
public:
    FilesPage(const Context &context, QWidget *parent);
    ~FilesPage() override;

    void collect() override;

Q_SIGNALS:
    /// Another HOTAS folder was chosen; the paths name it already.
    void hotasFolderChosen();

private:
    void browseHotas();
    void browseWinZip();

    Context m_context;
    std::unique_ptr<Ui::FilesPage> m_ui;
    std::unique_ptr<SettingFields> m_fields;
};

namespace Ui {
class MiscPage;
}

/// "Misc.": what is shown where, the caption of the Games menu, the DLY button, the mode detector.
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

namespace Ui {
class ZephPage;
}

/// "Zeph": the pilot's names, and options that are also on menus and in other windows.
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

namespace Ui {
class DefaultsPage;
}

/// "Default options": what the compiler does unless a file says otherwise. Read from the
/// toolchain's own file each time, and again when its folder changes.
class DefaultsPage : public PreferencesPage
{
    Q_OBJECT
public:
    DefaultsPage(const Context &context, QWidget *parent);
    ~DefaultsPage() override;

    void collect() override;
    /// Reads the options of the present HOTAS folder and shows them.
    void readOptions();
    /// Writes what the user has changed.
    Expected<void, FileError> save() const;
    /// Whether the taken options differ from those that held when the window opened.
    bool haveChanged() const { return m_options != m_before; }

private:
    Context m_context;
    DefaultOptions m_before;
    DefaultOptions m_read;
    /// What collect() took.
    DefaultOptions m_options;
    std::unique_ptr<Ui::DefaultsPage> m_ui;
    ControlArray<QCheckBox> m_ticks;
};

} // namespace zeph
