// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_settings.h"
#include "shell/wizard_tools.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace zeph::test {

/// The Editor and the Composer with the wizards, their texts and lists.
struct WizardWorld : ComposerWorld {
    WizardWorld()
    {
        const QString data = QStringLiteral(ZEPH_SOURCE_DIR "/data/");
        for (const QString &name :
             { u"Wizards"_s, u"Help"_s, u"DefaultMacros.txt"_s, u"DefaultMacroHeadings.txt"_s }) {
            folder.show(data + name, name);
        }
        wizards = new WizardTools(context(), windows, *editor, *tools);
        settings.of<ComposerSettings>().CompTabsAddCr = true;
    }
    WizardTools *wizards = nullptr; ///< the Editor's
};

/// A test of one of the windows, which an entry opens.
template <class Window> class WizardTest : public TestIn<WizardWorld>
{
protected:
    explicit WizardTest(const QString &entry) : m_entry(entry) { showEditor(); }

    Window &openWindow()
    {
        editor->action(m_entry)->trigger();
        QApplication::setActiveWindow(windows.get<Window>());
        QApplication::processEvents();
        return window();
    }
    Window &window() { return *windows.get<Window>(); }
    template <class T> T &control(const QString &name)
    {
        T *found = window().template findChild<T *>(name);
        if (!found) {
            qFatal("the window has no %s", qPrintable(name));
        }
        return *found;
    }
    void click(const QString &button) { control<QPushButton>(button).click(); }
    QString captionOf(const QString &button)
    {
        return control<QPushButton>(button).text().remove(u'&');
    }
    QLineEdit &nameField() { return *control<QComboBox>(u"ComboMacros"_s).lineEdit(); }
    QString preview() { return control<QLabel>(u"Label1"_s).text(); }
    /// The entries of the Editor that run while something is done, by their object names.
    template <class Act>
    QStringList entriesRunBy(std::initializer_list<QStringView> watched, Act act)
    {
        QStringList run;
        QList<QMetaObject::Connection> connections;
        for (const QStringView name : watched) {
            connections.append(QObject::connect(editor->action(name), &QAction::triggered,
                                                [&run, name] { run.append(name.toString()); }));
        }
        act();
        for (const auto &connection : connections) {
            QObject::disconnect(connection);
        }
        return run;
    }

private:
    QString m_entry;
};

} // namespace zeph::test
