// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "preferences/preferences_page.h"
#include "settings/colour_settings.h"
#include "text/painter.h"

#include <memory>

namespace zeph {

class FrameMacros;
class MacroListModel;
class TextControl;

namespace Ui {
class ColoursPage;
}

/// The colours and the font of the texts and of the macro list, each with samples that show at once
/// what is chosen. The settings get it when it is collected.
class ColoursPage : public PreferencesPage
{
    Q_OBJECT
public:
    ColoursPage(const Context &context, QWidget *parent);
    ~ColoursPage() override;

    void collect() override;

    /// Fills list, font fields and samples.
    void AddColourTabStuff();
    /// Colours the sample of the joystick file, or of the macro file, with the chosen scheme.
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
    void colourSample(TextControl &sample, DocumentKind kind, const Painter &painter);

    Context m_context;
    /// The settings as they are to be.
    ColourSettings m_scheme;
    Painter m_joystick{ joystickPasses() };
    Painter m_macro{ macroPasses() };
    std::unique_ptr<Ui::ColoursPage> m_ui;
    MacroListModel *m_macros = nullptr;
    FrameMacros *m_list = nullptr;
};

} // namespace zeph
