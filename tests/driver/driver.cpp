// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// A plugin that plays the pilot: the toolkit loads it into the untouched program, where it follows
// a script of clicks and keys by object names and writes down what it saw. One step a line:
//   box TITLE            waits for a message box of that title and notes
//                        "title|text|buttons|default"
//   press NAME           clicks the button of that text or object name, in the topmost window
//   trigger ACTION       chooses the menu entry of that object name; WINDOW/ACTION names its window
//   type NAME TEXT       types into the control of that object name; \n is Enter
//   window TITLE         waits for a visible window whose title begins so and notes its whole title
//   dismiss TITLE        closes that window by its close box
//   gone TITLE           waits until no such window is visible
//   text NAME TEXT       waits until the control's text holds TEXT, and notes the text
//   note NAME            notes the control's text
//   selection NAME TEXT  waits until the text selected in the control holds TEXT
//   modal                waits for any message box, and notes it as box does
//   maybe-ok TITLE       answers a box whose title begins so, if one comes with the first windows
//   file PATH            answers the open file dialog; a relative name is one beside the program
//   write PATH TEXT      writes such a file; \n is CR LF
//   tab NAME N           turns the tabs of that object name to a page, counted from 0
//   flip NAME            clicks a tick, and notes it
//   retype NAME TEXT     types TEXT in place of what stands in a line, and notes it
//   choose NAME N        takes an entry of a list, or a number, and notes it
//   value NAME           notes the state of a field: a tick's 0 or 1, a line's text, a list's place
//                        and text, a number
//   colour RRGGBB        answers the open colour dialog
//   grab NAME FILE       grabs the window that holds the control to a picture; a relative name is
//                        one beside the notes
//   minimise / maximise / normal / close     the main window
//   place NAME           notes "NAME at X Y W H", the place of the window that holds the control
//   native NAME down|up KEY MODIFIERS SYMBOL   a key as the system reports it, numbers as in C
//   pause MS             lets time pass
//   kill                 ends the process at once, as a crash would
//   hasten NAME FACTOR   makes the timer of that object name run that much faster, and notes
//   "timer NAME interval precise" (or coarse), the interval as the program has it in milliseconds
//   pilot NAME [ACTION N] types letters into the control of that object name until the process
//   ends, one a step, and notes "key n ms" for each; after every Nth chooses the menu entry, and
//   notes "done n" when that has done its work
//   done                 waits until the last act has returned, with the windows that it opened
// Lines that begin with # are comments. A tour has steps of its own:
//   answers              notes each message box from now on and presses its default button
//   welcome              answers the first run's questions, if they come, and grabs their pages
//   look NAME            lets things settle, and grabs all windows: the main one to NAME.png, the
//                        others to NAME-WINDOW.png
//   stop NAME            looks, notes "NAME: panel 1's text", and closes all windows but the main
//                        one
//   menu NAME            pops up the menu of that entry, or the right mouse button's of that
//                        control
//   keys NAME KEY ...    presses keys ("Shift+C") in the control of that object name
//   toggle BUTTON NAME 1 presses the button when the control NAME is not visible (0: when it is)
//   click NAME           clicks into the control of that object name; doubleclick does so twice
//   environment NAME V   sets a variable for the programs that are started from now on; without a
//                        value it is unset
// So have tests of what is around the texts:
//   leave / return       the focus goes to another program and comes back
//   font NAME N          notes "NAME font at N: FAMILY SIZE bold italic underline" of the character
//                        at that position (0-based) as it is drawn
//   usable NAME 1        waits until that control or menu entry can be used (0: cannot), and notes
//                        its caption, of an entry with its status text
//   items NAME TEXT      waits until a list has such an entry, and notes all
//   minimised TITLE      waits until that window is minimised
//   clipboard TEXT       puts a text on the clipboard
//   remove PATH          deletes a file; a relative name is one beside the program
//   time NAME            notes "NAME at MS", the time in milliseconds since 1970
//   ticked NAME 1        waits until that menu entry is ticked (0: is not)
//   caret NAME TEXT      waits until the line with the caret holds TEXT, and notes it with its
//                        number, counted from 1
//   line NAME N          puts the caret to the start of a line, counted from 1
//   focus TEXT           waits until the focus is on a control whose object name begins with TEXT,
//                        and notes the name
//   idle MS              leaves the program alone for that long, and notes the processor time that
//                        it took
// A pilot with a controller in his hands has these:
//   stick in N           plugs one with N buttons (28 when left out), eight axes and a hat in, and
//                        notes its number
//   stick out            pulls it out
//   stick down N ...     presses buttons at once, counted from 0; stick up N ... releases them
//   stick hat U          moves the hat to U, UR, R, DR, D, DL, L, UL or M, the middle
//   stick axis N VALUE   moves an axis, from -32768 to 32767
//   bold NAME ...        waits until exactly these labels of Quick View are bold (none: no label;
//                        any: whatever is), and notes them with the number of looks that the
//                        window has taken at the controller since the last step of the stick
//   ticks N              waits for so many looks since then
#include "finding.h"
#include "joystick_steps.h"
#include "scene_steps.h"
#include "tour_steps.h"

