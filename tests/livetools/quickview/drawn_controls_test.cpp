// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/drawn_controls.h"

#include "cougar/handle_list.h"
#include "tests/cougar/shipped_pictures.h"

#include <gtest/gtest.h>

#include <QPainterPath>

using namespace zeph;

namespace {

const QSizeF least(pictureSize.width() + 2 * pictureMargin,
                   pictureSize.height() + 2 * pictureMargin);

struct DrawnControlsTest : testing::Test {
    test::PicturesFolder folder;

    DrawnControls controls(const QString &handle)
    {
        const QString store = folder.file(u"Zeph.ini"_s);
        EXPECT_TRUE(SaveHandle(ProfileFile(store), handle));
        return drawnControls(folder.path(), store);
    }
};

/// What no line may cross, named for the failure's message.
std::vector<std::pair<QString, QRectF>> obstacles(const PicturePlan &plan, int except)
{
    std::vector<std::pair<QString, QRectF>> all = { { u"the title"_s, plan.title } };
    for (const QRectF &box : plan.positions) {
        all.push_back({ u"a box"_s, box });
    }
    for (int hat = 0; hat < hatCount; ++hat) {
        if (hat != hatOfRow(except)) {
            all.push_back({ u"a hat's frame"_s, plan.hats[size_t(hat)] });
        }
    }
    for (int row = 1; row <= rowCount; ++row) {
        if (hatOfRow(row) < 0 && row != except && !plan.label(row).isEmpty()) {
            all.push_back({ controlName(row).toString(), plan.label(row) });
        }
    }
    return all;
}

/// Whether any part of the way is within the rectangle.
bool crosses(const std::vector<QPointF> &way, const QRectF &rectangle)
{
    for (size_t at = 1; at < way.size(); ++at) {
        // A path of two points has no area, only the line.
        QPainterPath part(way[at - 1]);
        part.lineTo(way[at]);
        if (part.intersects(rectangle)) {
            return true;
        }
    }
    return false;
}

const QString handles[] = { u"F-16 Block 50"_s, u"Straight grip"_s };

} // namespace

TEST_F(DrawnControlsTest, EveryControlOfTheHandleHasAPlaceOnItsDrawing)
{
    const PicturePlan plan = picturePlan(least);
    for (const QString &handle : handles) {
        const DrawnControls drawn = controls(handle);
        for (int row = 1; row <= rowCount; ++row) {
            const DrawnPlace &place = drawn.joinedTo(row);
            const bool isMissing = handle == handles[1] && controlName(row) == u"S4";
            EXPECT_EQ(place.place.isEmpty(), controlName(row).isEmpty() || isMissing) << row;
            if (place.place.isEmpty()) {
                continue;
            }
            const bool isOnThrottle = row <= 10 || isRotaryRow(row);
            EXPECT_EQ(place.onThrottle, isOnThrottle) << row;
            const QRectF shown = placeOnWidget(drawn, plan, place);
            EXPECT_FALSE(shown.isEmpty()) << row;
            EXPECT_TRUE((isOnThrottle ? plan.throttle : plan.stick).contains(shown)) << row;
        }
    }
}

TEST_F(DrawnControlsTest, NoLineCrossesALabelOrAFrameOrABox)
{
    for (const QString &handle : handles) {
        const DrawnControls drawn = controls(handle);
        for (const QSizeF &size : { least, QSizeF(1920, 980), QSizeF(1100, 1600) }) {
            const PicturePlan plan = picturePlan(size);
            for (int row = 1; row <= rowCount; ++row) {
                const QRectF joined = placeOnWidget(drawn, plan, drawn.joinedTo(row));
                if (joined.isEmpty()) {
                    continue;
                }
                for (const auto &[name, place] : obstacles(plan, row)) {
                    EXPECT_FALSE(crosses(joiningLine(plan, row, joined.center()),
                                         place.adjusted(1, 1, -1, -1)))
                        << controlName(row).toString().toStdString() << " crosses "
                        << name.toStdString() << " at width " << size.width();
                }
            }
        }
    }
}

TEST_F(DrawnControlsTest, ADrawingKeepsItsShapeInTheMiddleOfItsRoom)
{
    const DrawnControls drawn = controls(handles[0]);
    const PicturePlan plan = picturePlan({ 2400, 800 });
    for (const bool throttle : { true, false }) {
        const QRectF shown = drawingOnWidget(drawn, plan, throttle);
        const QSizeF size = (throttle ? drawn.throttle : drawn.stick).size();
        EXPECT_NEAR(shown.width() / shown.height(), size.width() / size.height(), .01);
        EXPECT_EQ(shown.center(), (throttle ? plan.throttle : plan.stick).center());
    }
}

TEST(DrawnControls, APlaceOfNoDrawingIsNowhere)
{
    EXPECT_TRUE(placeOnWidget({}, picturePlan(least), {}).isEmpty());
}
