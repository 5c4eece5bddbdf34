// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/control_array.h"
#include "preferences/preferences_page.h"
#include "toolchain/default_options.h"

#include <memory>

class QCheckBox;

namespace zeph {

namespace Ui {
class DefaultsPage;
}

/// "Default options": what the compiler does unless a file says otherwise, read anew from the
/// toolchain's file.
class DefaultsPage : public PreferencesPage
{
    Q_OBJECT
public:
    DefaultsPage(const Context &context, QWidget *parent);
    ~DefaultsPage() override;

    void collect() override;
    /// As they were taken.
    const DefaultOptions &options() const { return m_options; }
    /// Whether they were taken as other than they had been read.
    bool haveChanged() const { return !(m_options == m_read); }

private:
    Context m_context;
    DefaultOptions m_read;
    DefaultOptions m_options;
    std::unique_ptr<Ui::DefaultsPage> m_ui;
    ControlArray<QCheckBox> m_ticks;
};

} // namespace zeph