#include "tests/support/cpu_time.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QGenericPlugin>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <cstdlib>

namespace {

constexpr int stepMs = 10;

/// How long a step may take; ZEPH_PATIENCE_MS sets another time for slow machines.
int patienceMs()
{
    bool isSet = false;
    const int set = qEnvironmentVariableIntValue("ZEPH_PATIENCE_MS", &isSet);
    return isSet ? set : 15000;
}

bool isOfField(const QString &verb)
{
    static const QStringList verbs = { QStringLiteral("tab"), QStringLiteral("flip"),
                                       QStringLiteral("retype"), QStringLiteral("choose"),
                                       QStringLiteral("value") };
    return verbs.contains(verb);
}

class Driver : public QObject
{
public:
    Driver()
    {
        // The system's own dialogs cannot be reached by the names of their controls.
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QFile script(qEnvironmentVariable("ZEPH_SCRIPT"));
        if (script.open(QIODevice::ReadOnly)) {
            m_steps =
                QString::fromUtf8(script.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
            m_steps.removeIf([](const QString &step) { return step.startsWith(QLatin1Char('#')); });
        }
        m_timer.callOnTimeout(this, &Driver::tick);
        m_timer.start(stepMs);
        m_waited.start();
    }

private:
    void note(const QString &line) { m_notes.note(line); }

    void tick()
    {
        m_tour.answerBox();
        // A busy program may get several ticks before it gets what an earlier one has posted.
        if (m_steps.isEmpty() || Posted::isAny()) {
            return;
        }
        const QString step = m_steps.first();
        const QString verb = step.section(QLatin1Char(' '), 0, 0);
        if (perform(verb, step.section(QLatin1Char(' '), 1))) {
            m_steps.removeFirst();
            m_waited.restart();
        } else if (m_waited.elapsed() > patienceMs()) {
            note(QLatin1String("STUCK ") + step);
            for (const QWidget *widget : QApplication::topLevelWidgets()) {
                if (widget->isVisible()) {
                    note(QLatin1String("  visible: ") + widget->windowTitle());
                }
            }
            std::_Exit(3);
        }
    }

    /// Does one step; false when what it waits for is not there yet.
    bool perform(const QString &verb, const QString &rest)
    {
        if (const auto done = m_tour.perform(verb, rest, m_waited.elapsed())) {
            return *done;
        }
        if (const auto done = m_joystick.perform(verb, rest)) {
            return *done;
        }
        if (const auto done = performOnScene(m_notes, verb, rest)) {
            return *done;
        }
        const QString first = rest.section(QLatin1Char(' '), 0, 0);
        const QString second = rest.section(QLatin1Char(' '), 1);
        if (verb == QLatin1String("box")) {
            return box(rest);
        }
        if (verb == QLatin1String("press")) {
            return press(rest);
        }
        if (verb == QLatin1String("trigger")) {
            return trigger(rest);
        }
        if (verb == QLatin1String("type")) {
            return type(first, second);
        }
        if (verb == QLatin1String("window")) {
            const QWidget *window = windowTitled(rest);
            if (window) {
                note(QLatin1String("window ") + window->windowTitle());
            }
            return window != nullptr;
        }
        if (verb == QLatin1String("dismiss")) {
            QWidget *window = windowTitled(rest);
            if (window) {
                later(window, [](QWidget *w) { w->close(); });
            }
            return window != nullptr;
        }
        if (verb == QLatin1String("gone")) {
            return windowTitled(rest) == nullptr;
        }
        if (verb == QLatin1String("text") || verb == QLatin1String("note")) {
            const QWidget *widget = widgetNamed(first);
            const bool seen = widget && textOf(widget).contains(second);
            if (seen) {
                note(first + QLatin1Char('=') + textOf(widget));
            }
            return seen;
        }
        if (verb == QLatin1String("selection")) {
            return selectionOf(widgetNamed(first)).contains(second);
        }
        if (verb == QLatin1String("modal")) {
            const QWidget *modal = QApplication::activeModalWidget();
            return modal && box(modal->windowTitle());
        }
        if (verb == QLatin1String("maybe-ok")) {
            return maybeOk(rest);
        }
        if (verb == QLatin1String("file")) {
            return file(rest);
        }
        if (verb == QLatin1String("colour")) {
            return colour(rest);
        }
        return performOnField(verb, first, second) || performOnWindow(verb, first, second);
    }

    /// False when the verb is no field's, or the field cannot be used yet.
    bool performOnField(const QString &verb, const QString &first, const QString &second)
    {
        QWidget *field = isOfField(verb) ? widgetNamed(first) : nullptr;
        if (!field || !field->isVisible()) {
            return false;
        }
        if (verb == QLatin1String("tab")) {
            field->setProperty("currentIndex", second.toInt());
            return true;
        }
        if (verb != QLatin1String("value") && !field->isEnabled()) {
            return false;
        }
        if (verb == QLatin1String("flip")) {
            qobject_cast<QAbstractButton *>(field)->click();
        } else if (verb == QLatin1String("retype")) {
            retype(*lineOf(field), second);
        } else if (verb == QLatin1String("choose")) {
            choose(field, second.toInt());
        }
        note(first + QLatin1Char('=') + valueOf(field));
        return true;
    }

    bool performOnWindow(const QString &verb, const QString &first, const QString &second)
    {
        if (verb == QLatin1String("grab")) {
            QWidget *widget = widgetNamed(first);
            return widget && widget->window()->grab().save(QDir(m_notes.folder()).filePath(second));
        }
        if (const auto act = actOnMain(verb)) {
            QWidget *main = mainWindow();
            if (main) {
                later(main, act);
            }
            return main != nullptr;
        }
        if (verb == QLatin1String("place")) {
            const QString place = placeOf(widgetNamed(first));
            note(first + QLatin1String(" at ") + place);
            return !place.isEmpty();
        }
        if (verb == QLatin1String("native")) {
            return sendNative(widgetNamed(first), second.split(QLatin1Char(' ')));
        }
        if (verb == QLatin1String("pause")) {
            return m_waited.elapsed() >= first.toInt();
        }
        if (verb == QLatin1String("idle")) {
            return idle(first.toInt());
        }
        if (verb == QLatin1String("done")) {
            return m_acts == 0;
        }
        if (verb == QLatin1String("kill")) {
            std::_Exit(9);
        }
        if (verb == QLatin1String("hasten")) {
            return hasten(first, second.toInt());
        }
        if (verb == QLatin1String("pilot")) {
            keepTyping(first, second.section(QLatin1Char(' '), 0, 0),
                       second.section(QLatin1Char(' '), 1).toInt());
            m_waited.restart();
            return false;
        }
        if (isOfField(verb)) {
            return false;
        }
        note(QLatin1String("UNKNOWN ") + verb);
        return true;
    }

    bool box(const QString &title)
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible() || box->windowTitle() != title) {
            return false;
        }
        QStringList buttons;
        for (const QAbstractButton *button : box->buttons()) {
            buttons.append(button->text().remove(QLatin1Char('&')));
        }
        note(QLatin1String("box ") + title + QLatin1Char('|') + box->text() + QLatin1Char('|')
             + buttons.join(QLatin1Char(',')) + QLatin1Char('|')
             + (box->defaultButton() ? box->defaultButton()->text().remove(QLatin1Char('&'))
                                     : QString()));
        return true;
    }

