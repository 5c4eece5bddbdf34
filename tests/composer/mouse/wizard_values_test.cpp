// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/wizard_values.h"

#include "tests/composer/generators/generator_rows.h"

#include <QLocale>

using namespace zeph;

namespace mouse_wizard_values_tests {

namespace {

const QString refused =
    u"No statement to insert: You haven't setup the mouse movements correctly in the Image Viewer "
    u"buddy. Go back and follow the instructions."_s;

constexpr QSize screen(1000, 500);
constexpr QPointF centre(400, 200);

MouseWizardFields moved(MouseMovement movement, const Measures &measures)
{
    MouseWizardFields fields;
    fields.measures = measures;
    fields.picture = screen;
    fields.movement = movement;
    return fields;
}

/// A rotation about the centre, from one place to another, given as ways from the centre.
MouseWizardFields rotation(const QPointF &from, const QPointF &to)
{
    MouseWizardFields fields =
        moved(MouseMovement::Rotation, { centre, centre + from, centre + to });
    fields.macro = u"MOUSE_LB"_s;
    fields.steps = u"2"_s;
    return fields;
}

QString turnedBy(const Expected<RotateTexts, Refusal> &values)
{
    return values ? toldBy(rotateStatement(*values))
                  : values.error().title + u": "_s + values.error().text;
}

struct PlaceRow {
    QStringView origin;
    QStringView pixels;
    QStringView percent;
};

constexpr PlaceRow placeRows[] = {
    { u"UL", u"400, 200", u"40%, 40%" },        { u"UR", u"600, 200", u"60%, 40%" },
    { u"DL", u"400, 300", u"40%, 60%" },        { u"DR", u"600, 300", u"60%, 60%" },
    { u"CENTRE", u"-100, -50", u"-10%, -10%" }, { u"CENTER", u"-100, -50", u"-10%, -10%" },
};

struct WayRow {
    QPointF way;
    QStringView pixels;
    QStringView percent;
};

constexpr WayRow wayRows[] = {
    { { 30, 20 }, u"30, 20", u"3%, 4%" },
    { { -30, 20 }, u"-30, 20", u"-3%, 4%" },
    { { -30, -20 }, u"-30, -20", u"-3%, -4%" },
    { { 30, -20 }, u"30, -20", u"3%, -4%" },
    { { 30, 0 }, u"30, 0", u"3%, 0%" },
    { { 0, 1 }, u"0, 1", u"0%, 0.2%" },
    { { -400, -200 }, u"-400, -200", u"-40%, -40%" },
};

/// A way from the centre with its angle and its length.
struct AngleRow {
    QPointF way;
    QStringView angle;
    QStringView radius;
    QStringView percent;
};

constexpr AngleRow angleRows[] = {
    // The four axes, then the four quarters.
    { { 50, 0 }, u"0", u"50", u"5%" },
    { { 0, -50 }, u"90", u"50", u"5%" },
    { { -50, 0 }, u"180", u"50", u"5%" },
    { { 0, 50 }, u"270", u"50", u"5%" },
    { { 30, -30 }, u"45", u"42.4", u"4.2%" },
    { { -30, -30 }, u"135", u"42.4", u"4.2%" },
    { { -30, 30 }, u"225", u"42.4", u"4.2%" },
    { { 30, 30 }, u"315", u"42.4", u"4.2%" },
    { { 40, -30 }, u"36.9", u"50", u"5%" },
    { { -40, -30 }, u"143.1", u"50", u"5%" },
    { { -40, 30 }, u"216.9", u"50", u"5%" },
    { { 40, 30 }, u"323.1", u"50", u"5%" },
    // One pixel off an axis.
    { { 50, -1 }, u"1.1", u"50", u"5%" },
    { { 50, 1 }, u"358.9", u"50", u"5%" },
    { { 1, -50 }, u"88.9", u"50", u"5%" },
    { { -1, -50 }, u"91.1", u"50", u"5%" },
    { { 1, 0 }, u"0", u"1", u"0.1%" },
};

} // namespace

TEST(MouseWizardPlace, EachOriginInPixelsAndInPercent)
{
    for (const PlaceRow &row : placeRows) {
        MouseWizardFields fields = moved(MouseMovement::Absolute, { centre, {}, {} });
        fields.origin = row.origin.toString();
        EXPECT_EQ(toldBy(placeStatement(fields)),
                  u"MOUSEXY (%1, %2) "_s.arg(row.origin, row.pixels));
        fields.placeUnit = MouseUnit::Percent;
        EXPECT_EQ(toldBy(placeStatement(fields)),
                  u"MOUSEXY (%1, %2) "_s.arg(row.origin).arg(row.percent));
        EXPECT_EQ(measuredText(fields), row.percent.toString().remove(u' '));
    }
}

TEST(MouseWizardWay, EachDirectionInPixelsAndInPercent)
{
    for (const WayRow &row : wayRows) {
        MouseWizardFields fields = moved(MouseMovement::Relative, { centre, centre + row.way, {} });
        EXPECT_EQ(toldBy(placeStatement(fields)), u"MOUSEMOVE (%1) "_s.arg(row.pixels));
        EXPECT_EQ(measuredText(fields), row.pixels.toString().remove(u' '));
        fields.placeUnit = MouseUnit::Percent;
        EXPECT_EQ(toldBy(placeStatement(fields)), u"MOUSEMOVE (%1) "_s.arg(row.percent));
    }
}

TEST(MouseWizardWay, PercentagesKeepOneDecimalWithAPointWhereTheLocaleHasAComma)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    MouseWizardFields fields = moved(MouseMovement::Relative, { centre, QPointF(412, 201), {} });
    fields.placeUnit = MouseUnit::Percent;
    EXPECT_EQ(toldBy(placeStatement(fields)), u"MOUSEMOVE (1.2%, 0.2%) ");
    MouseWizardFields turn = rotation({ 40, -30 }, { -30, -40 });
    turn.rotateUnit = MouseUnit::Percent;
    EXPECT_EQ(turnedBy(rotateValues(turn)),
              u"MOUSEROTATE (UL, 40%, 40%, 5%, 36.9, [MOUSE_LB], CW, 126.9, 2)");
    QLocale::setDefault(before);
}

