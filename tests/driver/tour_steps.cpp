// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tour_steps.h"

#include "finding.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPalette>
#include <QPushButton>
#include <QStackedWidget>

namespace {

/// How long a window has before its picture is taken; ZEPH_TOUR_SETTLE_MS sets another time.
int settleMs()
{
    bool isSet = false;
    const int set = qEnvironmentVariableIntValue("ZEPH_TOUR_SETTLE_MS", &isSet);
    return isSet ? set : 400;
}

/// The first run's window is late by less than this.
constexpr int welcomeMs = 500;
constexpr QPoint menuPlace(300, 100);

QPalette darkPalette()
{
    const QColor window(45, 48, 52);
    const QColor dim(130, 133, 137);
    QPalette palette(window);
    palette.setColor(QPalette::Base, QColor(30, 32, 35));
    palette.setColor(QPalette::AlternateBase, QColor(38, 41, 44));
    palette.setColor(QPalette::Highlight, QColor(52, 120, 190));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, dim);
    palette.setColor(QPalette::Link, QColor(110, 175, 240));
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        palette.setColor(QPalette::Disabled, role, dim);
    }
    return palette;
}

/// The number by which Windows knows a key; 0 on other systems, where the program goes by the
/// toolkit's.
quint32 virtualKey([[maybe_unused]] int key)
{
#ifdef Q_OS_WIN
    constexpr int firstFunctionKey = 0x70;
    constexpr int firstArrow = 0x25;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        return quint32(key - Qt::Key_F1 + firstFunctionKey);
    }
    if (key >= Qt::Key_Left && key <= Qt::Key_Down) {
        return quint32(key - Qt::Key_Left + firstArrow);
    }
    return quint32(key);
#else
    return 0;
#endif
}

bool isFurther(const QWidget *window)
{
    return window->isVisible() && window != mainWindow() && !window->objectName().isEmpty();
}

bool writeText(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly)
        && file.write(QString(text).replace(QLatin1String("\\n"), QLatin1String("\r\n")).toLatin1())
        >= 0;
}

} // namespace

TourSteps::TourSteps(Notes &notes) : m_notes(notes)
{
    if (qEnvironmentVariable("ZEPH_TOUR_PALETTE") == QLatin1String("dark")) {
        QApplication::setPalette(darkPalette());
    }
}

std::optional<bool> TourSteps::perform(const QString &verb, const QString &rest, qint64 waitedMs)
{
    const QString first = rest.section(QLatin1Char(' '), 0, 0);
    const QString second = rest.section(QLatin1Char(' '), 1);
    if (verb == QLatin1String("answers")) {
        m_answers = true;
        return true;
    }
    if (verb == QLatin1String("welcome")) {
        return welcome();
    }
    if (verb == QLatin1String("look") || verb == QLatin1String("stop")) {
        if (waitedMs < settleMs()
            || qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            return false;
        }
        grabAll(rest);
        if (verb == QLatin1String("stop")) {
            const QWidget *panel = widgetNamed(QLatin1String("Panel_1"));
            m_notes.note(rest + QLatin1String(": ") + (panel ? textOf(panel) : QString()));
            leaveAll();
        }
        return true;
    }
    if (verb == QLatin1String("menu")) {
        return popUp(rest);
    }
    if (verb == QLatin1String("keys")) {
        return pressKeys(first, second);
    }
    if (verb == QLatin1String("click") || verb == QLatin1String("doubleclick")) {
        return click(rest, verb == QLatin1String("doubleclick"));
    }
    if (verb == QLatin1String("toggle")) {
        return toggle(first, second.section(QLatin1Char(' '), 0, 0),
                      second.endsWith(QLatin1String(" 1")));
    }
    if (verb == QLatin1String("environment")) {
        return second.isEmpty() ? qunsetenv(first.toUtf8().constData())
                                : qputenv(first.toUtf8().constData(), second.toUtf8());
    }
    if (verb == QLatin1String("write")) {
        return writeText(QDir(QCoreApplication::applicationDirPath()).filePath(first), second);
    }
    return std::nullopt;
}

void TourSteps::answerBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!m_answers || !box || !box->isVisible() || box == m_answered) {
        m_answered = box;
        return;
    }
    m_answered = box;
    m_notes.note(QLatin1String("box: ") + box->windowTitle() + QLatin1String(": ") + box->text());
    QAbstractButton *button = box->defaultButton() ? box->defaultButton() : box->buttons().value(0);
    later(button, [](QAbstractButton *pressed) { pressed->click(); });
}

