// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/formdownloadstatus.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QtTest/QTest>

using namespace zeph;

namespace {

QProgressBar *barOf(const FormDownloadStatus &window)
{
    return window.findChild<QProgressBar *>(u"ProgressBar"_s);
}

} // namespace

TEST(FormDownloadStatus, SaysWhatGoesOnAndWhyItIsThere)
{
    const FormDownloadStatus window(u"Downloading <b>&a.tmj"_s, 45);
    EXPECT_EQ(window.windowTitle(), u"Compile/Download status");
    auto *caption = window.findChild<QLabel *>(u"LabelStatus"_s);
    EXPECT_EQ(caption->text(), u"Downloading <b>&a.tmj");
    EXPECT_EQ(caption->textFormat(), Qt::PlainText);
    EXPECT_EQ(
        window.findChild<QLabel *>(u"LabelWhy"_s)->text(),
        u"This window appears when compiling or downloading a joystick file takes longer than "
        u"2 seconds.");
    EXPECT_EQ(barOf(window)->minimum(), 0);
    EXPECT_EQ(barOf(window)->maximum(), 45);
}

TEST(FormDownloadStatus, TheBarHoldsNoMoreThanItsLength)
{
    FormDownloadStatus window(u"x"_s, 45);
    window.setSeconds(7);
    EXPECT_EQ(barOf(window)->value(), 7);
    window.setSeconds(60);
    EXPECT_EQ(barOf(window)->value(), 45);
}

TEST(FormDownloadStatus, AShortLimitDoesNotTurnTheBarIntoAnEndlessOne)
{
    const FormDownloadStatus window(u"x"_s, 0);
    EXPECT_EQ(barOf(window)->maximum(), 1);
}

TEST(FormDownloadStatus, EscapeClosesIt)
{
    QPointer<FormDownloadStatus> window = new FormDownloadStatus(u"x"_s, 45);
    window->show();
    QTest::keyClick(window, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window.isNull());
}
