// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/mouse_programs.h"

#include "text/text_lines.h"

namespace zeph {

namespace {

QString withoutClosingBlank(QStringView keyword, const QStringList &arguments)
{
    return keyword.toString() + u" ("_s + arguments.join(u", ") + u')';
}

} // namespace

QString resolutionText(const QSize &picture)
{
    if (picture.isEmpty())
        return {};
    return QString::number(picture.width()) + u',' + QString::number(picture.height());
}

Generated screenResolution(const QString &resolution)
{
    return plainStatement(u"USE SCREEN_RESOLUTION ("_s + resolution + u") \n\n"_s, true);
}

Generated mouseXY(const QString &origin, const QString &place)
{
    return plainStatement(withoutClosingBlank(u"MOUSEXY"_w, { origin, place }) + u' ', false);
}

Generated mouseMove(const QString &way)
{
    return plainStatement(withoutClosingBlank(u"MOUSEMOVE"_w, { way }) + u' ', false);
}

Generated mouseRotate(const RotateTexts &values)
{
    QStringList arguments(values.begin(), values.end());
    arguments[RotateMacro] = u'[' + values[RotateMacro] + u']';
    return plainStatement(withoutClosingBlank(u"MOUSEROTATE"_w, arguments), false);
}

} // namespace zeph
