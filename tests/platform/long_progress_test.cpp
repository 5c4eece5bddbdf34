// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/long_progress.h"

#include "platform/zip/zip_unpack.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QProgressBar>
#include <QPushButton>

using namespace zeph;

namespace {

constexpr int manyFiles = 3000;

class LongProgressTest : public testing::Test
{
protected:
    /// The window on show, if any.
    static QProgressDialog *window()
    {
        for (QWidget *each : QApplication::topLevelWidgets()) {
            if (each->isVisible() && each->objectName() == u"LongProgress") {
                return qobject_cast<QProgressDialog *>(each);
            }
        }
        return nullptr;
    }

    void makeManyFiles()
    {
        QDir(folder.path()).mkpath(u"p/deep"_s);
        for (int i = 0; i < manyFiles; ++i) {
            const QString name =
                (i % 2 == 0 ? u"p/%1.tmj"_s : u"p/deep/%1.tmm"_s).arg(i, 4, 10, QChar(u'0'));
            QFile file(folder.file(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("BTN S1 a\r\n");
        }
    }

    /// Packs the many files; the pilot cancels once the bar is at that value.
    Expected<bool, QString> pack(int cancelAt)
    {
        LongProgress progress(u"Packing the files"_s, nullptr, 0);
        return packFolder(folder.file(u"p"_s) + u'/', folder.file(u"p.zip"_s),
                          [&](const QString &name, int done, int all) {
                              const bool goesOn = progress.step(name, done, all);
                              look(cancelAt);
                              return goesOn;
                          });
    }

    void look(int cancelAt)
    {
        QProgressDialog *shown = window();
        if (!shown) {
            return;
        }
        const auto *bar = shown->findChild<QProgressBar *>();
        values.append(bar->value());
        most = bar->maximum();
        if (bar->value() == cancelAt) {
            shown->findChild<QPushButton *>()->click();
        }
    }

    test::TempFolder folder;
    QList<int> values; ///< that the bar had, step by step
    int most = -1;
};

} // namespace

TEST_F(LongProgressTest, IsNotShownForWhatIsSoonDone)
{
    LongProgress progress(u"Packing the files"_s, nullptr);
    EXPECT_TRUE(progress.step(u"a"_s, 0, 2));
    EXPECT_TRUE(progress.step(u"b"_s, 1, 2));
    EXPECT_FALSE(window());
}

TEST_F(LongProgressTest, MovesThroughAFolderOf3000Files)
{
    makeManyFiles();
    EXPECT_EQ(pack(-1), true);
    ASSERT_GT(values.size(), manyFiles - 10);
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_EQ(values.last(), manyFiles - 1);
    EXPECT_EQ(most, manyFiles);
    EXPECT_EQ(ZipReader::open(folder.file(u"p.zip"_s))->count(), manyFiles);
    EXPECT_FALSE(window());
}

TEST_F(LongProgressTest, CancelStopsThePackingOf3000FilesAndLeavesNoZip)
{
    makeManyFiles();
    EXPECT_EQ(pack(1000), false);
    ASSERT_FALSE(values.isEmpty());
    EXPECT_LE(values.last(), 1001);
    EXPECT_FALSE(folder.exists(u"p.zip"_s));
    EXPECT_FALSE(window());
}

TEST_F(LongProgressTest, CancelStopsTheUnpackingOf3000Files)
{
    makeManyFiles();
    ASSERT_TRUE(packFolder(folder.file(u"p"_s) + u'/', folder.file(u"p.zip"_s),
                           [](const QString &, int, int) { return true; })
                    .value_or(false));
    const QString in = folder.file(u"in"_s) + u'/';
    QDir().mkpath(in);
    auto zip = ZipReader::open(folder.file(u"p.zip"_s));
    ASSERT_TRUE(zip);
    LongProgress progress(u"Unpacking the files"_s, nullptr, 0);
    const UnpackReport report =
        unpackZip(*zip, in,
                  { .overwrite = [](const QString &) { return UnpackQuestions::Overwrite::Stop; },
                    .goOn = [](qint64, qint64) { return true; },
                    .progress =
                        [&](const QString &name, int done, int all) {
                            const bool goesOn = progress.step(name, done, all);
                            look(200);
                            return goesOn;
                        } });
    EXPECT_TRUE(report.stopped);
    EXPECT_GE(report.written.size(), 200);
    EXPECT_LE(report.written.size(), 201);
    EXPECT_EQ(most, manyFiles);
    EXPECT_FALSE(window());
}

TEST_F(LongProgressTest, ALongNameIsShownByItsEnd)
{
    LongProgress progress(u"Packing the files"_s, nullptr, 0);
    EXPECT_TRUE(progress.step(QString(200, u'x') + u"/sheet.bmp"_s, 0, 2));
    ASSERT_TRUE(window());
    const QString text = window()->labelText();
    EXPECT_TRUE(text.startsWith(u"...") && text.endsWith(u"/sheet.bmp")) << text.toStdString();
    EXPECT_LT(text.size(), 100);
}
