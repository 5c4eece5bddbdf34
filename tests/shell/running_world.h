// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/shell/shell_world.h"

#include <memory>

namespace zeph::test {

/// The world with the whole program running in it, which goes before the world does.
class RunningWorld : public ShellWorld
{
public:
    std::unique_ptr<Application> app;

    /// Starts it past its first run, with more in the store.
    void start(const QByteArray &store = {})
    {
        writeStore(store);
        app = application();
        ASSERT_TRUE(app->start());
    }
    void TearDown() override
    {
        app.reset();
        ShellWorld::TearDown();
    }
};

} // namespace zeph::test
