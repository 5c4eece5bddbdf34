// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Sheets of the sample pair and of generated files, with the pictures that ship.

#include "layouts/analysis/box_colours.h"
#include "layouts/analysis/box_texts.h"
#include "layouts/draw/first_sheet.h"
#include "platform/core/file_io.h"
#include "platform/core/profile_file.h"
#include "tests/cougar/shipped_pictures.h"
#include "text/text_lines.h"

#include <QRandomGenerator>

namespace zeph::test {

inline CharFormat sheetFont()
{
    CharFormat font;
    font.family = u"Arial"_s;
    font.pointSize = 8;
    return font;
}

inline constexpr QSize usualSheet(1043, 714);

inline QString sampleText()
{
    const auto bytes =
        readWholeFile(QStringLiteral(ZEPH_SOURCE_DIR "/data/Files/Sample flight.tmj"));
    return bytes ? documentText(*bytes).value_or(QString()) : QString();
}

/// A file of so many lines in which every control of both sheets has a statement.
inline QString longFileText(int lines, quint32 seed = 1)
{
    static const QStringList controls = { u"S1"_s,  u"S2"_s,  u"S3"_s,  u"S4"_s,  u"TG1"_s,
                                          u"TG2"_s, u"H1U"_s, u"H1L"_s, u"H2U"_s, u"H2D"_s,
                                          u"H3M"_s, u"H4R"_s, u"H4L"_s, u"T1"_s,  u"T2"_s,
                                          u"T3"_s,  u"T4"_s,  u"T5"_s,  u"T6"_s,  u"T7"_s,
                                          u"T8"_s,  u"T9"_s,  u"T10"_s };
    static const QStringList axes = { u"JOYX"_s, u"JOYY"_s, u"THR"_s, u"RDDR"_s, u"ANT"_s,
                                      u"RNG"_s,  u"MIX"_s,  u"MIY"_s, u"LBRK"_s, u"RBRK"_s };
    QRandomGenerator random(seed);
    QString text;
    int line = 0;
    const auto more = [&](int count) {
        for (int i = 0; i < count; ++i, ++line) {
            text += u"  /%1 Macro_%2_of_many DLY(%3) <Next & \"last\"> Rem line %4\n"_s
                        .arg(QChar(u"UMDIOPR"[random.bounded(7)]))
                        .arg(random.bounded(1000))
                        .arg(random.bounded(100))
                        .arg(line);
        }
    };
    const int each = std::max(0, (lines - 33) / 33);
    for (const QString &control : controls) {
        text += u"BTN %1 /U First_Macro\n"_s.arg(control);
        more(each);
    }
    for (const QString &axis : axes) {
        text += axis + u" 1 4 Left_Turn Right_Turn\n"_s;
        more(each);
    }
    return text;
}

/// Both sheets of a text, coloured, as they first open.
class SheetsOfFiles
{
public:
    ControlsImage image(SheetKind kind) const
    {
        return controlsImage(kind, m_folder.path(), ProfileFile(m_folder.file(u"Zeph.ini"_s)));
    }

    std::vector<RichText> texts(SheetKind kind, const QString &file) const
    {
        const ColourScheme colours{ .plain = 0,
                                    .btn = 0xFF0000,
                                    .slash = 0x0000D0,
                                    .raw = 0x008000,
                                    .miscellaneous = 0xB07000,
                                    .rem = 0x686868 };
        const FileCaption caption{ u"/home/pilot/Files/Sample flight.tmj"_s,
                                   QDateTime(QDate(2024, 3, 5), QTime(9, 7)) };
        std::vector<RichText> result;
        for (const QString &text : AnalyseJoystickFile(kind, *AnalyseAndExtract(file), caption)) {
            result.push_back(
                ApplyColours(kind, RichText::plain(text, sheetFont()), { colours, sheetFont() }));
        }
        return result;
    }

    /// The sheet with what it is drawn with.
    std::pair<Sheet, SheetLook> first(SheetKind kind, const QString &file,
                                      const QSize &size = usualSheet) const
    {
        const ControlsImage controls = image(kind);
        return { firstSheet(kind, size, texts(kind, file), controls, sheetFont()),
                 lookOf(controls, sheetFont()) };
    }
    /// The same, as large as it takes to hold all texts.
    std::pair<Sheet, SheetLook> whole(SheetKind kind, const QString &file) const
    {
        const ControlsImage controls = image(kind);
        return { firstSheetForAll(kind, usualSheet, texts(kind, file), controls, sheetFont()),
                 lookOf(controls, sheetFont()) };
    }

private:
    PicturesFolder m_folder;
};

} // namespace zeph::test
