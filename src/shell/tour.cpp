// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/tour.h"

#include "documents/editor_view.h"
#include "documents/styleeditor.h"
#include "editor/edit/findandreplace.h"
#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_features.h"
#include "editor/right_menu.h"
#include "livetools/keytestform.h"
#include "menus/menu_actions.h"
#include "platform/core/file_io.h"
#include "platform/tool_windows.h"
#include "shell/application.h"
#include "shell/mum.h"
#include "shell/welcome.h"
#include "templates/templateform.h"
#include "toolchain/modes/mode_rules.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QPalette>
#include <QStackedWidget>
#include <QTabWidget>

namespace zeph {

namespace {

constexpr int pauseMs = 400;
constexpr int welcomePauseMs = 100;
constexpr int slowGrabMs = 3000;
constexpr int menuLeft = 300;
constexpr int menuTop = 100;

/// A dark desktop's palette, for systems that have none to offer.
QPalette darkPalette()
{
    const QColor window(45, 48, 52);
    QPalette palette(window);
    palette.setColor(QPalette::Base, QColor(30, 32, 35));
    palette.setColor(QPalette::AlternateBase, QColor(38, 41, 44));
    palette.setColor(QPalette::Highlight, QColor(52, 120, 190));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(130, 133, 137));
    palette.setColor(QPalette::Link, QColor(110, 175, 240));
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        palette.setColor(QPalette::Disabled, role, QColor(130, 133, 137));
    }
    return palette;
}

/// Shows the macros under the first heading and selects one of them.
void chooseMacro(Application &application)
{
    MacroList &macros = application.editor().macros().list();
    macros.Combo1_Click(macros.table().MacroHeadings.value(1));
    macros.frame()->list().setFocus();
}

std::function<void()> pressing(Application &application, const QString &name)
{
    return [&application, name] {
        application.editor().actions().trigger(name);
    };
}

/// Leaves the forms that stand before the main window.
void closeForms(Application &application)
{
    for (QDialog *form : application.mum().findChildren<QDialog *>()) {
        form->reject();
    }
}

/// Compiles a file of its own with a mistake in it, for the windows that explain mistakes.
void compileMistake(Application &application)
{
    const QString path = application.paths().tempFolder() + u"Mistake.tmj"_s;
    if (writeFileAtomically(path, "Rem A button that no Cougar has\r\nBTN S99 a\r\n")) {
        application.editor().opening().OpenFavouriteFile(path);
        application.editor().actions().trigger(u"mnuAppsCompile");
    }
}

/// Presses a few keys in the Key Tester, with its menus or without.
void showKeyTester(Application &application, bool withMenus)
{
    application.editor().actions().trigger(u"mnuAppsKeyTester");
    auto *tester = application.mum().toolWindows().get<KeyTestForm>();
    if (!tester) {
        return;
    }
    if (application.settings().MenuDisplay != (withMenus ? 1 : 0)) {
        tester->ToggleMenus();
    }
    constexpr int shift = 1;
    for (const int code : { 16, 67, 112, 38 }) {
        tester->Form_KeyDown(code, shift);
        tester->Form_KeyUp(code, shift);
    }
    tester->Form_KeyDown(17, 2);
}

} // namespace

BoxButton RecordingDialogs::box(const Box &box)
{
    m_record.append(u"box: "_s + box.title + u": "_s + box.text);
    return box.defaultButton;
}

std::optional<QString> RecordingDialogs::openFile(const FileRequest &request)
{
    m_record.append(u"open: "_s + request.title);
    return std::nullopt;
}

std::optional<QString> RecordingDialogs::saveFile(const FileRequest &request)
{
    m_record.append(u"save: "_s + request.title);
    return std::nullopt;
}

std::optional<QString> RecordingDialogs::chooseFolder(const QString &title, const QString &)
{
    m_record.append(u"folder: "_s + title);
    return std::nullopt;
}

std::optional<ColorRef> RecordingDialogs::chooseColour(ColorRef)
{
    m_record.append(u"colour"_s);
    return std::nullopt;
}

std::optional<CharFormat> RecordingDialogs::chooseFont(const CharFormat &)
{
    m_record.append(u"font"_s);
    return std::nullopt;
}

std::optional<qsizetype> RecordingDialogs::chooseFromList(const QString &title, const QStringList &)
{
    m_record.append(u"list: "_s + title);
    return std::nullopt;
}

Tour::Tour(const QString &folder, const RecordingDialogs &dialogs)
    : m_folder(folder), m_dialogs(dialogs)
{
    QDir().mkpath(folder);
    if (qEnvironmentVariable("ZEPH_TOUR_PALETTE") == u"dark") {
        QApplication::setPalette(darkPalette());
    }
    connect(&m_welcomeTimer, &QTimer::timeout, this, &Tour::answerWelcome);
    m_welcomeTimer.start(welcomePauseMs);
    connect(&m_timer, &QTimer::timeout, this, &Tour::walk);
    m_timer.setSingleShot(true);
    m_timer.setInterval(pauseMs);
}

