// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/wizard_values.h"

#include "composer/mouse/number_text.h"
#include "livetools/picture_geometry.h"

namespace zeph {

namespace {

constexpr QStringView inStatement = u", ";
constexpr QStringView inLabel = u",";
constexpr QStringView unknown = u"?";
constexpr QStringView unknownPair = u"?, ?";

Refusal nothingMeasured()
{
    return { u"No statement to insert"_s,
             u"You haven't setup the mouse movements correctly in the Image Viewer buddy. Go back "
             "and follow the instructions."_s };
}

/// Whether the mouse was dragged from one place to another; a click is no drag.
bool isDragged(const Measures &measures)
{
    return measures.from && measures.to && *measures.from != *measures.to;
}

/// The place or the way that a statement tells, in its unit; no value while it is not measured.
std::optional<QPointF> measuredPair(const MouseWizardFields &fields)
{
    const Measures &measures = fields.measures;
    if (fields.picture.isEmpty())
        return {};
    if (fields.movement == MouseMovement::Absolute && measures.from)
        return inUnit(fields.placeUnit, countedFrom(fields.origin, *measures.from, fields.picture),
                      fields.picture);
    if (fields.movement == MouseMovement::Relative && isDragged(measures))
        return inUnit(fields.placeUnit, *measures.to - *measures.from, fields.picture);
    return {};
}

Generated placeStatementOf(const MouseWizardFields &fields, const QString &pair)
{
    return fields.movement == MouseMovement::Absolute ? mouseXY(fields.origin, pair)
                                                      : mouseMove(pair);
}

void makeTurnFull(QString &finalAngle)
{
    if (finalAngle == u"0")
        finalAngle = u"360"_s;
}

} // namespace

QString measuredText(const MouseWizardFields &fields)
{
    const std::optional<QPointF> pair = measuredPair(fields);
    return pair ? pairText(fields.placeUnit, *pair, inLabel) : QString();
}

RotateTexts rotateValuesSoFar(const MouseWizardFields &fields)
{
    RotateTexts values;
    values[RotateOrigin] = fields.origin;
    values[RotateMacro] = fields.macro;
    values[RotateDirection] = directionWord(fields.isClockwise);
    values[RotateSteps] = fields.steps;
    const Measures &measures = fields.measures;
    if (fields.picture.isEmpty() || !measures.from)
        return values;
    const MouseUnit unit = fields.rotateUnit;
    const QPointF centre = countedFrom(fields.origin, *measures.from, fields.picture);
    values[RotateCentre] = pairText(unit, inUnit(unit, centre, fields.picture), inStatement);
    if (isDragged(measures)) {
        const QPointF radius(radiusOf(measures), 0);
        values[RotateRadius] = lengthText(unit, inUnit(unit, radius, fields.picture).x());
        values[RotateStart] = numberText(double(CalculateTheta1(measures)));
    }
    if (measures.target) {
        values[RotateFinal] = numberText(double(CalculateTheta2(measures)));
        makeTurnFull(values[RotateFinal]);
    }
    return values;
}

Expected<RotateTexts, Refusal> rotateValues(const MouseWizardFields &fields)
{
    RotateTexts values = rotateValuesSoFar(fields);
    if (lacksText({ values[RotateCentre], values[RotateRadius], values[RotateStart],
                    values[RotateFinal] }))
        return Unexpected<Refusal>(nothingMeasured());
    return values;
}

Generated placeStatement(const MouseWizardFields &fields)
{
    const std::optional<QPointF> pair = measuredPair(fields);
    if (!pair)
        return Unexpected<Refusal>(nothingMeasured());
    return placeStatementOf(fields, pairText(fields.placeUnit, *pair, inStatement));
}

Generated rotateStatement(RotateTexts values)
{
    for (QString &value : values) {
        value = value.trimmed();
        if (value.isEmpty())
            return Unexpected<Refusal>(missingText());
    }
    makeTurnFull(values[RotateFinal]);
    return mouseRotate(values);
}

QString growingStatement(const MouseWizardFields &fields)
{
    if (fields.movement == MouseMovement::Rotation)
        return growingRotation(rotateValuesSoFar(fields));
    const std::optional<QPointF> pair = measuredPair(fields);
    const QString known =
        pair ? pairText(fields.placeUnit, *pair, inStatement) : unknownPair.toString();
    return placeStatementOf(fields, known)->text().trimmed();
}

QString growingRotation(RotateTexts values)
{
    for (QString &value : values) {
        if (value.trimmed().isEmpty())
            value = (&value == &values[RotateCentre] ? unknownPair : unknown).toString();
    }
    return rotateStatement(values)->text();
}

} // namespace zeph