TEST(MouseWizardRotation, EachStartAngleInAllQuadrantsAndOnBothAxes)
{
    for (const AngleRow &row : angleRows) {
        MouseWizardFields fields = rotation(row.way, { 0, -50 });
        EXPECT_EQ(turnedBy(rotateValues(fields)),
                  u"MOUSEROTATE (UL, 400, 200, %1, %2, [MOUSE_LB], CW, 90, 2)"_s.arg(row.radius,
                                                                                     row.angle));
        fields.rotateUnit = MouseUnit::Percent;
        EXPECT_EQ(turnedBy(rotateValues(fields)),
                  u"MOUSEROTATE (UL, 40%, 40%, %1, %2, [MOUSE_LB], CW, 90, 2)"_s.arg(row.percent,
                                                                                     row.angle));
    }
}

TEST(MouseWizardRotation, EachFinalAngleAndNoughtIsAFullTurn)
{
    for (const AngleRow &row : angleRows) {
        const RotateTexts values = rotateValues(rotation({ 0, -50 }, row.way)).value();
        const QStringView expected = row.angle == u"0" ? u"360" : row.angle;
        EXPECT_EQ(values[RotateFinal], expected);
        EXPECT_EQ(values[RotateStart], u"90");
    }
}

TEST(MouseWizardRotation, APointStraightAboveTheCentreIsAt90)
{
    EXPECT_EQ(rotateValuesSoFar(rotation({ 0, -1 }, { 0, 1 }))[RotateStart], u"90");
    EXPECT_EQ(rotateValuesSoFar(rotation({ 0, -1 }, { 0, 1 }))[RotateFinal], u"270");
}

TEST(MouseWizardRotation, AFinalAngleOf0Appears360AndAStartAngleOf0StaysSo)
{
    EXPECT_EQ(turnedBy(rotateValues(rotation({ 50, 0 }, { 50, 0 }))),
              u"MOUSEROTATE (UL, 400, 200, 50, 0, [MOUSE_LB], CW, 360, 2)");
    // The same when the pilot types it.
    RotateTexts typed = rotateValues(rotation({ 50, 0 }, { 0, 50 })).value();
    typed[RotateFinal] = u" 0 "_s;
    EXPECT_EQ(toldBy(rotateStatement(typed)),
              u"MOUSEROTATE (UL, 400, 200, 50, 0, [MOUSE_LB], CW, 360, 2)");
}

TEST(MouseWizardRotation, TheOtherWayRoundFromTheCentreOfTheScreen)
{
    MouseWizardFields fields = rotation({ 50, 0 }, { 0, 50 });
    fields.origin = u"CENTRE"_s;
    fields.isClockwise = false;
    fields.macro = u"Fire_gun"_s;
    fields.steps = u"5"_s;
    EXPECT_EQ(turnedBy(rotateValues(fields)),
              u"MOUSEROTATE (CENTRE, -100, -50, 50, 0, [Fire_gun], CCW, 270, 5)");
}

