// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/modes/cougar_modes.h"

#include "platform/dialogs.h"
#include "platform/input/joystick.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/tool_messages.h"
#include "toolchain/toolchain_settings.h"

#include <QCoreApplication>

#include <array>
#include <stdexcept>

namespace zeph {

namespace {

constexpr QStringView selectorIsOn = u"Cougar mode selector is on";
constexpr QStringView selectorIsOff = u"Cougar mode selector is off";

struct RequestRow {
    ConfigCommand command;
    QStringView panel;
};

/// In the order of ButtonsRequest.
constexpr std::array buttonsRequests = {
    RequestRow{ ConfigCommand::ButtonsWindows, u" Changing to Windows buttons mode - hold on ..." },
    RequestRow{ ConfigCommand::ButtonsProgrammed,
                u" Changing to Programmed buttons mode - hold on ..." },
    RequestRow{ ConfigCommand::ReportMode, u" Initialising mode information ..." },
};

/// Lets the interface draw and its timers tick. Keys and clicks have to wait, so that a key held
/// down or a second click cannot start a request inside this one.
void yieldOnce()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

CougarModes::CougarModes(const Context &context, ToolchainHandshake &handshake, Joystick &joystick,
                         QObject *parent)
    : QObject(parent), m_context(context), m_handshake(handshake), m_joystick(joystick),
      m_tooltip(selectorIsOff.toString())
{
    m_timer.setObjectName(u"TimerStickMode"_s);
    m_timer.setParent(this);
    connect(&m_timer, &QTimer::timeout, this,
            [tick = guarded(context.dialogs, [this] { ShowCougarMode(); })]() mutable { tick(); });
}

void CougarModes::startOfRun()
{
    if (m_context.settings.of<ToolchainSettings>().SynchroniseModeOnStartup) {
        changeButtonsMode(ButtonsRequest::ReportOnly);
    }
    if (m_context.settings.of<ToolchainSettings>().StatusDetectOnStartup) {
        EnableStatusTimer();
    }
}

bool CougarModes::toolIsThere() const
{
    return fileExists(m_context.paths.config());
}

void CougarModes::changeButtonsMode(ButtonsRequest request)
{
    if (!toolIsThere()) {
        return;
    }
    const RequestRow &row = buttonsRequests[size_t(request)];
    m_context.status.setText(row.panel.toString());
    const auto started = m_context.launcher.start(configLaunch(m_context.paths, row.command));
    if (!started) {
        m_context.dialogs.tell(u"Unable to run the Thrustmaster software"_s, started.error(),
                               BoxIcon::Exclamation);
    }
    yieldOnce();
    showIfDetecting();
}

bool CougarModes::changeWholeMode(bool programmed)
{
    return programmed
        ? waitedRequest(ConfigCommand::AllProgrammed,
                        u" Switching Cougar to Programmed mode ... please wait .."_s)
        : waitedRequest(ConfigCommand::PureWindows,
                        u" Switching Cougar to pure Windows mode ... please wait .."_s);
}

void CougarModes::mnuAxesModeArray_Click(int index)
{
    const bool windows = index == 0;
    const auto turn = m_handshake.commands().turn(windows ? u"the change to Windows axes"_s
                                                          : u"the change to user defined axes"_s,
                                                  [this, index] { mnuAxesModeArray_Click(index); });
    if (turn) {
        waitedRequest(windows ? ConfigCommand::AxesWindows : ConfigCommand::AxesUserDefined,
                      u" Changing axis mode - hold on this may take some time ..."_s);
    }
}

/// False when the program ends meanwhile.
bool CougarModes::waitedRequest(ConfigCommand command, const QString &panel)
{
    if (!toolIsThere()) {
        return true;
    }
    m_context.status.setText(panel);
    const ExchangeEnd end = m_handshake.runModeRequest(configLaunch(m_context.paths, command));
    if (end == ExchangeEnd::Abandoned) {
        return false;
    }
    if (end == ExchangeEnd::GivenUp) {
        m_context.dialogs.box(modeTimeOutBox());
    }
    m_context.status.setText(panelAfterModeWait(end != ExchangeEnd::Verdict));
    showIfDetecting();
    return true;
}

void CougarModes::emergencyOff()
{
    m_context.status.setText(
        u" An emergency request to turn the Cougar programmed mode off has been sent."_s);
    changeButtonsMode(ButtonsRequest::Windows);
    yieldOnce();
    m_context.status.setText(u" Control has been returned to Zeph"_s);
}

void CougarModes::EnableStatusTimer()
{
    m_timer.stop();
    const auto interval =
        detectorInterval(m_context.settings.of<ToolchainSettings>().StatusMonitoringInterval);
    if (!interval) {
        throw std::overflow_error("Overflow");
    }
    m_timer.setInterval(*interval);
    ShowCougarMode();
    m_timer.start();
}

void CougarModes::ShowCougarMode()
{
    setTooltip(selectorIsOn.toString());
    const ModePicture reported = pictureOf(report().Buttons);
    setPicture(isJoystickMissed() ? ModePicture::Unknown : reported);
}

void CougarModes::showIfDetecting()
{
    if (detectorRuns()) {
        ShowCougarMode();
    }
}

bool CougarModes::IsJoyConnected()
{
    return m_joystick.read(m_context.settings.of<ToolchainSettings>().JoyIDnumber).result
        == Joystick::answered;
}

/// Whether the settings want a controller that does not answer.
bool CougarModes::isJoystickMissed()
{
    return m_context.settings.of<ToolchainSettings>().JoyTestConnect && !IsJoyConnected();
}

void CougarModes::UpdateStatusTooltip()
{
    const ModeReport last = report();
    const QString text = isJoystickMissed()
        ? noJoystickInWords(m_context.settings.of<ToolchainSettings>().JoyIDnumber)
        : reportInWords(last.Axes, last.Buttons);
    m_context.status.setText(text);
    setTooltip(text);
}

void CougarModes::panelClicked(Qt::MouseButton button)
{
    if (button == Qt::LeftButton && m_context.settings.of<ToolchainSettings>().PureWindows) {
        const auto turn = m_handshake.commands().turn(u"the change of the mode"_s,
                                                      [this, button] { panelClicked(button); });
        if (turn) {
            leftClick();
        }
    } else if (button == Qt::LeftButton) {
        leftClick();
    } else if (button == Qt::RightButton) {
        switchOff();
    }
}

void CougarModes::leftClick()
{
    const ModePicture clicked = picture();
    if (clicked == ModePicture::SelectorOff) {
        ShowCougarMode();
    }
    // The first click switches the detector on, whether or not there is a mode to change.
    if (change(changeAtClick(clicked, report().Buttons))) {
        EnableStatusTimer();
    }
}

/// False when the program ends meanwhile.
bool CougarModes::change(ModeChange change)
{
    if (change == ModeChange::None) {
        return true;
    }
    const bool programmed = change == ModeChange::ToProgrammed;
    if (m_context.settings.of<ToolchainSettings>().PureWindows) {
        return changeWholeMode(programmed);
    }
    changeButtonsMode(programmed ? ButtonsRequest::Programmed : ButtonsRequest::Windows);
    return true;
}

void CougarModes::switchOff()
{
    if (detectorRuns()) {
        m_timer.stop();
        setTooltip(selectorIsOff.toString());
        setPicture(ModePicture::SelectorOff);
    }
}

ModePicture CougarModes::picture() const
{
    return ModePicture(m_context.status.modePicture());
}

void CougarModes::setPicture(ModePicture picture)
{
    m_context.status.setModePicture(int(picture));
}

void CougarModes::setTooltip(const QString &tooltip)
{
    if (m_tooltip != tooltip) {
        m_tooltip = tooltip;
        Q_EMIT tooltipChanged(tooltip);
    }
}

ModeReport CougarModes::report() const
{
    return HotasIni(m_context.paths.hotasIni()).readMode();
}

} // namespace zeph
