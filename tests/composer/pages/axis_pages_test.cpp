// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What holds for both pages of axes.

#include "tests/composer/pages/axis_pages.h"

#include <QAbstractButton>
#include <QSet>

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
            for (const QWidget *each : composer()->findChildren<QWidget *>()) {
                const QChar letter = mnemonicOf(captionOf(*each));
                const bool isHere = each->isVisibleTo(composer());
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
