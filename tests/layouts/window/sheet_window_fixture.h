// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/documents.h"
#include "layouts/window/sheet_view.h"
#include "layouts/window/sheet_window.h"
#include "menus/menu_actions.h"
#include "platform/core/file_io.h"
#include "platform/fakes/fake_printers.h"
#include "platform/fakes/fake_screen.h"
#include "platform/richtext/rich_text_box.h"
#include "settings/colour_settings.h"
#include "tests/support/fixture.h"
#include "text/macro_table.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QWindow>

namespace zeph::test {

/// A sheet's window in a small world: a joystick document with a few statements, the pictures that
/// ship, a printer of A4 paper that is not there until a test wants it, and a large screen.
class SheetWindowTest : public WorldTest
{
protected:
    SheetWindowTest()
    {
        for (const QString &name : { u"Temp"_s, u"Layouts"_s, u"Files"_s }) {
            QDir(folder.path()).mkpath(name);
        }
        const QString pictures = QStringLiteral(ZEPH_PICTURES "/");
        const QString drawings = QStringLiteral(ZEPH_SOURCE_DIR "/artwork/");
        for (const QString &name : QDir(pictures).entryList(QDir::Files)) {
            QFile::copy(pictures + name, folder.file(name));
        }
        for (const QString &name : QDir(drawings).entryList({ u"*.svg"_s }, QDir::Files)) {
            folder.show(drawings + name, name);
        }
        installIcons();
        printers.printers = 0;
        settings.of<ColourSettings>().BTNColour = 0x0000FF;
        settings.of<ColourSettings>().SlashColour = 0x00AA00;
        viewer.setObjectName(u"mnuAppsImageViewer"_s);
        setText(u"USE MTYPE A1\nUSE HAT2 AS KEYPAD\nBTN S1 /U Fire_Gun /D Bomb\nBTN S2 Gear_Up\n"
                "BTN H1U Look_Up\nBTN T2 Chaff\nTHR 1 5 a b c d e\n"_s);
    }

    void setText(const QString &text)
    {
        documents.joystick().setText(text);
        documents.joystick().rename(folder.path() + u"/Files/Jet.tmj"_s);
        Q_EMIT documents.joystick().edited();
    }
    template <class Window> void open()
    {
        window = std::make_unique<Window>(
            context(), SheetSources{ documents, macros, { printers, screen, viewer } });
    }
    void openShown(const QSize &size)
    {
        open<GraphicsPrint>();
        show(size);
    }
    void show(const QSize &size)
    {
        window->resize(size);
        window->show();
        QTest::qWait(1);
    }

    SheetModel &model() { return window->model(); }
    const LayoutTextBox &box(int i) { return model().sheet().boxes[size_t(i)]; }
    QString text(int i) { return box(i).text.text; }
    RichTextBox &editor() { return window->view().canvas().editor(); }
    void press(QStringView name)
    {
        EXPECT_TRUE(action(name)->isEnabled()) << name.toString().toStdString();
        action(name)->trigger();
    }
    QAction *action(QStringView name) { return window->actions().action(name); }
    void write(int i, const QString &words)
    {
        Sheet sheet = model().sheet();
        sheet.boxes[size_t(i)].text = RichText::plain(words);
        model().change(sheet);
    }
    /// Puts a box somewhere, unlocked and shown.
    void place(int i, const QRectF &at)
    {
        Sheet sheet = model().sheet();
        sheet.boxes[size_t(i)] = { .Left = float(at.left()),
                                   .Top = float(at.top()),
                                   .Width = float(at.width()),
                                   .Height = float(at.height()),
                                   .text = sheet.boxes[size_t(i)].text };
        model().change(sheet);
    }
    QRectF placeOf(int i) { return { box(i).Left, box(i).Top, box(i).Width, box(i).Height }; }
    /// Puts all boxes but these out of the way.
    void hideAllBut(const QList<int> &shown)
    {
        Sheet sheet = model().sheet();
        for (size_t i = 0; i < sheet.boxes.size(); ++i) {
            sheet.boxes[i].Visible = shown.contains(int(i));
        }
        model().change(sheet);
    }
    LayoutsSettings &layouts() { return settings.of<LayoutsSettings>(); }
    QByteArray layoutsIni() const
    {
        return readWholeFile(folder.file(u"Layouts.ini"_s)).value_or(QByteArray());
    }

    Documents documents{ context() };
    MacroTable macros = extractMacros({ u"Fire_Gun = SPC"_s, u"Chaff = c"_s });
    FakePrinters printers;
    FakeScreen screen;
    QAction viewer;
    std::unique_ptr<SheetWindow> window;
};

} // namespace zeph::test
