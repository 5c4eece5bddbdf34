// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layoutsave.h"
#include "layouts/files/layoutsize.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace zeph;

namespace {

template <class T> T *in(const QWidget &window, const QString &name)
{
    return window.findChild<T *>(name);
}

void click(const QWidget &window, const QString &name)
{
    in<QPushButton>(window, name)->click();
}

} // namespace

TEST(LayoutSave, RefusesANameThatNoFileCanHave)
{
    LayoutSave window({ u"Old"_s });
    window.show();
    const auto *ok = in<QPushButton>(window, u"cmdOK"_s);
    const auto *hint = in<QLabel>(window, u"LabelHint"_s);
    auto *combo = in<QComboBox>(window, u"Combo1"_s);
    EXPECT_EQ(window.name(), QString());
    EXPECT_TRUE(ok->isEnabled()) << "an empty name ends the save";
    for (const QString &name : { u"a/b"_s, u"a?"_s, u"temp"_s }) {
        combo->setEditText(name);
        EXPECT_FALSE(ok->isEnabled()) << name.toStdString();
        EXPECT_FALSE(hint->text().isEmpty());
        EXPECT_GE(hint->height(), hint->heightForWidth(hint->width())) << name.toStdString();
    }
    combo->setEditText(u"Falcon 4"_s);
    EXPECT_TRUE(ok->isEnabled());
    EXPECT_TRUE(hint->text().isEmpty());
    EXPECT_EQ(window.name(), u"Falcon 4");
}

TEST(LayoutSave, TakesTheNameOnEnterAndNothingOnEscape)
{
    LayoutSaveText window({ u"Old"_s });
    EXPECT_EQ(window.objectName(), u"LayoutSaveText");
    window.show();
    QTest::keyClicks(in<QComboBox>(window, u"Combo1"_s), u"New"_s);
    QTest::keyClick(in<QComboBox>(window, u"Combo1"_s)->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(window.result(), QDialog::Accepted);
    EXPECT_EQ(window.name(), u"New");
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(window.result(), QDialog::Rejected);
}

TEST(LayoutSize, ShowsAndGivesTheChoice)
{
    LayoutSize window({ QSize(1043, 714), false, true }, QSize(800, 963));
    EXPECT_EQ(window.choice(), (LayoutSizeChoice{ QSize(1043, 714), false, true }));
    in<QLineEdit>(window, u"TextWidth"_s)->setText(u"399.9"_s);
    in<QLineEdit>(window, u"TextHeight"_s)->setText(u"812.7"_s);
    in<QCheckBox>(window, u"CheckDefault"_s)->setChecked(true);
    in<QCheckBox>(window, u"CheckReposition"_s)->setChecked(false);
    EXPECT_EQ(window.choice(), (LayoutSizeChoice{ QSize(400, 812), true, false }));
}

TEST(LayoutSize, SwapExchangesTheTwo)
{
    LayoutSize window({ QSize(1043, 714), false, true }, {});
    click(window, u"Swap"_s);
    EXPECT_EQ(window.choice().size, QSize(714, 1043));
}

TEST(LayoutSize, TheOptimumIsOfferedOnlyWithAPrinter)
{
    LayoutSize with({ QSize(1043, 714), false, true }, QSize(800, 963));
    with.show();
    EXPECT_TRUE(in<QPushButton>(with, u"cmdOptimum"_s)->isVisible());
    click(with, u"cmdOptimum"_s);
    EXPECT_EQ(with.choice().size, QSize(800, 963));
    LayoutSize without({ QSize(1043, 714), false, true }, {});
    without.show();
    EXPECT_FALSE(in<QPushButton>(without, u"cmdOptimum"_s)->isVisible());
}

TEST(LayoutSize, SaysThatTheCustomSheetIsLeftOut)
{
    const LayoutSize window({ QSize(1043, 714), false, true }, {});
    EXPECT_EQ(in<QLabel>(window, u"LabelNote"_s)->text(),
              u"Note: Doesn't apply to the Custom Layout Editor");
    EXPECT_EQ(in<QPushButton>(window, u"cmdOptimum"_s)->text(),
              u"&Use optimum values for the current printer");
}
