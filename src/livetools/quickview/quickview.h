// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/quickview/live_state.h"
#include "platform/context.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace zeph {

namespace Ui {
class QuickView;
}

class CoverageWindow;
class Documents;
class MenuActions;
struct MacroTable;
class QuickViewPicture;
class SenderSearch;
class ShownColumn;
class WindowsModeCheck;

/// What Quick View needs beside the Context. All of it must outlive the window.
struct QuickViewSources {
    Documents &documents;
    const MacroTable &macros; ///< of the saved macro file
    Joystick &joystick;
};

/// Shows on a picture of the Cougar what every control does in the joystick file that is open. The
/// control that is pressed is bold, and the picture follows the dogfight switch and S3; without a
/// joystick their position is selected by hand.
class QuickView : public QMainWindow
{
    Q_OBJECT
public:
    QuickView(const Context &context, const QuickViewSources &sources, QWidget *parent = nullptr);
    ~QuickView() override;

    /// Reads the file and begins the mode check. False when the window was closed meanwhile, and
    /// maybe deleted.
    bool Form_Load();

    void AnalyseAndFill();
    /// Shows a column: base and IO as in control_rows.h.
    void FillTextBoxes(int base, int IO);
    void JustCheckThatMode();
    void GetQuickViewOptions();
    void SaveQuickViewOptions();
    void RemoveBoldLabels();
    /// What a tick of JoyTimer does.
    void JoyTimer_Timer();
    /// Selects a position: 0 to 2 for /U, /M and /D, 3 and 4 for /I and /O.
    void Label3_Click(int index);
    void mnuOptionsDisableJoystick_Click();

    /// The macros have other keys now.
    void macrosChanged();
    const ShownColumn &shown() const { return *m_shown; }
    MenuActions &actions() { return *m_actions; }

Q_SIGNALS:
    /// The buttons' Windows mode is wanted.
    void windowsModeWanted();
    /// The joystick document's caret was put into a statement, which is to be seen.
    void editorWanted();
    /// The user wants the help page of that number.
    void helpWanted(int topic);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeBars();
    void connectEntries();
    void connectPicture();
    void connectDocument();
    void connectSearch();
    void readFile();
    void tellContents();
    void modeChecked(bool isWindowsMode);
    void disableJoystick();
    void applyState(const LiveState &state);
    void showPosition();
    void showOptions();
    void markCaret();
    void markSenders();
    void jumpTo(CellPlace cell);
    void goToFocused();
    void showCoverage();
    void showSearch(bool shown);
    void say(const QString &text);
    QuickViewPicture &picture() const;

    Context m_context;
    QuickViewSources m_sources;
    std::unique_ptr<Ui::QuickView> m_ui;
    std::unique_ptr<MenuActions> m_actions;
    WindowsModeCheck *m_modeCheck;
    QTimer *m_joyTimer;
    QTimer *m_typingTimer;
    SenderSearch *m_search;
    CoverageWindow *m_coverage = nullptr; ///< made when it is first wanted
    std::unique_ptr<ShownColumn> m_shown;
    LiveState m_state;
    int m_focusedRow = 0; ///< the label that had the focus last; 0 before the first
    bool m_joystickDisabled = false;
};

} // namespace zeph
