// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/places.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace zeph;

TEST(Places, EveryControlIsNamedAsTheLanguageNamesIt)
{
    EXPECT_EQ(controlOf(u"BTN_0"), u"S1");
    EXPECT_EQ(controlOf(u"BTN_3"), u"S4");
    EXPECT_EQ(controlOf(u"BTN_4"), u"T1");
    EXPECT_EQ(controlOf(u"BTN_13"), u"T10");
    EXPECT_EQ(controlOf(u"HAT_2"), u"HAT3");
    EXPECT_EQ(controlOf(u"H4DL"), u"H4DL");
    EXPECT_EQ(controlOf(u"DOG_U"), u"/U");
    EXPECT_EQ(controlOf(u"BTN_14"), QString());
}

TEST(Places, TheNameLeadsBackToTheControl)
{
    EXPECT_EQ(idOf(u"T10"), u"BTN_13");
    EXPECT_EQ(idOf(u"TG2"), u"TG2");
    EXPECT_EQ(idOf(u"/D"), u"DOG_D");
    EXPECT_EQ(idOf(u"t10"), QString());
    for (const QStringView drawing :
         { u"F-16 Block 50", u"Straight grip", u"Throttle", u"Rudders" }) {
        for (const ControlPlace &each : placesOn(drawing)) {
            EXPECT_EQ(idOf(each.control), each.id);
        }
    }
}

TEST(Places, APersonHearsWhatAHotSpotIs)
{
    EXPECT_EQ(spokenName(u"BTN_2"), u"Button S3");
    EXPECT_EQ(spokenName(u"BTN_9"), u"Button T6");
    EXPECT_EQ(spokenName(u"HAT_0"), u"Hat H1");
    EXPECT_EQ(spokenName(u"TRIG"), u"Trigger");
    EXPECT_EQ(spokenName(u"RNG"), QString());
    EXPECT_EQ(spokenName(u"BTN_99"), QString());
}

TEST(Places, ADrawingIsFoundByItsFileInAnyCase)
{
    for (const QStringView name : { u"Throttle", u"throttle.BMP", u"Throttle.bmp" }) {
        ASSERT_TRUE(drawingNamed(name)) << name.toString().toStdString();
        EXPECT_EQ(drawingNamed(name)->name, u"Throttle");
    }
    EXPECT_FALSE(drawingNamed(u"Throttle 2.bmp"));
    EXPECT_FALSE(drawingNamed(u""));
}

TEST(Places, EachPictureHasItsHotSpotsInTheOrderOfTheirNumbers)
{
    const auto idsOn = [](QStringView name) {
        const auto drawing = drawingNamed(name);
        QStringList ids;
        for (const HotSpot &each : hotSpotsOn(*drawing, drawing->size)) {
            ids.append(each.id);
        }
        return ids.join(u' ');
    };
    EXPECT_EQ(idsOn(u"F-16 Block 50"), u"BTN_0 BTN_1 BTN_2 BTN_3 HAT_0 HAT_1 HAT_2 HAT_3 TRIG");
    EXPECT_EQ(idsOn(u"Straight grip"), u"BTN_0 BTN_1 BTN_2 HAT_0 HAT_1 HAT_2 HAT_3 TRIG");
    EXPECT_EQ(idsOn(u"Throttle"),
              u"BTN_4 BTN_5 BTN_6 BTN_7 BTN_8 BTN_9 BTN_10 BTN_11 BTN_12 BTN_13");
    EXPECT_EQ(idsOn(u"Rudders"), QString());
}

TEST(Places, APictureOfAnotherSizeHasItsHotSpotsInProportion)
{
    const auto drawing = drawingNamed(u"Throttle");
    const QList<HotSpot> own = hotSpotsOn(*drawing, drawing->size);
    const QList<HotSpot> wide =
        hotSpotsOn(*drawing, { drawing->size.width() * 3, drawing->size.height() * 2 });
    ASSERT_EQ(wide.size(), own.size());
    for (qsizetype i = 0; i < own.size(); ++i) {
        const QRect &place = own[i].place;
        EXPECT_EQ(wide[i].place,
                  QRect(place.x() * 3, place.y() * 2, place.width() * 3, place.height() * 2));
    }
}