    static bool maybeOk(const QString &title)
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (modal && modal->windowTitle().startsWith(title)) {
            later(modal, [](QWidget *w) { w->close(); });
            return true;
        }
        return modal || widgetNamed(QLatin1String("JoystickText"));
    }

    bool press(const QString &name)
    {
        const QWidget *modal = QApplication::activeModalWidget();
        for (QWidget *widget : QApplication::allWidgets()) {
            auto *button = qobject_cast<QAbstractButton *>(widget);
            if (button && button->isVisible() && button->isEnabled()
                && (!modal || modal->isAncestorOf(button))
                && (button->objectName() == name
                    || button->text().remove(QLatin1Char('&')) == name)) {
                later(button, [](QAbstractButton *b) { b->click(); });
                return true;
            }
        }
        return false;
    }

    bool trigger(const QString &name)
    {
        QAction *action = actionNamed(name);
        if (!action || !action->isEnabled() || QApplication::activeModalWidget()) {
            return false;
        }
        ++m_acts;
        later(this, [action = QPointer(action)](Driver *driver) {
            if (action) {
                action->trigger();
            }
            --driver->m_acts;
        });
        return true;
    }

    static bool type(const QString &name, const QString &text)
    {
        QWidget *widget = widgetNamed(name);
        if (!widget || !widget->isVisible()) {
            return false;
        }
        widget->setFocus();
        const QString keys = QString(text).replace(QLatin1String("\\n"), QLatin1String("\n"));
        for (const QChar c : keys) {
            const int key = c == QLatin1Char('\n') ? int(Qt::Key_Return) : c.toUpper().unicode();
            const QString typed = c == QLatin1Char('\n') ? QString(QLatin1Char('\r')) : QString(c);
            QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, typed);
            QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, typed);
            QApplication::sendEvent(widget, &down);
            QApplication::sendEvent(widget, &up);
        }
        return true;
    }

    bool hasten(const QString &name, int factor)
    {
        for (const QWidget *widget : QApplication::allWidgets()) {
            if (auto *timer = widget->findChild<QTimer *>(name, Qt::FindDirectChildrenOnly)) {
                note(QStringLiteral("timer %1 %2 %3")
                         .arg(name)
                         .arg(timer->interval())
                         .arg(timer->timerType() == Qt::PreciseTimer ? QLatin1String("precise")
                                                                     : QLatin1String("coarse")));
                timer->setInterval(timer->interval() / factor);
                return true;
            }
        }
        return false;
    }

    /// Its own looks at the program would be measured too: there is one at the start and one at the
    /// end.
    bool idle(int ms)
    {
        if (m_timer.interval() == stepMs) {
            m_idleFrom = zeph::test::cpuSeconds();
            m_timer.setInterval(ms);
            return false;
        }
        const double used = (zeph::test::cpuSeconds() - m_idleFrom) * 1000;
        m_timer.setInterval(stepMs);
        note(QStringLiteral("idle %1: %2 ms").arg(ms).arg(used));
        return true;
    }

    void keepTyping(const QString &control, const QString &action, int every)
    {
        if (const QWidget *modal = QApplication::activeModalWidget()) {
            note(QLatin1String("STUCK by ") + modal->windowTitle());
            std::_Exit(3);
        }
        if (!m_typing.isValid()) {
            m_typing.start();
        }
        if (!type(control, QString(QLatin1Char(char('a' + m_keys % 26))))) {
            return;
        }
        ++m_keys;
        note(QStringLiteral("key %1 %2").arg(m_keys).arg(m_typing.elapsed()));
        if (every > 0 && m_keys % every == 0) {
            actionNamed(action)->trigger();
            note(QStringLiteral("done %1").arg(m_keys));
        }
    }

    bool colour(const QString &name)
    {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            return false;
        }
        dialog->setCurrentColor(QColor(QLatin1Char('#') + name));
        note(QLatin1String("colour ") + dialog->currentColor().name());
        later(static_cast<QDialog *>(dialog), [](QDialog *d) { d->accept(); });
        return true;
    }

    bool file(const QString &name)
    {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            return false;
        }
        note(QLatin1String("file ") + dialog->windowTitle());
        const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(name);
        // In one go, since the dialog writes its own choice into the field whenever it reads the
        // folder.
        later(static_cast<QDialog *>(dialog), [path](QDialog *d) {
            d->findChild<QLineEdit *>(QLatin1String("fileNameEdit"))->setText(path);
            d->accept();
        });
        return true;
    }

    QStringList m_steps;
    Notes m_notes;
    TourSteps m_tour{ m_notes };
    JoystickSteps m_joystick{ m_notes };
    int m_acts = 0;
    QTimer m_timer;
    QElapsedTimer m_waited;
    double m_idleFrom = 0; ///< seconds of work
    QElapsedTimer m_typing;
    int m_keys = 0;
};

} // namespace

class DriverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "driver.json")
public:
    QObject *create(const QString &, const QString &) override
    {
        // Made from the event loop: the plugin is asked for before the application object is
        // complete.
        auto *holder = new QObject;
        QTimer::singleShot(0, holder, [holder] { (new Driver)->setParent(holder); });
        return holder;
    }
};

#include "driver.moc"
