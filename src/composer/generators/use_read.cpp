// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The way back: from a statement to the fields of the page "Use / Misc.".

#include "composer/generators/use_insert.h"

#include "composer/generators/use_lists.h"
#include "composer/generators/use_tables.h"
#include "language/file_kinds.h"
#include "language/model.h"
#include "language/scan.h"
#include "language/use_forms.h"
#include "text/use_statements.h"

#include <algorithm>

namespace zeph {

namespace use {

using language::Item;
using language::ItemKind;
using language::JoystickStatement;
using language::sameWord;
using language::StatementKind;

namespace {

/// A text that is one statement, and nothing else.
class Parted
{
public:
    explicit Parted(QStringView text)
        : m_file(language::parsePair(text.toString(), {}).joystick),
          m_isOne(m_file.statements.size() == 1)
    {
    }

    bool isOne() const { return m_isOne; }
    const JoystickStatement &statement() const { return m_file.statements.first(); }
    QStringView at(const language::Place &place) const { return m_file.at(place); }

    /// The words of its USE form; empty when it has none.
    QStringView form() const
    {
        const int form = statement().useForm;
        return form < 0 ? QStringView() : language::useForms()[size_t(form)].head;
    }
    /// The rest of its line after a USE form that takes it; no value when more follows, on other
    /// lines, or for other statements.
    std::optional<QStringView> restAfter(QStringView head) const
    {
        if (form() != head || !statement().body.items.isEmpty())
            return {};
        return at(statement().tail);
    }
    /// Its body, if that is a word with brackets and nothing else.
    const Item *onlyCall() const
    {
        const language::Range items = statement().body.items;
        if (items.isEmpty())
            return nullptr;
        const Item &item = m_file.items[items.first];
        const bool isAll = item.endItem == items.end;
        return isAll && item.kind == ItemKind::Call && item.closed ? &item : nullptr;
    }
    QStringView nameOf(const Item &call) const
    {
        const QStringView text = m_file.at(call);
        return text.first(language::nameEnd(text, 0));
    }
    QStringView argumentsOf(const Item &call) const
    {
        const QStringView text = m_file.at(call);
        return text.sliced(text.indexOf(u'(') + 1).chopped(1).trimmed();
    }
    /// The words of its body; none when it has brackets.
    QList<QStringView> words() const
    {
        QList<QStringView> words;
        const language::Range items = statement().body.items;
        for (int index = items.first; index < items.end; ++index) {
            const Item &item = m_file.items[index];
            if (item.kind == ItemKind::Call || item.kind == ItemKind::Group)
                return {};
            words.append(m_file.at(item));
        }
        return words;
    }

private:
    language::JoystickFile m_file;
    bool m_isOne;
};

/// The table's own spelling of a word in any case; no value when the table lacks it.
std::optional<QString> spelt(QStringView word, std::span<const QStringView> table)
{
    const auto found =
        std::ranges::find_if(table, [word](QStringView entry) { return sameWord(entry, word); });
    return found == table.end() ? std::nullopt : std::optional(found->toString());
}

// Each of these reads the statements of one kind, and fills the fields only where it gives a
// button.

std::optional<UseInsert> readFixed(const Parted &parted, UseFields &fields)
{
    const QString text = parted.at(parted.statement().place).toString().simplified();
    for (const Fixed &row : fixedStatements) {
        if (!sameWord(row.text, text))
            continue;
        if (row.tick)
            fields.*row.tick = row.ticked;
        return row.insert;
    }
    return {};
}

std::optional<UseInsert> readLine(const Parted &parted, UseFields &fields)
{
    for (const Line &row : lineStatements) {
        const auto value = parted.restAfter(row.head);
        if (!value || (value->isEmpty() && !row.missing.isEmpty()))
            continue;
        fields.*row.value = value->toString();
        return row.insert;
    }
    return {};
}

std::optional<UseInsert> readProfile(const Parted &parted, UseFields &fields)
{
    QStringView name = parted.restAfter(u"PROFILE"_w).value_or(QStringView());
    std::optional<bool> isAuto;
    for (const QStringView mode : { autoMode, customMode }) {
        if (!name.endsWith(mode, Qt::CaseInsensitive))
            continue;
        isAuto = mode == autoMode;
        name = name.chopped(mode.size()).trimmed();
        break;
    }
    if (name.isEmpty())
        return {};
    fields.profile = withProfileExtension(name.toString());
    fields.autoProfile = isAuto.value_or(fields.autoProfile);
    return UseInsert::Profile;
}

/// Whether a text is nothing, or "WINDOW_STYLE = 3" and no more.
bool isStyleClause(QStringView text)
{
    if (text.isEmpty())
        return true;
    const QStringView value = text.sliced(QStringView(u"WINDOW_STYLE"_w).size()).trimmed();
    const QStringView style = value.sliced(value.startsWith(u'=') ? 1 : 0).trimmed();
    return value.startsWith(u'=') && style.size() == 1 && style[0].isDigit();
}

std::optional<UseInsert> readApplication(const Parted &parted, UseFields &fields)
{
    const auto rest = parted.restAfter(u"ZEPH RUN_APP"_w);
    if (!rest)
        return {};
    const RunAppTail tail = runAppTail(*rest);
    if (!isStyleClause(rest->sliced(tail.command.size()).trimmed()))
        return {};
    fields.application = tail.command.trimmed().toString();
    fields.windowStyle = tail.style ? WindowStyle(*tail.style) : WindowStyle::MinimisedNoFocus;
    return UseInsert::Application;
}

std::optional<UseInsert> readStartup(QStringView arguments, UseFields &fields)
{
    const QList<QStringView> parts = arguments.split(u',');
    std::array<bool, std::size(startupWords)> isOn{};
    if (size_t(parts.size()) != isOn.size())
        return {};
    for (size_t at = 0; at < isOn.size(); ++at) {
        const QStringView part = parts[qsizetype(at)].trimmed();
        isOn[at] = sameWord(part, startupWords[at][1]);
        if (!isOn[at] && !sameWord(part, startupWords[at][0]))
            return {};
    }
    HardwareStartup startup;
    startup.setEmulation(isOn[0]);
    startup.setAutoCalibration(isOn[2]);
    startup.setUserAxes(isOn[1]);
    // The page cannot show the user's own axes together with automatic calibration.
    if (startup.userAxes() != isOn[1])
        return {};
    fields.startup = startup;
    return UseInsert::Startup;
}

std::optional<UseInsert> readSensitivity(QStringView word, QStringView value, UseFields &fields)
{
    if (!word.endsWith(sensitivityEnd, Qt::CaseInsensitive))
        return {};
    const QStringView control = word.chopped(sensitivityEnd.size());
    if (sameWord(control, u"T1"_w)) {
        fields.t1Sensitivity = value.toString();
        return UseInsert::T1Sensitivity;
    }
    const auto hat = spelt(control, language::wordsOf<language::HatRole>());
    if (!hat)
        return {};
    fields.hat = *hat;
    fields.hatSensitivity = value.toString();
    return UseInsert::HatSensitivity;
}

std::optional<UseInsert> readShift(QStringView control, bool isOfFile, UseFields &fields)
{
    const auto found = spelt(control, useControls);
    if (!found)
        return {};
    fields.shiftControl = *found;
    fields.shiftOfFile = isOfFile;
    return UseInsert::ShiftButton;
}

std::optional<UseInsert> readCall(const Parted &parted, UseFields &fields)
{
    const Item *call = parted.onlyCall();
    if (!call)
        return {};
    const StatementKind kind = parted.statement().kind;
    const QStringView word = parted.nameOf(*call);
    const QStringView value = parted.argumentsOf(*call);
    if (kind == StatementKind::ShiftButton)
        return readShift(value, false, fields);
    if (value.isEmpty())
        return {};
    const bool isUse = kind == StatementKind::Use;
    if (kind == StatementKind::Rate || (isUse && sameWord(word, u"RATE"_w))) {
        fields.rate = value.toString();
        fields.rateOfFile = isUse;
        return UseInsert::Rate;
    }
    if (!isUse)
        return {};
    return sameWord(word, u"HWSTARTUP"_w) ? readStartup(value, fields)
                                          : readSensitivity(word, value, fields);
}

std::optional<UseInsert> readDirectX(QStringView control, QStringView button, UseFields &fields)
{
    const auto found = spelt(control, useControls);
    const auto number =
        language::isDirectXButton(button) ? language::wholeNumber(button.sliced(2)) : std::nullopt;
    if (!found || !number || *number < 1 || *number > language::lastDirectXButton)
        return {};
    fields.directXControl = *found;
    fields.directXButton = *number;
    fields.allDirectXButtons = false;
    return UseInsert::DirectXButton;
}

std::optional<UseInsert> readAssignment(const Parted &parted, UseFields &fields)
{
    const QList<QStringView> words = parted.words();
    const bool isAssignment = parted.statement().kind == StatementKind::Use
        && parted.form().isEmpty() && words.size() == 3 && sameWord(words[1], u"AS"_w);
    if (!isAssignment)
        return {};
    return sameWord(words[2], u"SHIFTBTN"_w) ? readShift(words[0], true, fields)
                                             : readDirectX(words[0], words[2], fields);
}

constexpr std::array readers = { readFixed,       readLine, readProfile,
                                 readApplication, readCall, readAssignment };

} // namespace

} // namespace use

std::optional<UseReading> readUse(QStringView statement, const UseFields &shown)
{
    const use::Parted parted(statement);
    if (!parted.isOne())
        return {};
    UseFields fields = shown;
    for (const auto &reader : use::readers) {
        if (const auto insert = reader(parted, fields))
            return UseReading{ *insert, fields };
    }
    return {};
}

} // namespace zeph
