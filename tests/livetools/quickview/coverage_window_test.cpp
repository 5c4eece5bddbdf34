// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/coverage_window.h"

#include "livetools/quickview/coverage_settings.h"
#include "platform/core/profile_file.h"
#include "tests/support/fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace zeph;

namespace {

constexpr int s1 = 15; ///< the row of S1
constexpr int s2 = 16;

class CoverageWindowTest : public test::WorldTest
{
protected:
    void SetUp() override { open(); }
    void open()
    {
        window = std::make_unique<CoverageWindow>(context());
        QObject::connect(window.get(), &CoverageWindow::jumpTo, window.get(),
                         [this](CellPlace cell) { jumps.push_back(cell); });
        load(u"BTN S1 /U Fire\n/M b\n/D Fire\nBTN S2 /U /I c\n"_s);
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
    }
    void load(const QString &file)
    {
        window->show(AssignToArray(digestOf(file)),
                     MacroKeys(extractMacros(usableMacroLines(u"Fire = SPC\n"))));
    }
    QTableView &table() { return *window->findChild<QTableView *>(u"TableCoverage"_s); }
    /// The middle of a cell of the table as it is shown, rows and columns from 0.
    QPoint middleOf(int row, int column)
    {
        return table().visualRect(table().model()->index(row, column)).center();
    }
    void clickCell(int row, int column, Qt::KeyboardModifiers held = {})
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, held, middleOf(row, column));
    }
    void key(int key, Qt::KeyboardModifiers held = {})
    {
        QTest::keyClick(&table(), Qt::Key(key), held);
    }
    void filter(int index)
    {
        window->findChild<QRadioButton *>(u"OptionShow_%1"_s.arg(index))->click();
    }
    QString count() { return window->findChild<QLabel *>(u"LabelCount"_s)->text(); }
    /// The chosen cell, which is the only one selected.
    CellPlace chosen()
    {
        EXPECT_EQ(table().selectionModel()->selectedIndexes(),
                  QModelIndexList{ table().currentIndex() });
        return window->chosen();
    }

    std::unique_ptr<CoverageWindow> window;
    std::vector<CellPlace> jumps;
};

} // namespace

TEST_F(CoverageWindowTest, TellsTheCountInWords)
{
    EXPECT_EQ(count(),
              u"7 of 324 positions are used, 4 of them the same as in another mode; 317 "
              "are empty."_s);
    load(QString());
    EXPECT_EQ(count(), u"None of 324 positions is used."_s);
}

TEST_F(CoverageWindowTest, AClickOnACellJumpsThere)
{
    filter(2);
    clickCell(1, 0);
    EXPECT_EQ(jumps, (std::vector<CellPlace>{ { s2, 1 } }));
    clickCell(0, 5);
    EXPECT_EQ(jumps.back(), (CellPlace{ s1, 6 }));
}

TEST_F(CoverageWindowTest, AClickOnABlankCellOrWithCtrlJumpsNowhere)
{
    filter(2);
    clickCell(1, 3);
    clickCell(0, 0, Qt::ControlModifier);
    clickCell(0, 2, Qt::ShiftModifier);
    EXPECT_TRUE(jumps.empty());
}

TEST_F(CoverageWindowTest, ArrowsAndEnterJumpWithoutAMouse)
{
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(chosen(), (CellPlace{ 1, 1 }));
    for (int step = 0; step < 10; ++step) {
        key(Qt::Key_Down);
    }
    key(Qt::Key_Right);
    EXPECT_EQ(chosen(), (CellPlace{ s1, 2 }));
    key(Qt::Key_Return);
    key(Qt::Key_Enter);
    EXPECT_EQ(jumps, (std::vector<CellPlace>{ { s1, 2 }, { s1, 2 } }));
}

TEST_F(CoverageWindowTest, ArrowsGoOverBlankCells)
{
    filter(3);
    EXPECT_EQ(chosen(), (CellPlace{ s1, 1 }));
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(chosen(), (CellPlace{ s1, 5 }));
}

