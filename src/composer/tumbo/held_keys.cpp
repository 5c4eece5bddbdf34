// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/held_keys.h"

#include "language/model.h"
#include "livetools/board_keys.h"
#include "text/text_lines.h"

namespace zeph {

namespace {

struct Move {
    const BoardKey *key = nullptr; ///< null when nothing moves
    bool isDown = false;
};

/// What a word does among the keys in the brackets of a call.
Move moveOf(QStringView call, QStringView word)
{
    if (call == u"KD"_w || call == u"KU"_w) {
        return { boardKeyNamed(word), call == u"KD"_w };
    }
    const QChar way = call == u"USB"_w ? word.front().toUpper() : QChar();
    const bool isCode = way == u'D' || way == u'U';
    return { isCode ? boardKeyCoded(word.sliced(1)) : nullptr, way == u'D' };
}

} // namespace

std::set<int> keysHeldBy(const QString &statement)
{
    using namespace language;
    // The control does not matter: only what a control has is read.
    const JoystickFile file = parsePair(u"BTN S1 "_s + statement, {}).joystick;
    std::set<int> held;
    for (const Item &item : file.items) {
        if (item.parent < 0 || file.items[item.parent].kind != ItemKind::Call) {
            continue;
        }
        const Word &call = words[size_t(file.items[item.parent].reference)];
        const Move move = moveOf(call.text, file.at(item));
        if (move.key && move.isDown) {
            held.insert(move.key->index);
        } else if (move.key) {
            held.erase(move.key->index);
        }
    }
    return held;
}

} // namespace zeph
