// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The pages of digital and analogue axes in the real Composer, and the statements that their
// buttons insert.

#include "composer/composer_settings.h"
#include "platform/control_array.h"
#include "settings/colour_settings.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace zeph::test {

/// The Composer with a scheme of easily told colours.
struct AxisPages : ComposerWorld {
    AxisPages()
    {
        auto &colours = settings.of<ColourSettings>();
        colours.SlashColour = 0x0000AA;
        colours.RAWColour = 0x00BB00;
        colours.MiscellaneousColour = 0xCCCC00;
        showEditor();
    }

    ComposerPage &openPage(InsertOptions::Page which)
    {
        open().showPage(which);
        return *composer()->page(which);
    }
    bool &addsLineEnd() { return settings.of<ComposerSettings>().CompTabsAddCr; }

    QLineEdit &box(const QString &name) { return control<QLineEdit>(name); }
    QString text(const QString &name) { return box(name).text(); }
    void type(const QString &name, const QString &text)
    {
        box(name).clear();
        QTest::keyClicks(&box(name), text);
    }
    void choose(const QString &list, const QString &item)
    {
        auto &found = control<QComboBox>(list);
        if (found.findText(item) < 0) {
            qWarning("%s has no %s", qPrintable(list), qPrintable(item));
        }
        found.setCurrentText(item);
    }
    bool isEnabled(const QString &name) { return control<QWidget>(name).isEnabled(); }
    void turnTo(const QString &tabs, int index)
    {
        control<QTabWidget>(tabs).setCurrentIndex(index);
    }

    /// "." plain, s slash, r raw, m miscellaneous: a letter a character of the joystick file.
    QString marks()
    {
        const auto &colours = settings.of<ColourSettings>();
        const RichText text = joystick().richText();
        QString marks;
        for (int at = 0; at < text.text.size(); ++at) {
            const auto colour = text.formatAt(at).colour;
            marks += colour == colours.SlashColour      ? u's'
                : colour == colours.RAWColour           ? u'r'
                : colour == colours.MiscellaneousColour ? u'm'
                                                        : u'.';
        }
        return marks;
    }
};

/// A button that inserts.
struct InsertCase {
    const char *name;
    InsertOptions::Page page;
    QString button;
    /// Fills the page's fields.
    void (*fill)(AxisPages &world);
    QString text;
    QString marks;
    bool startsLine;

    friend std::ostream &operator<<(std::ostream &out, const InsertCase &row)
    {
        return out << row.name;
    }
};

} // namespace zeph::test