void Tour::start(Application &application)
{
    m_application = &application;
    addStops(application);
    m_timer.start();
}

void Tour::addStops(Application &application)
{
    const auto press = [&application](const QString &name) {
        return pressing(application, name);
    };
    m_stops = {
        { u"pair"_s,
          [] {
          } },
        { u"tiled"_s, press(u"mnuViewTileVertically"_s) },
        { u"macro-tab"_s,
          [&application] {
              application.editor().actions().trigger(u"mnuViewTileVertically");
              application.editor().documents().select(DocumentKind::Macro);
          } },
        { u"macro-list"_s,
          [&application] {
              application.editor().documents().select(DocumentKind::Joystick);
              chooseMacro(application);
          } },
        { u"macro-rename-done"_s,
          [this] {
              lookAtModal(u"mnuRenameMacro"_s, u"macro-rename"_s);
          } },
        { u"enter-game-done"_s,
          [this] {
              lookAtModal(u"mnuGamesAdd"_s, u"enter-game"_s);
          } },
        { u"enter-favourite-done"_s,
          [this] {
              lookAtModal(u"mnuFavouritesAddCurrent"_s, u"enter-favourite"_s);
          } },
        { u"right-menu-closed"_s,
          [this] {
              popUpRightMenu();
          } },
        { u"find"_s, press(u"mnuEditFind"_s) },
        { u"replace"_s, press(u"mnuEditReplace"_s) },
        { u"goto"_s, press(u"mnuEditGoto"_s) },
        { u"compile"_s,
          [&application] {
              if (auto *find = application.mum().findChild<FindAndReplace *>()) {
                  find->reject();
              }
              application.editor().documents().select(DocumentKind::Joystick);
              application.editor().actions().trigger(u"mnuAppsCompile");
          } },
        { u"slow-compile"_s,
          [this] {
              compileSlowly();
          } },
        { u"compile-error"_s,
          [&application] {
              compileMistake(application);
          } },
    };
    addToolStops(application);
    m_stops.push_back({ u"preferences-done"_s, [this] {
                           lookAtPreferences();
                       } });
    addFormStops(application);
}

void Tour::addToolStops(Application &application)
{
    m_stops.insert(m_stops.end(),
                   {
                       { u"mode-windows"_s,
                         [this] {
                             showMode(ModePicture::Windows, u"mnuCougar");
                         } },
                       { u"mode-programmed"_s,
                         [this] {
                             showMode(ModePicture::Programmed, u"mnuButtonsMode");
                         } },
                       { u"mode-unknown"_s,
                         [this] {
                             showMode(ModePicture::Unknown, u"mnuAxesMode");
                         } },
                       { u"reset-options-done"_s,
                         [this] {
                             lookAtModal(u"mnuResetOptions"_s, u"reset-options"_s);
                         } },
                       { u"select-profile-done"_s,
                         [this] {
                             lookAtModal(u"mnuDownloadProfile"_s, u"select-profile"_s);
                         } },
                       { u"key-tester"_s,
                         [&application] {
                             showKeyTester(application, true);
                         } },
                       { u"key-tester-no-menus"_s,
                         [&application] {
                             showKeyTester(application, false);
                         } },
                   });
}

void Tour::addFormStops(Application &application)
{
    const auto press = [&application](const QString &name) {
        return pressing(application, name);
    };
    // Where the window would hide behind those of the stops before.
    const auto alone = [&application](const QString &name) {
        return [&application, name] {
            closeForms(application);
            application.editor().actions().trigger(name);
        };
    };
    m_stops.insert(m_stops.end(),
                   {
                       { u"style-editor"_s, press(u"mnuFormatStyleEditor"_s) },
                       { u"insert-title"_s, alone(u"mnuInsertTitle"_s) },
                       { u"insert-heading"_s, alone(u"mnuInsertHeading"_s) },
                       { u"insert-rem"_s, alone(u"mnuInsertRemStatement"_s) },
                       { u"slash-window"_s, alone(u"mnuSlashWindow"_s) },
                       { u"package"_s, alone(u"mnuFileCreateDistribution"_s) },
                       { u"print-preview"_s, alone(u"mnuFilePrintPreview"_s) },
                       { u"template-editor"_s,
                         [&application] {
                             closeForms(application);
                             application.editor().actions().trigger(u"mnuAppsTemplateEditor");
                             if (auto *form = application.mum().findChild<TemplateForm *>()) {
                                 form->OpenReadMe(
                                     application.paths().inApp(u"Templates/ReadMe sample.rtf"));
                             }
                         } },
                       { u"tip"_s, alone(u"mnuHelpTip"_s) },
                       { u"about"_s, press(u"mnuHelpAbout_2"_s) },
                       { u"help"_s, press(u"mnuHelpContents"_s) },
                       { u"syntax"_s, press(u"mnuHelpSyntax"_s) },
                       { u"error-codes"_s, press(u"mnuHelpErrorCodes"_s) },
                       { u"empty"_s, press(u"mnuFileNewBoth"_s) },
                   });
}

