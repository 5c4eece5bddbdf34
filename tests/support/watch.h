// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

namespace zeph::test {

/// Makes every run-time warning of the toolkit a failure of the test that is running.
void failOnWarnings();

} // namespace zeph::test
