// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/dialogs.h"

#include <exception>
#include <utility>

namespace zeph {

/// Tells what escaped a handler. The only box for failures that nobody expected.
void tellEscaped(Dialogs &dialogs, const QString &reason);

/// Wraps a slot that can fail: nothing that it throws reaches the event loop.
template <class Slot> auto guarded(Dialogs &dialogs, Slot slot)
{
    return [&dialogs, slot = std::move(slot)](auto &&...arguments) mutable {
        try {
            slot(std::forward<decltype(arguments)>(arguments)...);
        } catch (const std::exception &error) {
            tellEscaped(dialogs, QString::fromLocal8Bit(error.what()));
        } catch (...) {
            tellEscaped(dialogs, u"Unknown failure"_s);
        }
    };
}

} // namespace zeph
