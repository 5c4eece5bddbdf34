// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/modes/mode_rules.h"

#include <QObject>
#include <QTimer>

namespace zeph {

class Joystick;
class ToolchainHandshake;
struct ModeReport;
enum class ConfigCommand;

/// A request to the buttons; the numbers are the menu's indices.
enum class ButtonsRequest { Windows = 0, Programmed = 1, ReportOnly = 2 };

/// The Cougar's modes. Requests go out through the configuration tool. The detector does not ask
/// the hardware: at each tick it rereads what the tools last wrote into HOTAS.ini and shows it as
/// the status line's mode picture.
class CougarModes : public QObject
{
    Q_OBJECT
public:
    CougarModes(const Context &context, ToolchainHandshake &handshake, Joystick &joystick,
                QObject *parent = nullptr);

    /// Has the mode reported and starts the detector, if the settings say so; called once when a
    /// run starts. Throws as EnableStatusTimer() does.
    void startOfRun();

    /// Changes the buttons' mode or has it reported, and does not wait for the tool. Does nothing,
    /// silently, when the tool is missing.
    void changeButtonsMode(ButtonsRequest request);
    /// Puts axes and buttons into programmed or pure Windows mode, and waits for the tool. False
    /// when the program ends meanwhile: the caller then touches nothing any more.
    bool changeWholeMode(bool programmed);
    /// Changes the axes' mode (0 Windows, 1 user defined), and waits for the tool.
    void mnuAxesModeArray_Click(int index);
    /// Puts the buttons into Windows mode at once, for Shift+Break.
    void emergencyOff();

    /// Starts the detector again with the stored interval. Throws std::overflow_error for an
    /// interval of 33 s or more; the guard around the handler tells it.
    void EnableStatusTimer();
    /// Shows the mode that was last reported, as the detector does at each tick.
    void ShowCougarMode();
    /// Calls ShowCougarMode() if the detector runs.
    void showIfDetecting();
    /// Whether the controller of the stored number answers.
    bool IsJoyConnected();
    /// Tells the last reported mode in panel 1 and in panel 2's tooltip.
    void UpdateStatusTooltip();
    bool detectorRuns() const { return m_timer.isActive(); }
    /// A click on panel 2: the left button switches the selector on, or the buttons to their other
    /// mode; the right one switches the selector off. Throws as EnableStatusTimer() does.
    void panelClicked(Qt::MouseButton button);

    const QString &tooltip() const { return m_tooltip; }

Q_SIGNALS:
    /// Panel 2 has another tooltip now.
    void tooltipChanged(const QString &tooltip);

private:
    bool toolIsThere() const;
    bool waitedRequest(ConfigCommand command, const QString &panel);
    /// False when the program ends meanwhile.
    bool change(ModeChange change);
    void leftClick();
    void switchOff();
    ModePicture picture() const;
    void setPicture(ModePicture picture);
    void setTooltip(const QString &tooltip);
    ModeReport report() const;
    bool isJoystickMissed();

    Context m_context;
    ToolchainHandshake &m_handshake;
    Joystick &m_joystick;
    QTimer m_timer;
    QString m_tooltip;
};

} // namespace zeph
