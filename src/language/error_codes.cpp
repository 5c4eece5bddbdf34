// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/error_codes.h"

namespace zeph::language {

namespace {

// No text here may hold errorWord: readers would take it for the next entry's heading.
constexpr ErrorEntry table[] = {
    { UnreadableFile, u"The joystick file could not be read",
      u"The file was moved, deleted or renamed, or another program keeps it to itself.",
      u"Check that the file is still where its tab says it is, save it again, and try once more." },
    { UnknownControl, u"There is no control of this name",
      u"A statement needs the name of a button, trigger stage, throttle button or hat position, "
      u"and "
      u"the one it has does not exist on the Cougar. Often a digit is wrong, as in T11 or H5U.",
      u"Use S1 to S4, TG1, TG2, T1 to T10, or H1U to H4DR. The Composer's pictures write the "
      u"right name for you." },
    { UnknownAxis, u"There is no axis of this name",
      u"The statement names an axis that the Cougar does not have.",
      u"Use JOYX, JOYY, THR, RDDR, LBRK, RBRK, MIX, MIY, ANT or RNG, or one of the pairs JOYSTICK, "
      u"ROTARIES, TOEBRAKES and MICROSTICK." },
    { UnknownFlag, u"Logical flags run from X1 to X48",
      u"A logical flag with another number is used, or DEF has no flag after it.",
      u"Choose a free flag from X1 to X48. The logical flags window of the Composer shows which "
      u"ones are free." },
    { StrayBracketCode, u"A bracket has no partner",
      u"A bracket is opened and never closed, closed and never opened, or closed by a bracket of "
      u"another kind. This holds for ( ), < > and { }.",
      u"Look at the line and count the brackets. Each one needs its own partner within the "
      u"same statement, and pairs may not cross." },
    { UnknownAxisType, u"Digital axis statements have the types 1 to 6",
      u"The number after the axis tells how it makes keys, and this number is none of the six.",
      u"Let the Digital axis page of the Composer write the statement, or correct the number." },
    { BandCount, u"The number of bands and their borders do not agree",
      u"A digital axis of type 5 or 6 tells the number of its bands, 1 to 50, and then, in "
      u"brackets, the borders. There is always one border more than there are bands.",
      u"Give three bands four borders, as in RNG 5 3 (0 33 67 100) a b c, and keep to 50 bands at "
      u"most." },
    { BandBorders, u"The borders of the bands are out of order",
      u"Borders are percentages of the axis. Each must be greater than the one before it, and none "
      u"may lie below 0 or above 100.",
      u"Put the borders into rising order between 0 and 100." },
    { OddBandsWithCentre, u"A centre character needs an even number of bands",
      u"A digital axis of type 1 with a centre character has as many bands on one side of the "
      u"centre as on the other, so their number cannot be odd.",
      u"Make the number even, or leave the centre character out." },
    { ValueOutOfRange, u"A value is out of range",
      u"Curves run from -32 to 32, trims from -127 to 127, a hat's mouse rate from 1 to 127, and "
      u"an axis as mouse needs a scale and an increment whose product stays below 128.",
      u"Choose a value within these limits." },
    { InAfterOut, u"/I must come before /O",
      u"A statement says what happens with S3 out before it says what happens with S3 held in.",
      u"Swap the two parts: the /I part first, and the /O part on the line below it." },
    { NoMacroFile, u"The macro file was not found",
      u"The USE MDEF statement names a macro file that does not lie beside the joystick file.",
      u"Correct the name, or copy the macro file into the folder of the joystick file." },
    { InMacroFile, u"There is a mistake in the macro file",
      u"The line told is a line of the macro file, not of the joystick file. A bracket may lack "
      u"its partner, a value may be out of range, or a macro may call itself.",
      u"Open the second tab, look at that line, and save the macro file before you compile "
      u"again." },
    { ThrottleRangeOrder, u"The throttle range is the wrong way round",
      u"THR_RANGE takes two percentages, and the second must be greater than the first.",
      u"Write the smaller value first, as in THR_RANGE (0%, 90%)." },
    { DirectXButton, u"There is no DirectX button of this number",
      u"A control was given to a DirectX button that Windows does not know.",
      u"Use a number from DX1 to DX28." },
    { AxesConfiguration, u"The axes configuration cannot work",
      u"USE AXES_CONFIG gives each DirectX axis, 1 to 10, one axis of the Cougar. A number is "
      u"missing or used twice, or DirectX axis 1 or 2 has no axis at all; Windows sees no "
      u"joystick without these two.",
      u"Set the axes on the Composer's AXES_CONFIG page, which keeps to these rules." },
    { NotDisableable, u"This cannot be disabled",
      u"DISABLE works for the throttle, the rotaries, the rudder, the toe brakes and the mouse. "
      u"The stick and the microstick always stay on, and so do buttons and hats.",
      u"Remove the statement, or leave the axis out with USE AXES_CONFIG." },
    { UnequalSwap, u"A pair of axes can only be swapped with a pair",
      u"SWAP names one single axis and one pair, such as THR and ROTARIES.",
      u"Swap two single axes or two pairs." },
    { AxisAsMouse, u"The axis cannot drive the mouse in this way",
      u"A pair of axes drives the whole mouse, a single axis one direction of it.",
      u"Write USE MICROSTICK AS MOUSE for a pair, and MOUSEX, MOUSEY or MOUSEZ for a single "
      u"axis." },
    { UnknownHatRole, u"A hat cannot be used in this way",
      u"USE HAT1 AS, and its like for the other hats and the radio switch, is followed by a role, "
      u"and this one does not exist.",
      u"Use POV, ARROWKEYS, KEYPAD or MOUSE." },
    { NoScreenResolution, u"The screen resolution is not known",
      u"MOUSEXY, MOUSEMOVE and MOUSEROTATE move the mouse in pixels, so the file must tell the "
      u"size of the screen.",
      u"Add a statement such as USE SCREEN_RESOLUTION (1024,768)." },
    { UnknownMouseType, u"The mouse types are A1 to A5", u"USE MTYPE is followed by another type.",
      u"Choose one of A1 to A5. They differ in the throttle buttons that become mouse buttons." },
    { BadCommand, u"The request was not understood",
      u"The compiler was started without a joystick file, or with switches it does not know.",
      u"Start it from the Download menu of Zeph." },
    { UnreadableMacroFile, u"The macro file could not be read",
      u"The macro file is there, but another program keeps it to itself, or it is no plain text: "
      u"an editor may have saved it as UTF-16.",
      u"Open it in the Editor, or in the program that wrote it, and save it as plain text." },
};

} // namespace

std::span<const ErrorEntry> errorCodes()
{
    return table;
}

const ErrorEntry *errorEntry(int code)
{
    for (const ErrorEntry &entry : table) {
        if (entry.code == code)
            return &entry;
    }
    return nullptr;
}

QString errorHeading(int code)
{
    return u"%1 %2"_s.arg(errorWord).arg(code, 4, 10, QChar(u'0'));
}

DocumentKind documentOfError(QStringView errorText)
{
    return errorText.left(errorHeadingLength).mid(errorWord.size() + 1)
            == QString::number(InMacroFile)
        ? DocumentKind::Macro
        : DocumentKind::Joystick;
}

RichText errorCodesText()
{
    CharFormat plain;
    plain.family = u"Arial"_s;
    plain.pointSize = 10;
    CharFormat heading = plain;
    heading.bold = true;
    RichText text;
    for (const ErrorEntry &entry : table) {
        text.append(
            RichText::plain(u"%1: %2"_s.arg(errorHeading(entry.code), entry.title), heading));
        text.append(RichText::plain(u"\n%1\n%2\n\n"_s.arg(entry.cause, entry.cure), plain));
    }
    return text;
}

} // namespace zeph::language
