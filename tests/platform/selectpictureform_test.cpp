// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/selectpictureform.h"

#include "platform/qt_dialogs.h"
#include "tests/support/picture_files.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTimer>

using namespace zeph;
using test::TempFolder;

namespace {

struct Preview {
    explicit Preview(const SelectPictureForm &form)
        : size(form.findChild<QLabel *>(u"Preview"_s)->pixmap().deviceIndependentSize().toSize()),
          words(form.findChild<QLabel *>(u"PreviewWords"_s)->text())
    {
    }

    QSize size;
    QString words;
};

} // namespace

TEST(SelectPictureForm, ShowsThePictureThatIsSelectedWithItsSize)
{
    const TempFolder folder;
    SelectPictureForm form(nullptr, u"Select image file to open"_s);
    EXPECT_EQ(form.windowTitle(), u"Select image file to open");
    EXPECT_EQ(Preview(form).words, u"Select a picture to see it here");
    const QString path =
        folder.write(u"a.png"_s, test::bytesOf(test::pictureOf({ 520, 100 }), "png"));
    Q_EMIT form.currentChanged(path);
    EXPECT_EQ(Preview(form).size, QSize(260, 50));
    EXPECT_EQ(Preview(form).words, u"520 by 100 pixels");
    Q_EMIT form.currentChanged(folder.path());
    EXPECT_TRUE(Preview(form).size.isEmpty());
}

TEST(SelectPictureForm, SaysWhyAFileCannotBeShown)
{
    const TempFolder folder;
    SelectPictureForm form(nullptr, u"Open"_s);
    Q_EMIT form.currentChanged(folder.write(u"a.bmp"_s, {}));
    EXPECT_TRUE(Preview(form).size.isEmpty());
    EXPECT_EQ(Preview(form).words, u"The file is empty.");
    Q_EMIT form.currentChanged(folder.write(u"huge.bmp"_s, test::hugeBitmap()));
    EXPECT_EQ(Preview(form).words,
              u"It says that it is 30000 by 30000 pixels, which is more than I can show.");
}

TEST(SelectPictureForm, IsWhatAnOpenDialogForPicturesShows)
{
    const TempFolder folder;
    const QString path =
        folder.write(u"a.png"_s, test::bytesOf(test::pictureOf({ 20, 10 }), "png"));
    QtDialogs dialogs;
    QTimer timer;
    QStringList filters;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&timer, &filters, path] {
        if (auto *form = qobject_cast<SelectPictureForm *>(QApplication::activeModalWidget())) {
            timer.stop();
            filters = form->nameFilters();
            form->selectFile(path);
            QMetaObject::invokeMethod(form, "accept");
        }
    });
    timer.start(5);
    const auto chosen = dialogs.openFile({ .title = u"Select image file to open"_s,
                                           .filter = u"Image files (*.bmp,*.jpg,*.gif)|"
                                                     "*.bmp;*.jpg;*.gif|Image files, png too "
                                                     "(*.png)|*.bmp;*.png"_s,
                                           .folder = folder.path(),
                                           .showsPictures = true });
    EXPECT_EQ(chosen, path);
    EXPECT_EQ(filters,
              QStringList({ u"Image files (*.bmp *.jpg *.gif)"_s,
                            u"Image files, png too (*.bmp *.png)"_s }));
}
