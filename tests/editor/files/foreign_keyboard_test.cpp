// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/foreign_keyboard.h"

#include "documents/document_settings.h"
#include "editor/editor_settings.h"
#include "tests/support/fixture.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPushButton>

using namespace zeph;

namespace {

struct KeyboardFix : test::WorldTest {
    QWidget window;
    QLineEdit box{ &window };
    QPushButton button{ &window };

    KeyboardFix()
    {
        keyboard.layout = u"0000040C"_s;
        new ForeignKeyBSupport(keyboard, settings.of<DocumentSettings>(), &window);
        keyboard.layout = u"00000409"_s;
    }
    static void focus(QWidget &widget)
    {
        QFocusEvent event(QEvent::FocusIn);
        QApplication::sendEvent(&widget, &event);
    }
};

} // namespace

TEST_F(KeyboardFix, PutsTheRememberedLayoutBackWhenATextBoxGetsTheFocus)
{
    settings.of<DocumentSettings>().ForeignLanguageKBInputFix = true;
    focus(box);
    EXPECT_EQ(keyboard.loaded, QStringList{ u"0000040C"_s });
    focus(box);
    EXPECT_EQ(keyboard.loaded.size(), 1) << "the layout is right already";
}

TEST_F(KeyboardFix, DoesNothingWithTheSettingOff)
{
    focus(box);
    EXPECT_TRUE(keyboard.loaded.isEmpty());
}

TEST_F(KeyboardFix, LeavesOtherControlsAlone)
{
    settings.of<DocumentSettings>().ForeignLanguageKBInputFix = true;
    focus(button);
    EXPECT_TRUE(keyboard.loaded.isEmpty());
}