bool TourSteps::welcome()
{
    QWidget *welcome = QApplication::activeModalWidget();
    const auto *pages =
        welcome ? welcome->findChild<QStackedWidget *>(QLatin1String("pages")) : nullptr;
    if (!pages) {
        const QWidget *text = widgetNamed(QLatin1String("JoystickText"));
        if (!m_sinceWelcome.isValid() || welcome || !text) {
            m_sinceWelcome.start();
        }
        return m_sinceWelcome.elapsed() > welcomeMs;
    }
    m_sinceWelcome.start();
    QWidget *page = pages->currentWidget();
    if (m_welcomePages.contains(page->objectName())) {
        return false;
    }
    const QString name = page->objectName();
    welcome->grab().save(m_notes.folder() + QLatin1String("/welcome-") + name
                         + QLatin1String(".png"));
    if (name == QLatin1String("pageScript")) {
        return false;
    }
    m_welcomePages.insert(name);
    if (auto *veteran = page->findChild<QAbstractButton *>(QLatin1String("Option_Experience_3"))) {
        veteran->click();
    }
    for (auto *button : page->findChildren<QAbstractButton *>()) {
        if (button->objectName().startsWith(QLatin1String("cmd"))
            && button->objectName() != QLatin1String("cmdBrowse")) {
            later(button, [](QAbstractButton *pressed) { pressed->click(); });
        }
    }
    return false;
}

bool TourSteps::popUp(const QString &name) const
{
    if (QAction *entry = actionNamed(name); entry && entry->menu()) {
        entry->menu()->setObjectName(name);
        entry->menu()->popup(mainWindow()->mapToGlobal(menuPlace));
        return true;
    }
    QWidget *control = widgetNamed(name);
    if (!control) {
        return false;
    }
    if (auto *scrolled = qobject_cast<QAbstractScrollArea *>(control)) {
        control = scrolled->viewport();
    }
    const QPoint middle = control->rect().center();
    later(control, [middle](QWidget *at) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, middle, at->mapToGlobal(middle));
        QApplication::sendEvent(at, &event);
    });
    return true;
}

bool TourSteps::pressKeys(const QString &name, const QString &keys) const
{
    QWidget *control = widgetNamed(name);
    if (!control || !control->isVisible()) {
        return false;
    }
    for (const QString &each : keys.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QKeyCombination key = QKeySequence(each)[0];
        const bool types = key.key() < Qt::Key_Escape;
        const QString text = types ? QString(QChar(char16_t(key.key()))) : QString();
        for (const auto type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, key.key(), key.keyboardModifiers(), 0, virtualKey(key.key()), 0,
                            text);
            QApplication::sendEvent(control, &event);
        }
    }
    return true;
}

bool TourSteps::click(const QString &name, bool twice) const
{
    QWidget *control = widgetNamed(name);
    if (!control || !control->isVisible()) {
        return false;
    }
    QList<QEvent::Type> types{ QEvent::MouseButtonPress, QEvent::MouseButtonRelease };
    if (twice) {
        types += { QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease };
    }
    later(control, [types](QWidget *at) {
        const QPoint middle = at->rect().center();
        for (const auto type : types) {
            QMouseEvent event(type, middle, at->mapToGlobal(middle), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QApplication::sendEvent(at, &event);
        }
    });
    return true;
}

bool TourSteps::toggle(const QString &button, const QString &name, bool wanted) const
{
    auto *switching = qobject_cast<QAbstractButton *>(widgetNamed(button));
    const QWidget *switched = widgetNamed(name);
    if (!switching || !switched) {
        return false;
    }
    if (switched->isVisible() != wanted) {
        switching->click();
    }
    return true;
}

void TourSteps::grabAll(const QString &name) const
{
    const QString start = m_notes.folder() + QLatin1Char('/') + name;
    if (QWidget *window = mainWindow()) {
        window->grab().save(start + QLatin1String(".png"));
    }
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (isFurther(window)) {
            window->grab().save(start + QLatin1Char('-') + window->objectName()
                                + QLatin1String(".png"));
        }
    }
}

void TourSteps::leaveAll() const
{
    // The modal one first: the others cannot be closed before it.
    if (QWidget *modal = QApplication::activeModalWidget()) {
        later(modal, [](QWidget *window) { window->close(); });
    }
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (isFurther(window)) {
            later(window, [](QWidget *left) { left->close(); });
        }
    }
}
