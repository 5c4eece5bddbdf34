// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_settings.h"
#include "composer/tumbo/key_board.h"
#include "composer/tumbo/rawform.h"
#include "composer/tumbo/tumbo_settings.h"
#include "livetools/board_keys.h"
#include "platform/core/profile_file.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

namespace zeph::test {

/// Tumbo, opened from the Editor with an empty pair of files.
class TumboTest : public TestIn<ComposerWorld>
{
protected:
    void SetUp() override
    {
        folder.write(u"DefaultMacros.txt"_s, "Gun_Fire\r\n\r\nGear_Up\r\n");
        showEditor();
        openTumbo();
    }
    void openTumbo()
    {
        editor->action(u"mnuAppsTumbo")->trigger();
        QApplication::setActiveWindow(&tumbo());
        QApplication::processEvents();
    }
    void closeTumbo()
    {
        tumbo().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    RAWform &tumbo() { return *windows.get<RAWform>(); }
    /// Tumbo's control of that name; there must be one.
    template <class T> T &part(const QString &name)
    {
        T *found = tumbo().findChild<T *>(name);
        if (!found) {
            qFatal("Tumbo has no %s", qPrintable(name));
        }
        return *found;
    }
    QLineEdit &box(const QString &name) { return part<QLineEdit>(name); }
    QAction &entry(const QString &name) { return part<QAction>(name); }
    void choose(const QString &name) { entry(name).trigger(); }
    void clickPart(const QString &name) { part<QAbstractButton>(name).click(); }
    QAbstractButton &key(const QString &name)
    {
        return *part<KeyBoard>(u"Board"_s).key(boardKeyNamed(name)->index);
    }
    void press(const QString &name) { key(name).click(); }
    /// 1 is Shift, 2 Ctrl, 3 Alt.
    void toggle(int number) { clickPart(u"ToggleButton%1"_s.arg(number)); }
    /// Syntax, make, break and combined.
    QStringList shown()
    {
        return { box(u"SyntaxText"_s).text(), box(u"RMakeText"_s).text(),
                 box(u"RBreakText"_s).text(), box(u"RCombinedText"_s).text() };
    }
    QString total() { return box(u"TotalCombinedText"_s).text(); }
    void option(bool TumboSettings::*flag, bool on) { settings.of<TumboSettings>().*flag = on; }
    void createMacro(const QString &name, const QString &statement)
    {
        part<QComboBox>(u"ComboMacros"_s).setCurrentText(name);
        box(u"TotalCombinedText"_s).setText(statement);
        clickPart(u"cmdCreateMacro"_s);
    }
    ColorRef colourAt(Document &document, int position)
    {
        return document.richText(position, 1).formatAt(0).colour.value_or(0x123456);
    }
    ProfileFile store() const { return ProfileFile(paths.iniPath); }
};

} // namespace zeph::test
