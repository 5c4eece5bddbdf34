// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/wizard_tools.h"

#include "composer/wizards/speedy.h"
#include "composer/wizards/wizardjoystickfile.h"
#include "composer/wizards/wizardmacrofile.h"
#include "editor/editor.h"
#include "menus/tool_entries.h"
#include "platform/dialogs.h"
#include "shell/composer_tools.h"

#include <QAction>

namespace zeph {

WizardTools::WizardTools(const Context &context, ToolWindows &windows, Editor &editor,
                         ComposerTools &composer)
    : QObject(&editor), m_windows(windows), m_editor(editor), m_composer(composer),
      m_inserter(context, editor.documents(), composer),
      m_parts{ context, editor.documents(), m_inserter, composer }
{
    add<WizardMacroFile>(u"mnuMacroWizard", [this](QWidget *owner) {
        auto *window = new WizardMacroFile(m_parts, owner);
        feedFromTumbo(window);
        return window;
    });
    add<WizardJoystickFile>(u"mnuJoystickWizard", [this](QWidget *owner) {
        return new WizardJoystickFile(m_parts, m_windows, owner);
    });
    add<Speedy>(u"mnuSpeedy", [this](QWidget *owner) {
        auto *window = new Speedy(m_parts, owner);
        feedFromTumbo(window);
        return window;
    });
    addLesson<WizardSlashModifiers>(u"mnuShowMeSlashModifiers");
    addLesson<WizardMouseMicrostick>(u"mnuShowMeMouseMicrostick");
    addLesson<WizardDLYandRATE>(u"mnuShowMeDLYandRATE");
    addLesson<WizardConfigurationStatements>(u"mnuShowMeConfigurationStatements");
}

template <class Window, class Make> void WizardTools::add(QStringView entry, Make make)
{
    ToolEntries{ m_editor.actions(), m_windows }.add<Window>(entry, [this, make](QWidget *owner) {
        Window *window = make(owner);
        connect(window, &Window::helpWanted, this, &WizardTools::helpWanted);
        return window;
    });
}

template <class Lesson> void WizardTools::addLesson(QStringView entry)
{
    add<Lesson>(entry, [this](QWidget *owner) { return new Lesson(m_parts, owner); });
}

template <class Window> void WizardTools::feedFromTumbo(Window *window)
{
    connect(window, &Window::tumboWanted, this, guarded(m_parts.context.dialogs, [this, window] {
                m_composer.openTumboFor([window](const QString &keys) { window->setKeys(keys); },
                                        window);
            }));
}

} // namespace zeph