void Tour::walk()
{
    if (m_next > 0) {
        const QString &name = m_stops[m_next - 1].name;
        grabAll(name);
        m_panel.append(name + u": "_s + m_application->status().text());
    }
    if (m_next == m_stops.size()) {
        writeVerdict();
        QApplication::quit();
        return;
    }
    m_application->mum().toolWindows().unloadAll();
    // A stop may wait in an event loop of its own; the next one comes only after it.
    m_stops[m_next++].goThere();
    m_timer.start();
}

void Tour::lookAtModal(const QString &entry, const QString &name)
{
    // The window is looked at and left from within.
    QTimer::singleShot(pauseMs, this, [this, name] {
        if (QWidget *window = QApplication::activeModalWidget()) {
            grabAll(name);
            window->close();
        }
    });
    m_application->editor().actions().trigger(entry);
}

void Tour::lookAtPreferences()
{
    QTimer::singleShot(pauseMs, this, [this] {
        QWidget *window = QApplication::activeModalWidget();
        auto *tabs = window ? window->findChild<QTabWidget *>(u"SSTab1"_s) : nullptr;
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            grab(*window, u"preferences-"_s + QString::number(i));
        }
        if (window) {
            window->close();
        }
    });
    m_application->editor().actions().trigger(u"mnuAppsPreferences");
}

void Tour::popUpRightMenu()
{
    // The menu has a loop of its own: it is looked at and closed from within.
    QTimer::singleShot(pauseMs, this, [this] {
        if (QWidget *menu = QApplication::activePopupWidget()) {
            grab(*menu, u"right-menu"_s);
            menu->close();
        }
    });
    Editor &editor = m_application->editor();
    editor.rightMenu().build()->exec(editor.mapToGlobal(editor.rect().center()));
}

void Tour::compileSlowly()
{
    // The stand-in compiler takes its time on demand, so that the status window comes up.
    qputenv("ZEPH_STANDIN_DELAY_MS", "3500");
    QTimer::singleShot(slowGrabMs, this, [this] { grabAll(u"slow-compile-waiting"_s); });
    m_application->editor().actions().trigger(u"mnuAppsCompile");
    qunsetenv("ZEPH_STANDIN_DELAY_MS");
}

/// Shows a mode picture, and under it one of the Cougar's menus.
void Tour::showMode(ModePicture picture, QStringView menu)
{
    m_application->status().setModePicture(int(picture));
    QMenu *shown = m_application->editor().actions().menu(menu);
    shown->setObjectName(menu.toString());
    shown->popup(m_application->mum().mapToGlobal(QPoint(menuLeft, menuTop)));
    QTimer::singleShot(pauseMs / 2, shown, [this, shown] {
        grab(*shown, shown->objectName());
        shown->close();
    });
}

void Tour::answerWelcome()
{
    auto *welcome = qobject_cast<Welcome *>(QApplication::activeModalWidget());
    if (!welcome) {
        return;
    }
    const auto *pages = welcome->findChild<QStackedWidget *>(u"pages"_s);
    const QString page = pages->currentWidget()->objectName();
    grab(*welcome, u"welcome-"_s + page);
    if (page == u"pageExperience") {
        welcome->findChild<QAbstractButton *>(u"Option_Experience_3"_s)->click();
    }
    for (auto *button : pages->currentWidget()->findChildren<QAbstractButton *>()) {
        if (button->objectName().startsWith(u"cmd") && button->objectName() != u"cmdBrowse") {
            button->click();
        }
    }
}

void Tour::grab(QWidget &window, const QString &name) const
{
    window.grab().save(m_folder + u'/' + name + u".png"_s);
}

void Tour::grabAll(const QString &name) const
{
    grab(m_application->mum(), name);
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window != &m_application->mum()
            && !window->objectName().isEmpty()) {
            grab(*window, name + u'-' + window->objectName());
        }
    }
}

void Tour::writeVerdict() const
{
    QStringList lines = m_panel;
    lines.append(m_dialogs.record());
    (void)writeFileAtomically(m_folder + u"/verdict.txt"_s, lines.join(u'\n').toUtf8() + '\n');
}

} // namespace zeph
