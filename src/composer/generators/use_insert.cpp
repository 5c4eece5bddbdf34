// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/use_insert.h"

#include "composer/generators/use_tables.h"

#include <QStringBuilder>

#include <algorithm>

namespace zeph {

namespace use {

namespace {

Unexpected<Refusal> missingValue(const QString &text)
{
    return Unexpected<Refusal>({ u"Missing value"_s, text });
}

Generated fixedText(UseInsert insert, const UseFields &fields)
{
    const auto row = std::ranges::find_if(fixedStatements, [&](const Fixed &fixed) {
        return fixed.insert == insert && (!fixed.tick || fields.*fixed.tick == fixed.ticked);
    });
    return plainStatement(row->text % u' ', row->startsLine);
}

Generated restOfLine(UseInsert insert, const UseFields &fields)
{
    const auto row = std::ranges::find(lineStatements, insert, &Line::insert);
    const QString &value = fields.*row->value;
    if (value.isEmpty() && !row->missing.isEmpty())
        return Unexpected<Refusal>({ u"I've got a problem ..."_s, row->missing.toString() });
    return plainStatement(u"USE "_w % row->head % u' ' % value % row->end, true);
}

Generated rate(const UseFields &fields)
{
    if (fields.rate.isEmpty())
        return missingValue(u"Please enter a rate value"_s);
    const QStringView head = fields.rateOfFile ? u"USE RATE ("_w : u"RATE ("_w;
    return plainStatement(head % fields.rate % u')', fields.rateOfFile);
}

Generated directXButton(const UseFields &fields)
{
    if (fields.allDirectXButtons)
        return fixedText(UseInsert::DirectXButton, fields);
    return plainStatement(u"USE "_w % fields.directXControl % u" AS "_w % u"DX"
                              % QString::number(fields.directXButton) % u' ',
                          true);
}

Generated shiftButton(const UseFields &fields)
{
    const QString &control = fields.shiftControl;
    return fields.shiftOfFile ? plainStatement(u"USE "_w % control % u" AS SHIFTBTN"_w, true)
                              : plainStatement(u"SHIFTBTN ("_w % control % u") ", false);
}

Generated sensitivity(QStringView control, const QString &value)
{
    if (value.isEmpty())
        return missingValue(u"Please enter a Sensitivity value"_s);
    return plainStatement(u"USE "_w % control % sensitivityEnd % u" (" % value % u") ", true);
}

Generated profile(const UseFields &fields)
{
    if (fields.profile.isEmpty())
        return Unexpected<Refusal>(
            { u"No profiles found"_s,
              u"You don't have any Profiles present in "_s % fields.hotasFolder
                  % u". You need to use the CCP to create some." });
    const QStringView mode = fields.autoProfile ? autoMode : customMode;
    return plainStatement(u"USE PROFILE "_w % fields.profile % u' ' % mode, true);
}

Generated startup(const HardwareStartup &startup)
{
    return plainStatement(u"USE HWSTARTUP ("_w % startupWords[0][startup.emulation()] % u", "
                              % startupWords[1][startup.userAxes()] % u", "
                              % startupWords[2][startup.autoCalibration()] % u')',
                          true);
}

Generated application(const UseFields &fields)
{
    QString text = u"USE ZEPH RUN_APP "_w % fields.application;
    if (fields.windowStyle != WindowStyle::MinimisedNoFocus)
        text += u" WINDOW_STYLE = "_w % QString::number(int(fields.windowStyle));
    return plainStatement(text, true);
}

} // namespace

} // namespace use

Generated generateUse(UseInsert insert, const UseFields &fields)
{
    switch (insert) {
    case UseInsert::MacroFile:
    case UseInsert::NullCharacter:
    case UseInsert::Graphic:
    case UseInsert::Readme:
        return use::restOfLine(insert, fields);
    case UseInsert::Rate:
        return use::rate(fields);
    case UseInsert::DirectXButton:
        return use::directXButton(fields);
    case UseInsert::ShiftButton:
        return use::shiftButton(fields);
    case UseInsert::HatSensitivity:
        return use::sensitivity(fields.hat, fields.hatSensitivity);
    case UseInsert::T1Sensitivity:
        return use::sensitivity(u"T1"_w, fields.t1Sensitivity);
    case UseInsert::Profile:
        return use::profile(fields);
    case UseInsert::Startup:
        return use::startup(fields.startup);
    case UseInsert::Application:
        return use::application(fields);
    case UseInsert::UseS3Lock:
    case UseInsert::S3Lock:
    case UseInsert::S3Unlock:
    case UseInsert::ReverseToggles:
    case UseInsert::ResetToggles:
    case UseInsert::KeyboardAzerty:
    case UseInsert::StickOff:
    case UseInsert::ChordedFdfu:
    case UseInsert::EmptyBuffers:
        break;
    }
    return use::fixedText(insert, fields);
}

std::optional<Refusal> questionBeforeUse(UseInsert insert, const UseFields &fields)
{
    if (insert != UseInsert::Application || !fields.application.isEmpty())
        return {};
    return Refusal{ u"What should I insert here buddy?"_s,
                    u"You haven't selected an application to run with the USE ZEPH RUN_APP "
                    "statement. Would you like me to go ahead anyway and insert the statement?"_s,
                    BoxIcon::Question };
}

} // namespace zeph
