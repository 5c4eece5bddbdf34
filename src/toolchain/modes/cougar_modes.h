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

/// What the buttons are asked to do; the numbers are the menu's indices.
enum class ButtonsRequest { Windows = 0, Programmed = 1, ReportOnly = 2 };

/// The Cougar's modes: the requests, which go out through the configuration tool, and the detector,
/// which asks the hardware nothing but rereads what the tools last wrote into HOTAS.ini and shows
/// it as the status line's mode picture.
class CougarModes : public QObject
{
    Q_OBJECT
public:
    CougarModes(const Context &context, ToolchainHandshake &handshake, Joystick &joystick,
                QObject *parent = nullptr);

    /// What the settings want at the start of a run: the mode reported, the detector on. Fails as
    /// EnableStatusTimer() does.
    void startOfRun();

    /// Changes the buttons' mode or has it reported. Not waited for. Does nothing, silently,
    /// without the tool.
    void changeButtonsMode(ButtonsRequest request);
    /// Axes and buttons into programmed or pure Windows mode; waits for the tool. False when the
    /// program ends meanwhile: the caller then touches nothing any more.
    bool changeWholeMode(bool programmed);
    /// The axes alone: 0 Windows, 1 user defined. Waits.
    void mnuAxesModeArray_Click(int index);
    /// Shift+Break: the buttons into Windows mode at once.
    void emergencyOff();

    /// Starts the detector afresh with the stored interval; an interval of 33 s or more is an
    /// overflow, which is thrown for the guard of the handler to tell.
    void EnableStatusTimer();
    /// Shows the mode that was last reported; what the detector does at each tick.
    void ShowCougarMode();
    /// Whether the controller of the stored number answers.
    bool IsJoyConnected();
    /// Tells the last reported mode in panel 1 and in panel 2's tooltip.
    void UpdateStatusTooltip();
    bool detectorRuns() const { return m_timer.isActive(); }
    /// The mouse on panel 2: the left button switches the selector on or the buttons over, the
    /// right one switches the selector off. Fails as EnableStatusTimer() does.
    void panelClicked(Qt::MouseButton button);

    const QString &tooltip() const { return m_tooltip; }

Q_SIGNALS:
    /// Panel 2's tooltip.
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
