// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What every file of Zeph uses: the result type and the string literals.

#include <QString>

#include <tl/expected.hpp>

namespace zeph {

using namespace Qt::StringLiterals;

/// A value, or the reason why there is none. Becomes std::expected once every compiler has it.
template <class T, class E> using Expected = tl::expected<T, E>;

template <class E> using Unexpected = tl::unexpected<E>;

} // namespace zeph
