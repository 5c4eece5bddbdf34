// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/editor_world.h"
#include "tests/support/fixture.h"

#include <QDir>

namespace zeph::test {

using EditorTest = TestIn<EditorWorld>;

} // namespace zeph::test
