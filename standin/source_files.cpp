// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "source_files.h"

#include "language/file_kinds.h"
#include "platform/core/paths.h"
#include "platform/core/text1252.h"

namespace zeph::standin {

namespace {

QString withoutExtension(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? name : name.first(dot);
}

} // namespace

Expected<QString, FileError> readSource(const QString &path)
{
    const auto bytes = readWholeFile(path);
    if (!bytes)
        return Unexpected<FileError>(bytes.error());
    if (bytes->startsWith("\xFF\xFE") || bytes->startsWith("\xFE\xFF"))
        return Unexpected<FileError>({ path, u"it is in UTF-16; save it as plain text"_s });
    const QByteArray mark = "\xEF\xBB\xBF";
    QString text = bytes->startsWith(mark) ? QString::fromUtf8(bytes->sliced(mark.size()))
                                           : fromText1252(*bytes);
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text;
}

QString findMacroFile(const QString &joystickPath, const QString &name)
{
    if (name.isEmpty())
        return {};
    const QString folder = folderOf(joystickPath);
    const QString extension = macroExtensionFor(joystickPath);
    const QString extended = folder + name + u'.' + extension;
    const QString plain = folder + name;
    const bool isExtended = name.endsWith(extension, Qt::CaseInsensitive);
    for (const QString &path : { isExtended ? plain : extended, isExtended ? extended : plain }) {
        if (fileExists(path))
            return existingPath(path);
    }
    // A folder of that name is told as a macro file that cannot be read.
    const QString named = isExtended ? plain : extended;
    return folderExists(named) ? existingPath(named) : QString();
}

Expected<Sources, FileError> readSources(const QString &joystickPath, bool sameName)
{
    const auto joystick = readSource(joystickPath);
    if (!joystick)
        return Unexpected<FileError>(joystick.error());
    Sources sources;
    sources.pair = language::parsePair(*joystick, {});
    const auto reference = language::macroReference(sources.pair.joystick);
    if (reference && !reference->name.isEmpty()) {
        sources.macroNamePlace = reference->place;
        sources.macroPath = findMacroFile(joystickPath, reference->name);
        if (sources.macroPath.isEmpty())
            sources.missing = reference;
    } else if (sameName) {
        sources.macroPath = findMacroFile(joystickPath, withoutExtension(nameOf(joystickPath)));
    }
    if (sources.macroPath.isEmpty())
        return sources;
    const auto macro = readSource(sources.macroPath);
    if (macro)
        sources.pair = language::parsePair(*joystick, *macro);
    else
        sources.unreadable = macro.error();
    return sources;
}

} // namespace zeph::standin
