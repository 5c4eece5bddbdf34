// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_editor.h"
#include "composer/composer_settings.h"
#include "composer/pages/usepage.h"
#include "composer/statement_inserter.h"
#include "platform/core/paths.h"
#include "tests/support/painting_fixture.h"

#include <QApplication>
#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

namespace zeph::test {

/// The Editor as far as the page needs it, which is not at all.
class QuietEditor : public ComposerEditor
{
public:
    QList<MacroGroup> macroGroups() const override { return {}; }
    void ShowMacroKeys(const QString &) override { }
    void TickMacroList(const QString &) override { }
    void FindMacroInJF(const QString &) override { }
    void editMacro(const QString &) override { }
    int DefaultDLYvalue() const override { return 60; }
    void setDefaultDLYvalue(int) override { }
    QAction *action(QStringView) const override { return nullptr; }
    void ResetFocusToEditor() override { }
    void showCaretLine() override { }
};

/// The page by itself, over the real documents.
class UsePageTest : public PaintingTest
{
protected:
    void SetUp() override
    {
        paths.hotasFolder = withClosingSeparator(folder.path());
        folder.write(u"Profiles/zulu.tmc"_s, "x");
        folder.write(u"Profiles/Alpha.tmc"_s, "x");
        folder.write(u"Profiles/notes.txt"_s, "x");
        make();
    }
    void make()
    {
        page = std::make_unique<UsePage>(ComposerParts{ shared, documents(), inserter, quiet },
                                         nullptr);
    }
    /// Shows the page as the window in front.
    void showPage()
    {
        page->show();
        QApplication::setActiveWindow(page.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
    }

    Documents &documents() { return editor->documents(); }
    Document &file() { return documents().joystick(); }
    template <class T> T &control(const QString &name) const
    {
        auto *found = page->findChild<T *>(name);
        if (!found)
            qFatal("no %s", qPrintable(name));
        return *found;
    }
    QLineEdit &text(int i) const { return control<QLineEdit>(u"TXT_USE_%1"_s.arg(i)); }
    QCheckBox &tick(int i) const { return control<QCheckBox>(u"CHK_Use_%1"_s.arg(i)); }
    QComboBox &list(int i) const { return control<QComboBox>(u"ComboUSEDX_%1"_s.arg(i)); }
    QListWidget &profiles() const { return control<QListWidget>(u"File1_0"_s); }
    QRadioButton &option(const QString &name) const { return control<QRadioButton>(name); }
    QTabWidget &tabs(const QString &name) const { return control<QTabWidget>(name); }
    void press(const QString &name) const { control<QPushButton>(name).click(); }
    void insert(int i) const { press(u"CMD_UseInsert_%1"_s.arg(i)); }

    /// What a button writes into an empty joystick file, without a line end.
    QString inserted(int i)
    {
        settings.of<ComposerSettings>().CompTabsAddCr = false;
        set(J, {});
        insert(i);
        return file().text();
    }
    QString preview() const
    {
        const auto current = page->current();
        if (!current)
            return u"nothing"_s;
        return *current ? (*current)->text() : current->error().text;
    }

    QuietEditor quiet;
    Context shared = context();
    StatementInserter inserter{ shared, editor->documents(), quiet };
    std::unique_ptr<UsePage> page;
};

} // namespace zeph::test
