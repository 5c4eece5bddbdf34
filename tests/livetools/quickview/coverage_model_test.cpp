// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/coverage_model.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace zeph;
using testing::ElementsAre;

namespace {

class CoverageModelTest : public testing::Test
{
protected:
    CoverageModelTest() { load(u"BTN S1 /U Fire\n/M b\n/D Fire\nBTN S2 /U /I <c d>\n"_s); }
    void load(const QString &file)
    {
        model.setTable(AssignToArray(digestOf(file)),
                       MacroKeys(extractMacros(usableMacroLines(u"Fire = SPC\n"))));
    }
    QModelIndex cell(QStringView control, int column) const
    {
        return model.indexOf({ rowOfControl(control), column });
    }
    std::string shown(QStringView control) const
    {
        QStringList texts;
        for (int column = 1; column <= columnCount; ++column) {
            texts.append(cell(control, column).data().toString());
        }
        return texts.join(u'|').toStdString();
    }
    std::vector<std::string> controls() const
    {
        std::vector<std::string> names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names.push_back(
                model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString().toStdString());
        }
        return names;
    }
    QString tip(QStringView control, int column) const
    {
        return cell(control, column).data(Qt::AccessibleTextRole).toString();
    }

    CoverageModel model;
    QAbstractItemModelTester tester{ &model,
                                     QAbstractItemModelTester::FailureReportingMode::Warning };
};

} // namespace

TEST_F(CoverageModelTest, HasARowAControlAndAColumnACombination)
{
    EXPECT_EQ(model.rowCount(), 54);
    EXPECT_EQ(model.columnCount(), 6);
    EXPECT_EQ(controls().front(), "T1");
    EXPECT_EQ(controls().back(), "ANT");
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"/U /I"_s);
    EXPECT_EQ(model.headerData(5, Qt::Horizontal, Qt::DisplayRole).toString(), u"/D /O"_s);
    EXPECT_EQ(model.headerData(5, Qt::Horizontal, Qt::ToolTipRole).toString(),
              u"Dogfight switch down, S3 let go"_s);
}

TEST_F(CoverageModelTest, ASignTellsUsedEmptyAndTheSame)
{
    EXPECT_EQ(shown(u"S1"), "= Fire|= Fire|● b|● b|= Fire|= Fire");
    EXPECT_EQ(shown(u"S2"), "● <c d>|–|–|–|–|–");
}

TEST_F(CoverageModelTest, TheTipTellsPlaceUseTextAndKeys)
{
    EXPECT_EQ(tip(u"S1", 1), u"S1, /U /I: the same as in /D /I\nFire\nSPC"_s);
    EXPECT_EQ(tip(u"S1", 4), u"S1, /M /O: used\nb"_s);
    EXPECT_EQ(tip(u"S2", 6), u"S2, /D /O: empty"_s);
}

TEST_F(CoverageModelTest, BracketsInATipAreNoMarkup)
{
    EXPECT_TRUE(cell(u"S2", 1).data(Qt::ToolTipRole).toString().contains(u"&lt;c d&gt;"));
}

TEST_F(CoverageModelTest, AFilterLeavesOutControlsThatHaveNothingOfItAndBlanksTheOtherCells)
{
    model.setFilter(CoverageFilter::Used);
    EXPECT_THAT(controls(), ElementsAre("S1", "S2"));
    EXPECT_EQ(shown(u"S1"), "= Fire|= Fire|● b|● b|= Fire|= Fire");
    EXPECT_EQ(shown(u"S2"), "● <c d>|||||");
    model.setFilter(CoverageFilter::Same);
    EXPECT_THAT(controls(), ElementsAre("S1"));
    EXPECT_EQ(shown(u"S1"), "= Fire|= Fire|||= Fire|= Fire");
    model.setFilter(CoverageFilter::Empty);
    EXPECT_EQ(model.rowCount(), 53);
    EXPECT_EQ(shown(u"S2"), "|–|–|–|–|–");
}

TEST_F(CoverageModelTest, ABlankCellCannotBeChosenAndIsNoPlace)
{
    model.setFilter(CoverageFilter::Same);
    const QModelIndex blank = model.index(0, 2);
    EXPECT_EQ(model.flags(blank), Qt::ItemFlags());
    EXPECT_EQ(model.placeOf(blank), CellPlace());
    EXPECT_EQ(model.placeOf({}), CellPlace());
    EXPECT_EQ(model.placeOf(model.index(0, 4)), (CellPlace{ rowOfControl(u"S1"), 5 }));
    EXPECT_FALSE(cell(u"S2", 1).isValid());
    EXPECT_TRUE(model.flags(model.index(0, 4)) & Qt::ItemIsSelectable);
}

TEST_F(CoverageModelTest, TheFirstShownCellIsLookedForFromTheLeft)
{
    EXPECT_EQ(model.firstShown(), model.index(0, 0));
    load(u"BTN S1 /U a\n/M b\n/D b\n"_s);
    model.setFilter(CoverageFilter::Same);
    EXPECT_EQ(model.firstShown(), model.index(0, 2));
    load(QString());
    EXPECT_FALSE(model.firstShown().isValid());
}

TEST_F(CoverageModelTest, TheCountIsOfAllCellsWhateverTheFilter)
{
    model.setFilter(CoverageFilter::Same);
    EXPECT_EQ(model.count(), (CoverageCount{ 324, 7, 4 }));
}

TEST_F(CoverageModelTest, IndexesStayWhileTheSameControlsHaveARow)
{
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    load(u"BTN S1 x\n"_s);
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(changes.count(), 1);
    model.setFilter(CoverageFilter::Used);
    EXPECT_EQ(resets.count(), 1);
}

TEST_F(CoverageModelTest, OneCellIsCopiedAsItsTextAlone)
{
    EXPECT_EQ(model.copied({ cell(u"S1", 1) }), u"Fire"_s);
    EXPECT_EQ(model.copied({ cell(u"S2", 2) }), QString());
    EXPECT_EQ(model.copied({}), QString());
}

TEST_F(CoverageModelTest, SeveralCellsAreCopiedInTheirRectangleUnderTheirHeadings)
{
    EXPECT_EQ(model.copied({ cell(u"S2", 1), cell(u"S1", 3) }),
              u"\t/U /I\t/U /O\t/M /I\nS1\tFire\tFire\tb\nS2\t<c d>\t\t"_s);
}
