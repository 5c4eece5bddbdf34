// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_settings.h"
#include "composer/macro_mirror.h"
#include "documents/documents.h"
#include "editor/macros/macro_features.h"
#include "platform/core/profile_file.h"
#include "platform/richtext/rich_text_box.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"
#include "tests/support/soon.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>

namespace zeph::test {

/// The first page of the Composer beside the Editor.
class FirstPage : public TestIn<ComposerWorld>
{
protected:
    void SetUp() override
    {
        showEditor();
        open();
    }
    ComposerSettings &options() { return settings.of<ComposerSettings>(); }
    const ColourSettings &colours() { return settings.of<ColourSettings>(); }
    ColorRef colourAt(Document &document, int position)
    {
        return document.richText(position, 1).formatAt(0).colour.value_or(0x123456);
    }
    /// Shows that the last insertion is one step, which brings a text back.
    void expectOneStepFrom(Document &document, const QString &before)
    {
        document.undo();
        EXPECT_EQ(document.text(), before);
    }
    void chooseEntry(const QString &menu, const QString &entry)
    {
        auto &shown = control<QMenu>(menu);
        EXPECT_TRUE(shown.isVisible());
        shown.findChild<QAction *>(entry)->trigger();
        shown.close();
    }
    void protectMacros(const QString &text)
    {
        setMacro(text);
        editor->documents().setProtected(true);
    }
    MacroMirror &mirror() { return control<MacroMirror>(u"FrameMacros"_s); }
    QStringList listed()
    {
        QStringList names;
        const MacroMirrorList *list = mirror().list();
        for (int i = 0; i < list->count(); ++i) {
            names.append((list->item(i)->checkState() == Qt::Checked ? u"+"_s : QString())
                         + list->item(i)->text());
        }
        return names;
    }
    QPoint placeOf(const QString &name)
    {
        MacroMirrorList *list = mirror().list();
        return list->visualItemRect(list->findItems(name, Qt::MatchExactly).value(0)).center();
    }
    void doubleClick(const QString &name)
    {
        QTest::mouseDClick(mirror().list()->viewport(), Qt::LeftButton, {}, placeOf(name));
    }
};

} // namespace zeph::test
