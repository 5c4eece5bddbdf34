// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/watch.h"

#include <gmock/gmock.h>

#include <QCoreApplication>

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    zeph::test::failOnWarnings();
    return RUN_ALL_TESTS();
}
