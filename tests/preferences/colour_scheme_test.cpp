// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/colour_scheme.h"

#include "language/checker.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

using G = GlobalSettings;

struct CategoryCase {
    QStringView caption;
    ColorRef G::*colour;
};

/// The list as it is told, and what each of its lines is kept as.
const CategoryCase told[] = {
    { u"Buttons", &G::BTNColour },
    { u"Background: Joystick", &G::BackgroundColour },
    { u"Rem statements", &G::RemStatements },
    { u"Slash modifiers", &G::SlashColour },
    { u"DLY statements", &G::RAWColour },
    { u"Configuration", &G::MiscellaneousColour },
    { u"Background: Macro", &G::MacroBackgroundColour },
    { u"Text: Joystick", &G::JoystickTextDefaultColour },
    { u"Text: Macro", &G::MacroTextDefaultColour },
    { u"Macro List: Background", &G::MacroListBackground },
    { u"Macro List: Text", &G::MacroListText },
    { u"Macro Headings: Background", &G::MacroHeadingsBackground },
    { u"Macro Headings: Text", &G::MacroHeadingsText },
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

TEST(ColourCategories, TheCopyTakesAllSixteenSettingsAndNoOther)
{
    GlobalSettings from;
    for (const CategoryCase &category : told) {
        from.*category.colour = 0x123456;
    }
    from.TextFontName = u"Courier New"_s;
    from.TextFontSize = u"17"_s;
    from.TextFontBold = 1;
    from.UndoMax = 999;
    GlobalSettings to;
    copyColours(to, from);
    for (const CategoryCase &category : told) {
        EXPECT_EQ(to.*category.colour, 0x123456U) << category.caption.toString().toStdString();
    }
    EXPECT_EQ(to.TextFontName, u"Courier New");
    EXPECT_EQ(to.TextFontSize, u"17");
    EXPECT_EQ(to.TextFontBold, 1);
    EXPECT_EQ(to.UndoMax, 20);
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