TEST(MouseWizardRefusals, AMissingGestureIsToldAndNothingIsMade)
{
    using enum MouseMovement;
    EXPECT_EQ(toldBy(placeStatement(moved(Absolute, {}))), refused);
    EXPECT_EQ(toldBy(placeStatement(moved(Relative, {}))), refused);
    EXPECT_EQ(toldBy(placeStatement(moved(Relative, { centre, {}, {} }))), refused);
    // A click is no drag.
    EXPECT_EQ(toldBy(placeStatement(moved(Relative, { centre, centre, {} }))), refused);
    MouseWizardFields noPicture = moved(Absolute, { centre, {}, {} });
    noPicture.picture = {};
    EXPECT_EQ(toldBy(placeStatement(noPicture)), refused);

    const QPointF place(450, 200);
    EXPECT_EQ(turnedBy(rotateValues(moved(Rotation, {}))), refused);
    EXPECT_EQ(turnedBy(rotateValues(moved(Rotation, { centre, {}, {} }))), refused);
    EXPECT_EQ(turnedBy(rotateValues(moved(Rotation, { centre, place, {} }))), refused);
    EXPECT_EQ(turnedBy(rotateValues(moved(Rotation, { centre, {}, place }))), refused);
    EXPECT_EQ(turnedBy(rotateValues(moved(Rotation, { centre, centre, place }))), refused);
    EXPECT_TRUE(rotateValues(moved(Rotation, { centre, place, place })));
}

TEST(MouseWizardRefusals, AnEmptyValueOfTheLastPageIsMissing)
{
    const RotateTexts whole = rotateValues(rotation({ 50, 0 }, { 0, 50 })).value();
    for (size_t i = 0; i < whole.size(); ++i) {
        RotateTexts lacking = whole;
        lacking[i] = u" "_s;
        EXPECT_EQ(toldBy(rotateStatement(lacking)),
                  u"Missing some text buddy: You have left out one of the required parameters I "
                  "need to create the statement.");
    }
}

TEST(MouseWizardStatement, GrowsWithAQuestionMarkForWhatIsToCome)
{
    using enum MouseMovement;
    EXPECT_EQ(growingStatement(moved(Absolute, {})), u"MOUSEXY (UL, ?, ?)");
    EXPECT_EQ(growingStatement(moved(Absolute, { centre, {}, {} })), u"MOUSEXY (UL, 400, 200)");
    EXPECT_EQ(growingStatement(moved(Relative, {})), u"MOUSEMOVE (?, ?)");
    EXPECT_EQ(growingStatement(moved(Relative, { centre, QPointF(), {} })),
              u"MOUSEMOVE (-400, -200)");
    MouseWizardFields fields = rotation({ 50, 0 }, { 0, 50 });
    const Measures all = std::exchange(fields.measures, {});
    EXPECT_EQ(growingStatement(fields), u"MOUSEROTATE (UL, ?, ?, ?, ?, [MOUSE_LB], CW, ?, 2)");
    fields.measures.from = all.from;
    EXPECT_EQ(growingStatement(fields), u"MOUSEROTATE (UL, 400, 200, ?, ?, [MOUSE_LB], CW, ?, 2)");
    fields.measures.to = all.to;
    EXPECT_EQ(growingStatement(fields), u"MOUSEROTATE (UL, 400, 200, 50, 0, [MOUSE_LB], CW, ?, 2)");
    fields.measures.target = all.target;
    EXPECT_EQ(growingStatement(fields),
              u"MOUSEROTATE (UL, 400, 200, 50, 0, [MOUSE_LB], CW, 270, 2)");
    fields.macro = QString();
    EXPECT_EQ(growingStatement(fields), u"MOUSEROTATE (UL, 400, 200, 50, 0, [?], CW, 270, 2)");
}

TEST(MouseWizardStatement, TheCompilerTakesWhatTheGesturesGive)
{
    for (const QStringView origin : mouseOrigins) {
        for (const MouseUnit unit : { MouseUnit::Pixels, MouseUnit::Percent }) {
            for (const AngleRow &row : angleRows) {
                MouseWizardFields fields = rotation(row.way, -row.way);
                fields.origin = origin.toString();
                fields.placeUnit = unit;
                fields.rotateUnit = unit;
                QString file = u"USE SCREEN_RESOLUTION (1000,500) \n\nBTN S1 "_s
                    + turnedBy(rotateValues(fields));
                fields.movement = MouseMovement::Absolute;
                file += u"\nBTN S2 "_s + toldBy(placeStatement(fields));
                fields.movement = MouseMovement::Relative;
                file += u"\nBTN S3 "_s + toldBy(placeStatement(fields));
                EXPECT_EQ(findingsIn(file), QStringList()) << file.toStdString();
            }
        }
    }
}

} // namespace mouse_wizard_values_tests
