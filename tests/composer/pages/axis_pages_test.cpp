// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What holds for both pages of axes.

#include "tests/composer/pages/axis_pages.h"

#include <QAbstractButton>
#include <QSet>
#include <QSignalSpy>
#include <QSlider>

using namespace zeph;

namespace {

class AxisPageLooks : public test::TestIn<test::AxisPages>
{
protected:
    static QChar mnemonicOf(const QString &caption)
    {
        const qsizetype at = caption.indexOf(u'&');
        return at < 0 ? QChar() : caption[at + 1].toUpper();
    }
    static QString captionOf(const QWidget &control)
    {
        if (const auto *button = qobject_cast<const QAbstractButton *>(&control)) {
            return button->text();
        }
        const auto *label = qobject_cast<const QLabel *>(&control);
        return label && label->buddy() ? label->text() : QString();
    }
};

const std::pair<InsertOptions::Page, QString> pages[] = {
    { InsertOptions::DigitalAxis, u"SSTab3"_s },
    { InsertOptions::AnalogueAxis, u"SSTab2"_s },
};

} // namespace

TEST_F(AxisPageLooks, NoMnemonicIsThereTwiceOnATab)
{
    for (const auto &[which, name] : pages) {
        ComposerPage &page = openPage(which);
        auto &nested = control<QTabWidget>(name);
        for (int tab = 0; tab < nested.count(); ++tab) {
            nested.setCurrentIndex(tab);
            QSet<QChar> seen;
            auto &main = control<QTabWidget>(u"SSTab1"_s);
            for (int i = 0; i < main.count(); ++i)
                seen.insert(mnemonicOf(main.tabText(i)));
            for (int i = 0; i < nested.count(); ++i)
                seen.insert(mnemonicOf(nested.tabText(i)));
            for (const QWidget *each : page.findChildren<QWidget *>()) {
                const QChar letter = mnemonicOf(captionOf(*each));
                const bool isHere = each->isVisibleTo(&page);
                if (!letter.isNull() && isHere) {
                    EXPECT_FALSE(seen.contains(letter)) << captionOf(*each).toStdString();
                    seen.insert(letter);
                }
            }
        }
        EXPECT_TRUE(page.isVisible());
    }
}

TEST_F(AxisPageLooks, TheyFitASmallScreenWithTheWindowAroundThem)
{
    for (const auto &[which, name] : pages) {
        openPage(which);
        EXPECT_LE(composer()->minimumSizeHint().width(), 1024);
        EXPECT_LE(composer()->minimumSizeHint().height(), 690);
    }
}

TEST_F(AxisPageLooks, EveryControlCanBeToldByAScreenReader)
{
    for (const auto &[which, name] : pages) {
        const ComposerPage &page = openPage(which);
        for (const QWidget *each : page.findChildren<QWidget *>()) {
            const bool isBox =
                qobject_cast<const QLineEdit *>(each) || qobject_cast<const QComboBox *>(each);
            if (!isBox || each->objectName().startsWith(u"qt_")) {
                continue;
            }
            bool isNamed = !each->accessibleName().isEmpty();
            for (const QLabel *label : page.findChildren<QLabel *>())
                isNamed = isNamed || label->buddy() == each;
            EXPECT_TRUE(isNamed) << each->objectName().toStdString();
        }
    }
}

TEST_F(AxisPageLooks, ThePreviewFollowsEveryChange)
{
    const auto tells = [this](InsertOptions::Page which, const auto &change) {
        QSignalSpy spy(composer()->page(which), &ComposerPage::changed);
        change();
        return !spy.isEmpty();
    };
    openPage(InsertOptions::DigitalAxis);
    const auto digital = [&](const auto &change) {
        return tells(InsertOptions::DigitalAxis, change);
    };
    EXPECT_TRUE(digital([this] { choose(u"ComboSlashList"_s, u"/M"_s); }));
    EXPECT_TRUE(digital([this] { click(u"CheckUMDIOdigital"_s); }));
    EXPECT_TRUE(digital([this] { turnTo(u"SSTab3"_s, 4); }));
    type(u"TXT_DigitalAxis_3"_s, u"4"_s);
    EXPECT_TRUE(digital([this] { click(u"Command15_0"_s); }));
    EXPECT_TRUE(digital([this] { control<QSlider>(u"SliderType5"_s).setValue(9); }));
    EXPECT_TRUE(digital([this] { type(u"RTB_digitalAxis_10"_s, u"a"_s); }));
    EXPECT_TRUE(digital([this] { click(u"Command15_1"_s); }));
    openPage(InsertOptions::AnalogueAxis);
    const auto analogue = [&](const auto &change) {
        return tells(InsertOptions::AnalogueAxis, change);
    };
    EXPECT_TRUE(analogue([this] { click(u"OptionAnaCurve_2"_s); }));
    EXPECT_TRUE(analogue([this] { turnTo(u"SSTab2"_s, 1); }));
    EXPECT_TRUE(analogue([this] { click(u"LBL_TrimSign_0"_s); }));
    EXPECT_TRUE(analogue([this] { click(u"LBL_UseAxes_42"_s); }));
    EXPECT_TRUE(analogue([this] { click(u"Command3"_s); }));
    EXPECT_TRUE(analogue([this] { type(u"TextAnalogueAxes_3"_s, u"5"_s); }));
}
