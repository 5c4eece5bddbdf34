// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/cougar_modes.h"

namespace zeph {

CougarModes::CougarModes(const Context &context, ToolchainHandshake &handshake, Joystick &joystick,
                         QObject *parent)
    : QObject(parent), m_context(context), m_handshake(handshake), m_joystick(joystick)
{
}

void CougarModes::changeButtonsMode(ButtonsRequest) { }

bool CougarModes::changeWholeMode(bool)
{
    return true;
}

void CougarModes::mnuAxesModeArray_Click(int) { }

void CougarModes::emergencyOff() { }

void CougarModes::EnableStatusTimer() { }

void CougarModes::ShowCougarMode() { }

bool CougarModes::IsJoyConnected()
{
    return false;
}

void CougarModes::UpdateStatusTooltip() { }

void CougarModes::panelClicked(Qt::MouseButton) { }

} // namespace zeph
