// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/custom_colours.h"

#include "platform/core/units.h"

namespace zeph {

namespace {

const QString section = u"Colours"_s;
constexpr ColorRef white = 16777215;

QString keyOf(size_t index)
{
    return u"CustomColour"_s + QString::number(index + 1);
}

} // namespace

CustomColours GetCustomColour(const ProfileFile &store)
{
    const QByteArray file = store.bytes().value_or(QByteArray());
    CustomColours colours;
    for (size_t i = 0; i < colours.size(); ++i) {
        const QString text = profile::value(file, section, keyOf(i)).value_or(QString());
        colours[i] = colorRefFromText(text.left(profileColourBuffer - 1)).value_or(white);
    }
    return colours;
}

Expected<void, FileError> keepCustomColours(const ProfileFile &store, const CustomColours &colours)
{
    QList<ProfileEntry> entries;
    for (size_t i = 0; i < colours.size(); ++i) {
        entries.append({ section, keyOf(i), textFromColorRef(colours[i]) });
    }
    return store.write(entries);
}

} // namespace zeph
