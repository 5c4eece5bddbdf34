// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/colour_scheme.h"

#include "language/checker.h"
#include "settings/colour_settings.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

using G = ColourSettings;

struct CategoryCase {
    QStringView caption;
    ColorRef G::*colour;
};

/// The list as it is told, and what each of its lines is kept as.
const CategoryCase told[] = {
    { u"Buttons", &ColourSettings::BTNColour },
    { u"Background: Joystick", &ColourSettings::BackgroundColour },
    { u"Rem statements", &ColourSettings::RemStatements },
    { u"Slash modifiers", &ColourSettings::SlashColour },
    { u"DLY statements", &ColourSettings::RAWColour },
    { u"Configuration", &ColourSettings::MiscellaneousColour },
    { u"Background: Macro", &ColourSettings::MacroBackgroundColour },
    { u"Text: Joystick", &ColourSettings::JoystickTextDefaultColour },
    { u"Text: Macro", &ColourSettings::MacroTextDefaultColour },
    { u"Macro List: Background", &ColourSettings::MacroListBackground },
    { u"Macro List: Text", &ColourSettings::MacroListText },
    { u"Macro Headings: Background", &ColourSettings::MacroHeadingsBackground },
    { u"Macro Headings: Text", &ColourSettings::MacroHeadingsText },
};

} // namespace

TEST(ColourCategories, StandInTheToldOrder)
{
    ASSERT_EQ(colourCategories().size(), std::size(told));
    for (size_t i = 0; i < std::size(told); ++i) {
        EXPECT_EQ(colourCategories()[i].caption, told[i].caption);
        EXPECT_EQ(colourCategories()[i].colour, told[i].colour) << i;
    }
}

TEST(ColourCategories, ThePageStaysWhereTheCategoryIsSeenOnIt)
{
    const auto &buttons = colourCategories()[0];
    const auto &rem = colourCategories()[2];
    const auto &list = colourCategories()[9];
    EXPECT_EQ(previewPageFor(buttons, PreviewPage::Macro), PreviewPage::Joystick);
    EXPECT_EQ(previewPageFor(rem, PreviewPage::Joystick), PreviewPage::Joystick);
    EXPECT_EQ(previewPageFor(rem, PreviewPage::Macro), PreviewPage::Macro);
    EXPECT_EQ(previewPageFor(list, PreviewPage::Joystick), PreviewPage::MacroList);
}

TEST(FontChoices, AreThoseOnOfferAndThePresentOne)
{
    const QStringList families = { u"Mono"_s, u"arial"_s, u"Book"_s };
    const auto all = [](const QString &) {
        return true;
    };
    const auto fixed = [](const QString &name) {
        return name == u"Mono";
    };
    EXPECT_EQ(fontChoices(families, u"Mono"_s, all),
              (QStringList{ u"arial"_s, u"Book"_s, u"Mono"_s }));
    EXPECT_EQ(fontChoices(families, u"Mono"_s, fixed), QStringList{ u"Mono"_s });
    EXPECT_EQ(fontChoices(families, u"Book"_s, fixed), (QStringList{ u"Book"_s, u"Mono"_s }));
    EXPECT_EQ(fontChoices(families, {}, fixed), QStringList{ u"Mono"_s });
    EXPECT_EQ(fontChoices(families, u"Arial"_s, all),
              (QStringList{ u"arial"_s, u"Book"_s, u"Mono"_s }));
}

TEST(ColourSamples, AreAPairWithoutAFault)
{
    const auto pair = language::parsePair(sampleJoystickText(), sampleMacroText());
    for (const auto &finding : language::check(pair)) {
        ADD_FAILURE() << finding.place.line << ": " << finding.message.toStdString();
    }
}
