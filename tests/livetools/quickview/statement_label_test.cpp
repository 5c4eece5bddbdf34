// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/statement_label.h"

#include <gtest/gtest.h>

#include <QImage>

#include <cmath>

using namespace zeph;

namespace {

constexpr QSize size(120, 30);

struct StatementLabelTest : testing::Test {
    QWidget window;
    StatementLabel label{ u"T1"_s, u"T1"_s, &window };

    void SetUp() override
    {
        window.resize(200, 60);
        label.setGeometry({ {}, size });
        window.show();
        window.activateWindow();
    }
    QImage drawn() { return label.grab().toImage(); }
};

qreal lightness(const QColor &colour)
{
    const auto linear = [](qreal part) {
        return part <= .03928 ? part / 12.92 : std::pow((part + .055) / 1.055, 2.4);
    };
    return .2126 * linear(colour.redF()) + .7152 * linear(colour.greenF())
        + .0722 * linear(colour.blueF());
}

/// The contrast of two colours as accessibility guidelines count it: 1 for none, 21 for the most.
qreal contrast(const QColor &one, const QColor &other)
{
    const qreal a = lightness(one);
    const qreal b = lightness(other);
    return (std::max(a, b) + .05) / (std::min(a, b) + .05);
}

/// The most that any pixel within a rectangle stands out from the ground.
qreal mostContrast(const QImage &image, const QRect &within, const QColor &ground)
{
    qreal most = 1;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            most = std::max(most, contrast(image.pixelColor(x, y), ground));
        }
    }
    return most;
}

QPalette dark()
{
    QPalette palette(QColor(45, 48, 52));
    palette.setColor(QPalette::Base, QColor(30, 32, 35));
    return palette;
}

} // namespace

TEST_F(StatementLabelTest, TheNameOfAControlWithoutAStatementCanBeRead)
{
    for (const QPalette &palette : { QPalette(QColor(239, 239, 239)), dark() }) {
        window.setPalette(palette);
        label.showText({}, {}, false);
        const QColor ground = palette.color(QPalette::Window);
        EXPECT_GT(mostContrast(drawn(), { 6, 4, 30, 22 }, ground), 3);
    }
}

TEST_F(StatementLabelTest, TheFocusIsAFrameOfTwoPixels)
{
    label.showText(u"Fire"_s, {}, true);
    label.setFocus();
    QApplication::processEvents();
    ASSERT_TRUE(label.hasFocus());
    const QColor highlight = label.palette().color(QPalette::Highlight);
    const QImage focused = drawn();
    EXPECT_EQ(focused.pixelColor(60, 0), highlight);
    EXPECT_EQ(focused.pixelColor(60, 1), highlight);
    label.clearFocus();
    EXPECT_NE(drawn().pixelColor(60, 1), highlight);
}

TEST_F(StatementLabelTest, MarksDoNotCoverTheText)
{
    const QRect marks(size.width() - 17, 1, 16, size.height() - 2);
    const auto darkPixels = [&](const LabelMarks &shown) {
        label.setMarks(shown);
        const QImage image = drawn();
        int found = 0;
        for (int y = marks.top(); y <= marks.bottom(); ++y) {
            for (int x = marks.left(); x <= marks.right(); ++x) {
                found += image.pixelColor(x, y).lightness() < 60 ? 1 : 0;
            }
        }
        return found;
    };
    window.setPalette(QPalette(QColor(239, 239, 239)));
    label.showText(QString(200, u'M'), {}, true);
    EXPECT_GT(darkPixels({}), 0) << "the text goes to the edge";
    EXPECT_EQ(darkPixels({ .sends = SendsSought::Elsewhere }), 0);
}

TEST_F(StatementLabelTest, WithoutAStatementItIsDisabledAndWithAnEmptyOneItIsNot)
{
    label.showText(u"Fire"_s, u"Fire_Gun"_s, true);
    EXPECT_TRUE(label.isEnabled());
    EXPECT_TRUE(label.accessibleName().contains(u"Fire"));
    label.showText({}, u"4 3"_s, true);
    EXPECT_TRUE(label.isEnabled());
    label.showText({}, {}, false);
    EXPECT_FALSE(label.isEnabled());
}
