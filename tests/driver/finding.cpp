// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "finding.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTextEdit>

QString textOf(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QPlainTextEdit *>(widget)) {
        return edit->toPlainText();
    }
    if (const auto *edit = qobject_cast<const QTextEdit *>(widget)) {
        return edit->toPlainText();
    }
    return widget->property("text").toString();
}

QString selectionOf(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QPlainTextEdit *>(widget)) {
        return edit->textCursor().selectedText();
    }
    const auto *edit = qobject_cast<const QTextEdit *>(widget);
    return edit ? edit->textCursor().selectedText() : QString();
}

QWidget *widgetNamed(const QString &name)
{
    // Two windows may have a control of the same name; the pilot can only reach the modal one's.
    if (const QWidget *modal = QApplication::activeModalWidget()) {
        if (auto *inModal = modal->findChild<QWidget *>(name)) {
            return inModal;
        }
    }
    QWidget *hidden = nullptr;
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->objectName() == name) {
            if (widget->isVisible()) {
                return widget;
            }
            hidden = widget;
        }
    }
    return hidden;
}

QLineEdit *lineOf(QWidget *field)
{
    auto *list = qobject_cast<QComboBox *>(field);
    return list ? list->lineEdit() : qobject_cast<QLineEdit *>(field);
}

QString valueOf(QWidget *field)
{
    if (const auto *tick = qobject_cast<QAbstractButton *>(field)) {
        return tick->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    }
    if (const QLineEdit *line = lineOf(field)) {
        return line->text();
    }
    if (const auto *list = qobject_cast<QComboBox *>(field)) {
        return QString::number(list->currentIndex()) + QLatin1Char('|') + list->currentText();
    }
    const auto *number = qobject_cast<QSpinBox *>(field);
    return number ? QString::number(number->value()) : textOf(field);
}

void retype(QLineEdit &line, const QString &text)
{
    line.setFocus();
    line.selectAll();
    for (const QChar c : text) {
        QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(&line, &down);
    }
    // Some fields are measured when they are left.
    line.clearFocus();
}

void choose(QWidget *field, int place)
{
    if (auto *list = qobject_cast<QComboBox *>(field)) {
        list->setCurrentIndex(place);
        // What a user's choice sends beyond the change itself.
        Q_EMIT list->textActivated(list->currentText());
    } else if (auto *rows = qobject_cast<QListWidget *>(field)) {
        rows->setCurrentRow(place);
    } else if (auto *number = qobject_cast<QSpinBox *>(field)) {
        number->setValue(place);
    }
}

QWidget *windowTitled(const QString &title)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowTitle().startsWith(title)) {
            return widget;
        }
    }
    return nullptr;
}

QWidget *mainWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow *>(widget) && !widget->parentWidget()) {
            return widget;
        }
    }
    return nullptr;
}

QAction *actionNamed(const QString &name)
{
    const QString window =
        name.contains(QLatin1Char('/')) ? name.section(QLatin1Char('/'), 0, 0) : QString();
    const QString entry = name.section(QLatin1Char('/'), -1);
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (!window.isEmpty() && widget->window()->objectName() != window) {
            continue;
        }
        for (QAction *action : widget->actions()) {
            if (action->objectName() == entry) {
                return action;
            }
        }
    }
    return nullptr;
}

void (*actOnMain(const QString &verb))(QWidget *)
{
    if (verb == QLatin1String("close")) {
        return [](QWidget *main) {
            main->close();
        };
    }
    if (verb == QLatin1String("minimise")) {
        return [](QWidget *main) {
            main->showMinimized();
        };
    }
    if (verb == QLatin1String("maximise")) {
        return [](QWidget *main) {
            main->showMaximized();
        };
    }
    if (verb == QLatin1String("normal")) {
        return [](QWidget *main) {
            main->showNormal();
        };
    }
    return nullptr;
}

QString placeOf(const QWidget *control)
{
    if (!control) {
        return {};
    }
    const QWidget *window = control->window();
    return QStringLiteral("%1 %2 %3 %4")
        .arg(window->x())
        .arg(window->y())
        .arg(window->width())
        .arg(window->height());
}

bool sendNative(QWidget *control, const QStringList &stroke)
{
    if (!control || !control->isVisible() || stroke.size() != 4) {
        return false;
    }
    const auto number = [&stroke](qsizetype i) {
        return stroke[i].toUInt(nullptr, 0);
    };
    const auto type = stroke[0] == QLatin1String("down") ? QEvent::KeyPress : QEvent::KeyRelease;
    QKeyEvent event(type, int(number(1)), Qt::KeyboardModifiers(int(number(2))), 0, number(3), 0);
    QApplication::sendEvent(control, &event);
    return true;
}
