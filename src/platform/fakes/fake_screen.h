// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/system_info.h"

namespace zeph {

/// A screen for tests, with what they set.
class FakeScreen : public Screen
{
public:
    int dpi = 96;
    QSize pixels{ 1920, 1080 };

    int logicalDpi() const override { return dpi; }
    QSize size() const override { return pixels; }
};

} // namespace zeph
