// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the tests of generators share.

#include "composer/generators/generators.h"
#include "language/checker.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace zeph {

/// The text of a statement, or "title: text" of a refusal.
inline QString toldBy(const Generated &generated)
{
    if (generated)
        return generated->text();
    return generated.error().title + u": "_s + generated.error().text;
}

/// What the compiler's checks find in a joystick file; empty when it is good.
inline QStringList findingsIn(const QString &joystick)
{
    QStringList messages;
    for (const language::Finding &finding : language::check(language::parsePair(joystick, {})))
        messages.append(finding.message);
    return messages;
}

} // namespace zeph
