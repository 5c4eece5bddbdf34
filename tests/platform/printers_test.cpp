// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/printers.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QPrinter>

#ifdef Q_OS_WIN
#include <qt_windows.h>

#include <winspool.h>
#endif

using namespace zeph;
using test::TempFolder;

TEST(SystemPrinters, KeepTheirOrientationAndTheMarginsOfAllThatIsPrinted)
{
    SystemPrinters printers;
    EXPECT_EQ(printers.orientation(), PageOrientation::Portrait);
    printers.setOrientation(PageOrientation::Landscape);
    EXPECT_EQ(printers.orientation(), PageOrientation::Landscape);
    const QMarginsF margins = printers.printer().pageLayout().margins(QPageLayout::Millimeter);
    for (const double margin :
         { margins.left(), margins.top(), margins.right(), margins.bottom() }) {
        EXPECT_NEAR(margin, 15, 0.2);
    }
}

TEST(SystemPrinters, TheirDeviceWritesAFileWherePaperIsNotAtHand)
{
    const TempFolder folder;
    SystemPrinters printers;
    QPrinter &printer = printers.printer();
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.file(u"Blatt für Jürgen.pdf"_s));
    QPainter painter(&printer);
    ASSERT_TRUE(painter.isActive());
    painter.drawLine(100, 100, 200, 200);
    painter.end();
    EXPECT_TRUE(folder.read(u"Blatt für Jürgen.pdf"_s).startsWith("%PDF"));
}

#ifdef Q_OS_WIN

TEST(SystemPrinters, AreThoseThatWindowsLists)
{
    constexpr DWORD listed = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    DWORD needed = 0;
    DWORD count = 0;
    EnumPrintersW(listed, nullptr, 4, nullptr, 0, &needed, &count);
    std::vector<BYTE> rows(needed);
    if (needed > 0) {
        ASSERT_TRUE(EnumPrintersW(listed, nullptr, 4, rows.data(), needed, &needed, &count));
    }
    EXPECT_EQ(SystemPrinters().count(), int(count));
}

#endif
