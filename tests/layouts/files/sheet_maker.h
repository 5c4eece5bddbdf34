// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/files/sheet_kinds.h"
#include "tests/support/rich_texts.h"

namespace zeph {

inline void PrintTo(SheetKind kind, std::ostream *out)
{
    *out << sheetKind(kind).caption.toString().toStdString();
}

} // namespace zeph

namespace zeph::test {

constexpr SheetKind allSheetKinds[] = { SheetKind::Joystick, SheetKind::Throttle,
                                        SheetKind::Custom };

/// Sheets as chance makes them, the same in every run.
class SheetMaker
{
public:
    explicit SheetMaker(quint32 seed) : m_chance(seed) { }

    /// A sheet as a reader gives it: whole numbers, and nothing that its files do not hold.
    Sheet stored(SheetKind kind)
    {
        Sheet sheet = emptySheet(kind);
        sheet.width = 1 + m_chance.upTo(2000);
        sheet.height = 1 + m_chance.upTo(2000);
        for (size_t i = 0; i < sheet.pictures.size(); ++i) {
            SheetPicture &picture = sheet.pictures[i];
            picture.Visible = flag();
            if (i < 3) {
                picture.Left = place();
                picture.Top = place();
                picture.Locked = flag();
            }
            const QString paths[] = { {}, u"Rudders.bmp"_s, u"C:\\Bilder, alt\\Jägerß.bmp"_s };
            picture.path = kind == SheetKind::Custom ? paths[m_chance.upTo(2)] : QString();
        }
        for (LayoutTextBox &box : sheet.boxes) {
            box.Left = place();
            box.Top = place();
            box.Width = float(m_chance.upTo(900));
            box.Height = float(m_chance.upTo(900));
            box.Visible = flag();
            box.Locked = flag();
        }
        return sheet;
    }

    /// The same with texts.
    Sheet storedWithTexts(SheetKind kind)
    {
        Sheet sheet = stored(kind);
        for (LayoutTextBox &box : sheet.boxes) {
            box.text = m_chance.make(u"aB /U{}\\\n\u00e9\u20ac,"_s, 60);
        }
        return sheet;
    }

private:
    bool flag() { return m_chance.upTo(1) == 1; }
    float place() { return float(m_chance.upTo(4000) - 1000); }

    RichTextMaker m_chance;
};

} // namespace zeph::test
