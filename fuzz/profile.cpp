// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Any file and any entry: nothing crashes, what is written is read back, and nothing else changes.

#include "platform/core/profile_file.h"
#include "platform/core/text1252.h"

#include <cstdint>
#include <cstdlib>

using namespace zeph;

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// Cuts a text off the input's front; its first byte is the length.
QString take(QByteArrayView &input)
{
    constexpr qsizetype longest = 24;
    if (input.isEmpty()) {
        return {};
    }
    const qsizetype length = std::min(qsizetype(uchar(input.front())) % longest, input.size() - 1);
    const QString text = fromText1252(input.sliced(1, length));
    input = input.sliced(1 + length);
    return text;
}

QString trimmed(const QString &name)
{
    qsizetype from = 0;
    qsizetype to = name.size();
    const auto isBlank = [&name](qsizetype i) {
        return name[i] == u' ' || name[i] == u'\t';
    };
    while (from < to && isBlank(from)) {
        ++from;
    }
    while (to > from && isBlank(to - 1)) {
        --to;
    }
    return name.sliced(from, to - from);
}

bool isOneLine(const QString &text)
{
    return !text.contains(u'\n') && !text.contains(u'\r') && !text.contains(QChar(0));
}

bool canHold(const ProfileEntry &entry)
{
    const QString key = trimmed(entry.key);
    return isOneLine(key) && isOneLine(entry.section) && isOneLine(entry.value)
        && !entry.section.contains(u']') && !key.isEmpty() && !key.startsWith(u';')
        && !key.startsWith(u'[') && !key.contains(u'=');
}

bool isSame(const QString &one, const QString &two)
{
    return trimmed(one).compare(trimmed(two), Qt::CaseInsensitive) == 0;
}

/// One stretch was replaced: no line end may have gone, and nothing at all if the key was not
/// there.
void requireOneChange(const QByteArray &before, const QByteArray &after, bool wasThere)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype front = 0;
    while (front < shorter && before[front] == after[front]) {
        ++front;
    }
    qsizetype back = 0;
    while (back < shorter - front
           && before[before.size() - 1 - back] == after[after.size() - 1 - back]) {
        ++back;
    }
    const QByteArray gone = before.sliced(front, before.size() - front - back);
    require(!gone.contains('\n') && !gone.contains('\r'));
    require(wasThere || gone.isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArrayView input(data, qsizetype(size));
    const ProfileEntry entry{ take(input), take(input), take(input) };
    const QString otherSection = take(input);
    const QString otherKey = take(input);
    const QByteArray before = input.toByteArray();

    const auto was = profile::value(before, entry.section, entry.key);
    (void)profile::integerOf(was, 0);
    const QByteArray after = profile::withValue(before, entry);
    requireOneChange(before, after, was.has_value());
    require(profile::withValue(after, entry) == after);
    if (canHold(entry)) {
        require(profile::value(after, entry.section, entry.key) == entry.value);
    }
    if (!isSame(otherSection, entry.section) || !isSame(otherKey, entry.key)) {
        require(profile::value(after, otherSection, otherKey)
                == profile::value(before, otherSection, otherKey));
    }
    return 0;
}
