// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "preferences/preferences_page.h"
#include "settings/colour_settings.h"

#include <memory>

namespace zeph {

class FrameMacros;
class MacroListModel;

namespace Ui {
class ColoursPage;
}

/// The colours and the font of the texts and of the macro list, each with samples that show a
/// choice at once. The settings change only in collect().
class ColoursPage : public PreferencesPage
{
    Q_OBJECT
public:
    ColoursPage(const Context &context, QWidget *parent);
    ~ColoursPage() override;

    void collect() override;

    /// Fills the list, the font fields and the samples.
    void AddColourTabStuff();
    /// Colours the sample joystick file, or macro file, with the chosen scheme.
    void ColourJoy();
    void ColourMac();
    /// Colours everything that shows the scheme: both samples, the macro list and the swatches.
    void ApplyColour();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectFields();
    void addMacroList();
    void showScheme();
    void showFonts();
    void showSwatches();
    void choose(int row);
    void changeColour();
    void returnToFirstRun();
    void takeDarkColours();

    Context m_context;
    /// The scheme as chosen so far.
    ColourSettings m_scheme;
    std::unique_ptr<Ui::ColoursPage> m_ui;
    MacroListModel *m_macros = nullptr;
    FrameMacros *m_list = nullptr;
};

} // namespace zeph
