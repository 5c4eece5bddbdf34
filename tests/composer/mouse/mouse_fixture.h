// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_settings.h"
#include "composer/mouse/mousemanual.h"
#include "composer/mouse/mouseprogram.h"
#include "livetools/live_tools.h"
#include "livetools/pictures/picture_frame.h"
#include "livetools/pictures/viewimage.h"
#include "menus/tool_entries.h"
#include "platform/fakes/fake_printers.h"
#include "settings/shared_settings.h"
#include "shell/mouse_tools.h"
#include "tests/composer/generators/generator_rows.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

namespace zeph::test {

/// The Editor with both windows of mouse programming and the Image Viewer, whose picture has 1000
/// by 500 pixels. Inserted statements bring no line ends of the settings.
class MouseTest : public TestIn<ComposerWorld>
{
protected:
    MouseTest()
    {
        folder.show(QStringLiteral(ZEPH_SOURCE_DIR "/data/Wizards"), u"Wizards"_s);
        const ToolEntries entries{ editor->actions(), windows };
        addImageViewer(entries, context(), printers);
        new MouseTools(context(), windows, *editor, *tools);
        showEditor();
        settings.of<ComposerSettings>().CompTabsAddCr = false;
        usePicture(u"game.bmp"_s, { 1000, 500 });
    }
    ~MouseTest() override { windows.unloadAll(); }

    /// Makes a picture of that size and lets it be the one that the Image Viewer opens.
    void usePicture(const QString &name, const QSize &size)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        const QString path = folder.file(name);
        ASSERT_TRUE(picture.save(path));
        settings.of<SharedSettings>().ImageFilePath = path;
    }
    MouseProgram &openWizard()
    {
        editor->action(u"mnuMouseWizard")->trigger();
        return wizard();
    }
    MouseProgram &wizard() { return *windows.get<MouseProgram>(); }
    ViewImage &viewer() { return *windows.get<ViewImage>(); }

    template <class T> T &part(const QString &name)
    {
        T *found = wizard().findChild<T *>(name);
        if (!found) {
            qFatal("the wizard has no %s", qPrintable(name));
        }
        return *found;
    }
    void press(const QString &button) { part<QAbstractButton>(button).click(); }
    void next() { press(u"Command1_1"_s); }
    void back() { press(u"Command1_2"_s); }
    void insert() { press(u"Command1_0"_s); }
    QString label(const QString &name) { return part<QLabel>(name).text(); }
    QString statement() { return label(u"LBL_MouseStatement"_s); }
    void goTo(MouseMovement movement, MouseWizardPage page)
    {
        press(u"OptionMouseMove_%1"_s.arg(int(movement)));
        while (wizard().page() != page) {
            const MouseWizardPage before = wizard().page();
            next();
            ASSERT_NE(wizard().page(), before);
        }
    }

    QWidget &canvas() { return *viewer().findChild<QWidget *>(u"Picture3"_s); }
    void zoomTo(double zoom)
    {
        m_zoom = zoom;
        viewer().findChild<PictureFrame *>(u"Picture2"_s)->setZoom(zoom);
    }
    /// Where a pixel of the picture is on the canvas.
    QPoint at(int x, int y) const { return { int(x * m_zoom), int(y * m_zoom) }; }
    void drag(const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
        sendMove((from + to) / 2, Qt::LeftButton, {});
        sendMove(to, Qt::LeftButton, {});
        QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, to);
    }
    void click(const QPoint &place) { QTest::mouseClick(&canvas(), Qt::LeftButton, {}, place); }
    /// Holds Shift, moves the mouse there, and lets go of Shift.
    void turnTo(const QPoint &place)
    {
        QTest::keyPress(&viewer(), Qt::Key_Shift, Qt::ShiftModifier);
        sendMove(place, Qt::NoButton, Qt::ShiftModifier);
        QTest::keyRelease(&viewer(), Qt::Key_Shift);
    }
    void sendMove(const QPoint &place, Qt::MouseButton button, Qt::KeyboardModifiers keys)
    {
        QMouseEvent move(QEvent::MouseMove, QPointF(place), QPointF(canvas().mapToGlobal(place)),
                         Qt::NoButton, button, keys);
        QCoreApplication::sendEvent(&canvas(), &move);
    }

    FakePrinters printers;

private:
    double m_zoom = 1;
};

} // namespace zeph::test
