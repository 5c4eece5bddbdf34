// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zeph::test {

/// A fixture whose tests see the members of a world.
template <class Layer> class TestIn : public testing::Test, public Layer
{
};

using WorldTest = TestIn<World>;

} // namespace zeph::test
