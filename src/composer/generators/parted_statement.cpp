// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/parted_statement.h"

#include "language/scan.h"
#include "language/use_forms.h"

namespace zeph {

using namespace language;

namespace {

QString withoutComments(QStringView statement)
{
    QStringList lines;
    LineReader reader(statement);
    Line line;
    while (reader.next(line)) {
        if (line.codeEnd > line.first)
            lines.append(statement.sliced(line.first, line.codeEnd - line.first).toString());
    }
    return lines.join(u' ');
}

// The items outside all brackets.
QList<int> topLevel(const Source &source, Range items)
{
    QList<int> parts;
    for (int index = items.first; index < items.end; index = source.items[index].endItem)
        parts.append(index);
    return parts;
}

bool choosesDefinition(const Item &item)
{
    if (item.kind != ItemKind::Slash)
        return false;
    const SlashLevel level = slashModifiers[size_t(item.reference)].level;
    return level == SlashLevel::Dogfight || level == SlashLevel::S3;
}

bool beginsDefinition(const Source &source, const QList<int> &parts, qsizetype slash)
{
    qsizetype next = slash;
    while (next < parts.size() && source.items[parts[next]].kind == ItemKind::Slash)
        ++next;
    if (next == parts.size())
        return false;
    const Item &item = source.items[parts[next]];
    const int type = wholeNumber(source.at(item)).value_or(0);
    return item.kind == ItemKind::Group
        || (item.kind == ItemKind::Number && type >= 1 && type <= lastAxisType);
}

} // namespace

PartedStatement::PartedStatement(const QString &text)
    : m_pair(std::make_shared<const FilePair>(parsePair(text, {})))
{
    if (!m_pair->joystick.statements.isEmpty())
        m_parts = topLevel(m_pair->joystick, statement().body.items);
}

std::optional<PartedStatement> PartedStatement::of(QStringView statement)
{
    // On a line of its own a word may begin a statement that it does not begin in another's line.
    if (parsePair(statement.toString(), {}).joystick.statements.size() != 1)
        return {};
    PartedStatement parts(withoutComments(statement));
    const JoystickFile &file = parts.m_pair->joystick;
    if (file.statements.size() != 1 || !file.strayBrackets.isEmpty())
        return {};
    return parts;
}

QStringView PartedStatement::useHead() const
{
    const int form = statement().useForm;
    return form < 0 ? QStringView() : useForms()[size_t(form)].head;
}

QStringList PartedStatement::head() const
{
    const Place &whole = statement().place;
    const qsizetype end = m_parts.isEmpty() ? whole.end() : (*this)[0].place.position;
    return m_pair->joystick.text.sliced(whole.position, end - whole.position)
        .simplified()
        .split(u' ', Qt::SkipEmptyParts);
}

bool PartedStatement::isWords(QStringView words) const
{
    QStringList own = head();
    for (int part = 0; part < size(); ++part)
        own.append(text(part).toString());
    return std::ranges::equal(own, words.split(u' ', Qt::SkipEmptyParts), sameWord);
}

QStringView PartedStatement::text(int from, int to) const
{
    if (from >= to)
        return {};
    // Brackets that are never closed end with their last item, which may end with a bracket itself.
    // So a part goes up to the next one.
    const qsizetype start = (*this)[from].place.position;
    const qsizetype end = to < size() ? (*this)[to].place.position : statement().place.end();
    const QStringView text = QStringView(m_pair->joystick.text).sliced(start, end - start);
    return text.first(trimmedEnd(text));
}

bool PartedStatement::isWord(int part, QStringView word) const
{
    return part < size() && sameWord(text(part), word);
}

QStringView PartedStatement::word(int part) const
{
    const QStringView whole = text(part);
    switch ((*this)[part].kind) {
    case ItemKind::Call:
        return whole.first(nameEnd(whole, 0));
    case ItemKind::Group:
        return {};
    default:
        return whole;
    }
}

std::optional<QStringView> PartedStatement::inside(int part) const
{
    const ItemKind kind = (*this)[part].kind;
    if (kind != ItemKind::Call && kind != ItemKind::Group)
        return {};
    const QStringView whole = m_pair->joystick.at((*this)[part]);
    const qsizetype bracket = kind == ItemKind::Call ? whole.indexOf(u'(') : 0;
    return whole.sliced(bracket + 1).chopped(1);
}

std::optional<Arguments> PartedStatement::groupArguments(int part) const
{
    if (part >= size() || (*this)[part].kind != ItemKind::Group || !(*this)[part].closed
        || !text(part).startsWith(u'('))
        return {};
    return argumentsOf(m_pair->joystick, (*this)[part]);
}

std::optional<Arguments> PartedStatement::callArguments(int part, QStringView word) const
{
    if (part >= size() || (*this)[part].kind != ItemKind::Call || !(*this)[part].closed
        || words[size_t((*this)[part].reference)].text != word)
        return {};
    return argumentsOf(m_pair->joystick, (*this)[part]);
}

int PartedStatement::slash(int part) const
{
    const bool isSlash = part < size() && (*this)[part].kind == ItemKind::Slash;
    return isSlash ? (*this)[part].reference : -1;
}

int indexIn(Words list, QStringView text)
{
    const auto found =
        std::ranges::find_if(list, [text](QStringView word) { return sameWord(word, text); });
    return found == list.end() ? -1 : int(found - list.begin());
}

std::optional<QString> spelledAs(Words list, QStringView text)
{
    const int index = indexIn(list, text);
    return index < 0 ? std::nullopt : std::optional(list[size_t(index)].toString());
}

QList<Place> statementHalves(QStringView statement)
{
    const FilePair pair = parsePair(statement.toString(), {});
    const JoystickFile &file = pair.joystick;
    if (file.statements.isEmpty())
        return {};
    const JoystickStatement &whole = file.statements.first();
    const QList<int> parts = topLevel(file, whole.body.items);
    // The word CURVE is in the body, an axis is not.
    const qsizetype head = whole.kind == StatementKind::Curve ? 1 : 0;
    QList<Place> halves{ whole.place };
    for (qsizetype part = head + 1; part < parts.size(); ++part) {
        const Item &before = file.items[parts[part - 1]];
        const Item &item = file.items[parts[part]];
        if (before.kind == ItemKind::Slash || !choosesDefinition(item)
            || !beginsDefinition(file, parts, part))
            continue;
        halves.last().length = before.place.end() - halves.last().position;
        halves.append(
            { item.place.position, whole.place.end() - item.place.position, item.place.line });
    }
    return halves;
}

std::optional<Place> callAt(QStringView statement, qsizetype position)
{
    const FilePair pair = parsePair(statement.toString(), {});
    const QList<Item> &items = pair.joystick.items;
    // A call comes before the calls in its brackets.
    for (qsizetype index = items.size() - 1; index >= 0; --index) {
        const Item &item = items[index];
        if (item.kind != ItemKind::Call || !item.closed || position < item.place.position
            || position > item.place.end())
            continue;
        const bool isCurve = words[size_t(item.reference)].text == u"CURVE"_w;
        const Item *before = index > 0 ? &items[index - 1] : nullptr;
        constexpr std::array events{ u"/P"_w, u"/R"_w, u"/T"_w };
        if (!isCurve || !before || indexIn(events, pair.joystick.at(*before)) < 0)
            return item.place;
        const qsizetype start = before->place.position;
        return Place{ start, item.place.end() - start, before->place.line };
    }
    return {};
}

} // namespace zeph
