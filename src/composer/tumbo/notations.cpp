// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/notations.h"

#include "composer/wizards/macro_lines.h"
#include "language/words.h"
#include "text/text_lines.h"

namespace zeph {

namespace {

constexpr QChar make = u'D';
constexpr QChar release = u'U';

QString codeOf(QChar way, QStringView code)
{
    return code.isEmpty() ? QString() : way + code.toString();
}

QString inBrackets(QStringView word, const QString &text)
{
    return word.toString() + u" ("_s + text + u')';
}

QString remOf(const QString &syntax)
{
    return u" Rem '"_s + syntax + u'\'';
}

/// Where the text has the slash modifier in upper case; -1 when nowhere.
qsizetype slashIn(const QString &text, QStringView modifier)
{
    qsizetype at = text.indexOf(modifier);
    while (at >= 0 && language::slashAt(text, at) < 0) {
        at = text.indexOf(modifier, at + 1);
    }
    return at;
}

} // namespace

void addModifiers(KeyStrings &strings, const QString &modifiers, CodeView view)
{
    const QStringList words = modifiers.split(u' ', Qt::SkipEmptyParts);
    QString presses;
    QString releases;
    for (const BoardModifier &row : boardModifiers()) {
        if (!words.contains(row.word) && !words.contains(row.key)) {
            continue;
        }
        const bool isName = view == CodeView::KdKu;
        const QStringView code = boardKeyNamed(row.key)->code;
        presses += (isName ? row.key.toString() : codeOf(make, code)) + u' ';
        releases.prepend(u' ' + (isName ? row.key.toString() : codeOf(release, code)));
    }
    strings.MakeCodes.prepend(presses);
    strings.BreakCodes.append(releases);
    strings.CombinedCodes = strings.MakeCodes + u' ' + strings.BreakCodes;
}

KeyStrings GetKeystrings(const BoardKey &key, const KeyToggles &toggles, CodeView view,
                         bool useShfKey)
{
    const bool isSymbol = !useShfKey && toggles.shift && !key.shifted.isEmpty();
    KeyStrings strings;
    strings.KeySyntax = (isSymbol ? key.shifted : key.name).toString();
    if (view == CodeView::KdKu) {
        strings.MakeCodes = strings.KeySyntax;
        strings.BreakCodes = strings.KeySyntax;
    } else {
        strings.MakeCodes = codeOf(make, key.code);
        strings.BreakCodes = codeOf(release, key.code);
    }
    // The symbol says that Shift is held; the codes have to press it all the same.
    KeyToggles inSyntax = toggles;
    inSyntax.shift = toggles.shift && !isSymbol;
    strings.KeySyntax.prepend(GetModifier(inSyntax));
    addModifiers(strings, GetModifier(toggles), view);
    return strings;
}

QString statementText(Notation notation, const QString &text, CodeView view, bool withBrackets)
{
    if (text.isEmpty() || notation == Notation::Syntax || !withBrackets) {
        return text;
    }
    if (view == CodeView::Usb || notation == Notation::Combined) {
        return inBrackets(u"USB"_w, text);
    }
    return inBrackets(notation == Notation::Make ? u"KD"_w : u"KU"_w, text);
}

QString pressAndReleaseStatement(const KeyStrings &strings, CodeView view)
{
    if (strings.KeySyntax.isEmpty() || strings.MakeCodes.isEmpty()
        || strings.BreakCodes.isEmpty()) {
        return {};
    }
    const bool isName = view == CodeView::KdKu;
    return u"/P %1(%2) /R %3(%4)"_s.arg(isName ? u"KD"_w : u"USB"_w, strings.MakeCodes,
                                        isName ? u"KU"_w : u"USB"_w, strings.BreakCodes)
        + remOf(strings.KeySyntax);
}

QString combinedWithRem(const KeyStrings &strings)
{
    if (strings.KeySyntax.isEmpty() || strings.CombinedCodes.isEmpty()) {
        return {};
    }
    return inBrackets(u"USB"_w, strings.CombinedCodes) + remOf(strings.KeySyntax);
}

Generated statementToInsert(const QString &statement)
{
    const qsizetype in = slashIn(statement, u"/I"_w);
    const qsizetype out = slashIn(statement, u"/O"_w);
    if (in < 0 || out < 0) {
        return plainStatement(statement, false);
    }
    if (out < in) {
        return Unexpected<Refusal>({ u"Incorrect modifier order buddy"_s,
                                     u"/I must come before /O in a statement, with the /O "
                                     "statement appearing on a different line."_s });
    }
    return plainStatement(QString(statement).insert(out, u'\n'), false);
}

QString macroLine(const QString &name, const QString &statement)
{
    return statement.isEmpty() ? QString() : previewOf(name, statement);
}

} // namespace zeph
