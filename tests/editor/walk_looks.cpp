// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/editor/walk.h"
#include "text/text_styles.h"

#include <algorithm>

namespace zeph::test {

namespace {

void colourOne(Walk &walk)
{
    const DocumentKind kind = bothKinds[walk.upTo(1)];
    walk.model.colour(kind);
    walk.trigger(kind == DocumentKind::Joystick ? u"mnuViewColourJoystick" : u"mnuViewColourMacro");
}

void colourBoth(Walk &walk)
{
    const DocumentKind before = walk.document().kind();
    for (const DocumentKind kind : bothKinds) {
        WalkDocument &each = walk.model.of(kind).document;
        const int anchor = each.anchor();
        const int caret = each.caret();
        walk.model.colour(kind);
        each.put(anchor, caret);
    }
    walk.model.select(before);
    walk.trigger(u"mnuViewApplyColourBothFiles");
}

void colourLine(Walk &walk)
{
    walk.document().begin();
    const QString &text = walk.document().text();
    const qsizetype from = text.left(walk.document().selStart()).lastIndexOf(u'\n') + 1;
    const qsizetype end = text.indexOf(u'\n', walk.document().selStart());
    walk.document().paint(from, (end < 0 ? text.size() : end) - from, typingPasses());
    walk.document().commit();
    walk.trigger(u"mnuViewHighlightLine");
}

void removeColour(Walk &walk)
{
    const bool isSelection = walk.oneIn(2);
    WalkDocument &from =
        isSelection ? walk.document() : walk.model.of(bothKinds[walk.upTo(1)]).document;
    const CharFormat plain = from.plainLook().format;
    const auto take = [&plain](WalkLook &look) {
        look.format.colour = plain.colour;
        look.format.bold = look.format.italic = look.format.underline = false;
        look.isColourByHand = false;
    };
    if (isSelection) {
        from.changeLooks(from.selStart(), from.selLength(), take);
    } else {
        from.changeLooks(0, from.text().size(), take);
    }
    walk.trigger(isSelection                                 ? u"mnuRemoveColourSelectedText"
                     : from.kind() == DocumentKind::Joystick ? u"mnuRemoveColourJoystick"
                                                             : u"mnuRemoveColourMacro");
}

void refreshLayout(Walk &walk)
{
    const WalkLook plain = walk.document().plainLook();
    if (!walk.document().text().isEmpty()) {
        walk.document().changeLooks(0, walk.document().text().size(),
                                    [&plain](WalkLook &look) { look = plain; });
        walk.document().store();
    }
    walk.trigger(u"mnuViewReformat");
}

void refreshIndent(Walk &walk)
{
    if (!walk.document().text().isEmpty()) {
        walk.document().store();
    }
    walk.trigger(u"mnuViewrefreshIndent");
}

void giveLook(Walk &walk, const std::function<void(WalkLook &)> &change, QStringView entry)
{
    if (walk.document().selLength() > 0) {
        walk.document().begin();
        walk.document().changeLooks(walk.document().selStart(), walk.document().selLength(),
                                    change);
        walk.document().commit();
    } else {
        WalkLook look = walk.document().typingLook();
        change(look);
        walk.document().choose(look);
    }
    walk.trigger(entry);
}

void giveFlag(Walk &walk)
{
    if (walk.oneIn(2)) {
        walk.selectSome();
    }
    constexpr bool CharFormat::*flags[] = { &CharFormat::bold, &CharFormat::italic,
                                            &CharFormat::underline };
    const int index = walk.upTo(2);
    const auto flag = flags[index];
    const WalkText chosen =
        walk.document().now().mid(walk.document().selStart(), walk.document().selLength());
    const bool isOn = chosen.looks.empty()
        ? walk.document().typingLook().format.*flag
        : std::ranges::all_of(chosen.looks,
                              [flag](const WalkLook &look) { return look.format.*flag; });
    giveLook(
        walk, [flag, isOn](WalkLook &look) { look.format.*flag = !isOn; },
        u"mnuFormatArray1_"_s + QString::number(index));
}

void giveStyle(Walk &walk)
{
    if (walk.oneIn(2)) {
        walk.selectSome();
    }
    const int index = walk.upTo(8);
    const CharFormat style = defaultTextStyles()[size_t(index)].format;
    giveLook(
        walk,
        [&style](WalkLook &look) {
            look.isColourByHand = look.isColourByHand || look.format.colour != style.colour;
            look.format = style;
        },
        u"mnuStyleArray_"_s + QString::number(index));
}

constexpr WalkAction allLooks[] = {
    { "colour a file", 2, colourOne },          { "colour both", 2, colourBoth },
    { "colour the line", 3, colourLine },       { "remove colour", 2, removeColour },
    { "refresh layout", 1, refreshLayout },     { "refresh indent", 1, refreshIndent },
    { "bold, italic, underline", 4, giveFlag }, { "style", 4, giveStyle },
};

} // namespace

std::span<const WalkAction> lookActions()
{
    return allLooks;
}

} // namespace zeph::test
