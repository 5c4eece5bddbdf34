// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/generators/use_insert.h"
#include "composer/generators/use_lists.h"
#include "platform/control_array.h"

#include <memory>

class QRadioButton;

namespace zeph {

namespace Ui {
class UsePage;
}

/// The page "Use / Misc.": the configuration statements of a joystick file. Each button
/// CMD_UseInsert_i lies with its fields in a group GroupUse_i. Of several groups on a tab, the page
/// tells what the one that was used last would insert.
class UsePage : public ComposerPage
{
    Q_OBJECT
public:
    UsePage(const ComposerParts &parts, QWidget *parent);
    ~UsePage() override;

    std::optional<Generated> current() const override;
    bool read(const QString &statement) override;
    void enter() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Turns to the tab with that button.
    void bringToFront(UseInsert insert);
    /// Lists the profiles of the Cougar's folder, and selects the first.
    void UpdateProfiles();

private:
    void fillLists();
    void connectTabs();
    void connectGroup(int index);
    void connectRest();

    UseFields fields() const;
    /// What a button inserts, with the blank that keeps it apart from what is after the caret.
    Generated statementOf(UseInsert insert) const;
    void showFields(const UseFields &fields);
    HardwareStartup startup() const;
    void showProfiles();

    /// The button whose group is in front.
    int insertInFront() const;
    void useGroup(int index);
    /// Brings what depends on the fields up to date.
    void followFields();
    void UpdateWindowTypeDescription();

    void insert(int index);
    void browse(const UseBrowse &browse);

    std::unique_ptr<Ui::UsePage> m_ui;
    ControlArray<QLineEdit> m_texts;
    ControlArray<QCheckBox> m_ticks;
    ControlArray<QComboBox> m_lists;
    ControlArray<QWidget> m_groups; ///< by UseInsert
    ProfileList m_profiles;
    int m_usedLast = 0; ///< of m_groups
    bool m_keepsMacroFile = false; ///< when the page is entered
};

} // namespace zeph
