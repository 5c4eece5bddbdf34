// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Qt>

/// The keys that somebody types one after the other: words of five letters, lines of ten words. One
/// word without an end would cost more with each key, as its line is laid out anew.
inline Qt::Key typedKey(int number)
{
    constexpr int keysPerWord = 6;
    constexpr int keysPerLine = 60;
    if (number % keysPerLine == keysPerLine - 1) {
        return Qt::Key_Return;
    }
    return number % keysPerWord == keysPerWord - 1 ? Qt::Key_Space : Qt::Key_A;
}