TEST_F(CoverageWindowTest, TheChosenCellStaysWhenTheFileChanges)
{
    window->findChild<QTableView *>(u"TableCoverage"_s)
        ->setCurrentIndex(table().model()->index(11, 3));
    EXPECT_EQ(chosen(), (CellPlace{ s2, 4 }));
    load(u"BTN T1 x\nBTN S2 /U /I c\n"_s);
    EXPECT_EQ(chosen(), (CellPlace{ s2, 4 }));
    EXPECT_TRUE(count().startsWith(u"7 of 324"));
}

TEST_F(CoverageWindowTest, TheChosenCellStaysAmongTheControlsThatAFilterShows)
{
    filter(2);
    clickCell(1, 0);
    load(u"BTN T1 x\nBTN S2 /U /I c\n"_s);
    EXPECT_EQ(table().currentIndex(), table().model()->index(1, 0));
    EXPECT_EQ(chosen(), (CellPlace{ s2, 1 }));
    filter(0);
    EXPECT_EQ(chosen(), (CellPlace{ s2, 1 }));
}

TEST_F(CoverageWindowTest, AChosenCellThatTheFilterHidesIsChosenAgainAfterwards)
{
    filter(2);
    clickCell(1, 0);
    filter(3);
    EXPECT_EQ(chosen(), (CellPlace{ s1, 1 }));
    filter(0);
    EXPECT_EQ(chosen(), (CellPlace{ s2, 1 }));
}

TEST_F(CoverageWindowTest, WhatIsChosenInsteadOfAHiddenCellIsTheUsersOnceItMoves)
{
    filter(2);
    clickCell(1, 0);
    filter(3);
    key(Qt::Key_Right);
    filter(0);
    EXPECT_EQ(chosen(), (CellPlace{ s1, 2 }));
}

TEST_F(CoverageWindowTest, CtrlCCopiesTheSelectedCells)
{
    filter(2);
    clickCell(0, 1);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"Fire"_s);
    key(Qt::Key_Right, Qt::ShiftModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"\t/U /O\t/M /I\nS1\tFire\tb"_s);
}

TEST_F(CoverageWindowTest, CellsOfEachUseHaveAGroundOfTheirOwn)
{
    filter(0);
    table().clearSelection();
    table().setCurrentIndex({});
    const QImage image = table().viewport()->grab().toImage();
    const auto ground = [&](int row, int column) {
        // Near the right edge, where no text is.
        const QRect cell = table().visualRect(table().model()->index(row, column));
        const qreal scale = image.devicePixelRatio();
        return image.pixelColor((QPointF(cell.right() - 3, cell.top() + 3) * scale).toPoint());
    };
    const QColor empty = ground(11, 1);
    EXPECT_EQ(empty, table().palette().color(QPalette::Base));
    EXPECT_GT(ground(10, 2).green(), ground(10, 2).blue()) << "used";
    EXPECT_GT(ground(10, 0).blue(), ground(10, 0).green()) << "the same";
}

TEST_F(CoverageWindowTest, TabLeavesTheTable)
{
    key(Qt::Key_Tab);
    EXPECT_FALSE(table().hasFocus());
}

TEST_F(CoverageWindowTest, EscapeClosesItAndItsPlaceIsKept)
{
    window->resize(700, 420);
    window->move(60, 45);
    key(Qt::Key_Escape);
    EXPECT_TRUE(window->isHidden());
    const ProfileFile store(paths.iniPath);
    EXPECT_EQ(store.text(u"QuickView", u"CoverageLeft"), u"900"_s);
    EXPECT_EQ(store.text(u"QuickView", u"CoverageTop"), u"675"_s);
    open();
    EXPECT_EQ(window->pos(), QPoint(60, 45));
    EXPECT_EQ(window->size(), QSize(700, 420));
}

TEST_F(CoverageWindowTest, ItsPlaceIsKeptWhenItGoesWithItsOwner)
{
    window->resize(700, 420);
    window->move(75, 30);
    window.reset();
    open();
    EXPECT_EQ(window->pos(), QPoint(75, 30));
}

TEST(CoverageSettingsTest, AreNoPartOfTheGlobalSave)
{
    for (const SettingKey &key : CoverageSettings::rows()) {
        EXPECT_FALSE(key.isSaved()) << key.key.toString().toStdString();
    }
}
