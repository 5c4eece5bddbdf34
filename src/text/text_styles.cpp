// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/text_styles.h"

#include <algorithm>
#include <cmath>

namespace zeph {

namespace {

/// Of the styles of the texts.
const QString textsSection = u"Colours"_s;

struct StyleDefault {
    const char16_t *name;
    ColorRef colour;
};

// Dark enough for the light backgrounds of the first run, and different in brightness too, for
// pilots who cannot tell the hues apart.
constexpr std::array<StyleDefault, 9> defaults = { {
    { u"Style 1", colorRef(160, 0, 0) },
    { u"Style 2", colorRef(0, 96, 0) },
    { u"Style 3", colorRef(0, 0, 160) },
    { u"Style 4", colorRef(128, 0, 128) },
    { u"Style 5", colorRef(0, 110, 120) },
    { u"Style 6", colorRef(110, 70, 0) },
    { u"/U style", 164 },
    { u"/M style", 8404992 },
    { u"/D style", 4482108 },
} };

/// The keys of one style in a snapshot of the store.
class StyleKeys
{
public:
    StyleKeys(const QByteArray &file, const QString &section, size_t index)
        : m_file(file), m_section(section), m_number(QString::number(index + 1))
    {
    }

    QString text(const QString &key, const QString &fallback, int buffer = profileTextBuffer) const
    {
        const auto value = profile::value(m_file, m_section, key + m_number);
        return value && !value->isEmpty() ? value->left(buffer - 1) : fallback;
    }
    bool flag(const QString &key) const
    {
        return profile::integerOf(profile::value(m_file, m_section, key + m_number), 0) != 0;
    }
    double size(const QString &key, double fallback) const
    {
        const double size = std::round(leadingNumber(text(key, QString())));
        return size > 0 ? std::clamp(size, double(smallestStyleSize), double(largestStyleSize))
                        : fallback;
    }
    ColorRef colour(const QString &key, ColorRef fallback) const
    {
        return colorRefFromText(text(key, QString(), profileColourBuffer)).value_or(fallback);
    }

private:
    const QByteArray &m_file;
    const QString &m_section;
    QString m_number;
};

QString flagText(bool flag)
{
    return flag ? u"1"_s : u"0"_s;
}

} // namespace

TextStyles defaultTextStyles()
{
    TextStyles styles;
    for (size_t i = 0; i < styles.size(); ++i) {
        styles[i].name = QString::fromUtf16(defaults[i].name);
        styles[i].format.family = u"Arial"_s;
        styles[i].format.pointSize = 8;
        styles[i].format.colour = defaults[i].colour;
    }
    return styles;
}

TextStyles readTextStyles(const ProfileFile &store)
{
    return readTextStyles(store, textsSection, defaultTextStyles());
}

Expected<void, FileError> writeTextStyles(const ProfileFile &store, const TextStyles &styles)
{
    return writeTextStyles(store, textsSection, styles);
}

TextStyles readTextStyles(const ProfileFile &store, const QString &section,
                          const TextStyles &defaults)
{
    TextStyles styles = defaults;
    const QByteArray file = store.bytes().value_or(QByteArray());
    for (size_t i = 0; i < styles.size(); ++i) {
        const StyleKeys keys(file, section, i);
        CharFormat &format = styles[i].format;
        styles[i].name = keys.text(u"StyleName"_s, styles[i].name);
        format.family = keys.text(u"StyleFontName"_s, format.family);
        format.pointSize = keys.size(u"StyleFontSize"_s, format.pointSize);
        format.bold = keys.flag(u"StyleFontBold"_s);
        format.underline = keys.flag(u"StyleFontUnderline"_s);
        format.italic = keys.flag(u"StyleFontItalic"_s);
        format.colour = keys.colour(u"StyleFontColour"_s, *format.colour);
    }
    return styles;
}

Expected<void, FileError> writeTextStyles(const ProfileFile &store, const QString &section,
                                          const TextStyles &styles)
{
    QList<ProfileEntry> entries;
    for (size_t i = 0; i < styles.size(); ++i) {
        const QString number = QString::number(i + 1);
        const CharFormat &format = styles[i].format;
        entries += {
            { section, u"StyleName"_s + number, styles[i].name },
            { section, u"StyleFontName"_s + number, format.family },
            { section, u"StyleFontSize"_s + number, QString::number(format.pointSize) },
            { section, u"StyleFontBold"_s + number, flagText(format.bold) },
            { section, u"StyleFontUnderline"_s + number, flagText(format.underline) },
            { section, u"StyleFontItalic"_s + number, flagText(format.italic) },
            { section, u"StyleFontColour"_s + number, textFromColorRef(*format.colour) },
        };
    }
    return store.write(entries);
}

} // namespace zeph
