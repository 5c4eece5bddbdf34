// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "scene_steps.h"

#include "finding.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QImage>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextBlock>
#include <QTextLayout>

// What the toolkit's own tests press keys with.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject *control, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers,
                                               const QString &text = QString(),
                                               bool autoRepeat = false, ushort count = 1);
QT_END_NAMESPACE

namespace {

/// "FAMILY SIZE" and what else is set of the character at a position (0-based) as it is drawn.
QString fontAt(const QPlainTextEdit &edit, int position)
{
    const QTextBlock line = edit.document()->findBlock(position);
    // Lines are laid out when they are asked for.
    edit.document()->documentLayout()->blockBoundingRect(line);
    QTextCharFormat format;
    for (const QTextLayout::FormatRange &range : line.layout()->formats()) {
        const int at = position - line.position() - range.start;
        if (at >= 0 && at < range.length) {
            format.merge(range.format);
        }
    }
    const QFont plain = edit.document()->defaultFont();
    const QStringList families = format.fontFamilies().toStringList();
    QString font = families.isEmpty() ? plain.family() : families.first();
    font += QLatin1Char(' ')
        + QString::number(format.hasProperty(QTextFormat::FontPointSize) ? format.fontPointSize()
                                                                         : plain.pointSizeF());
    font += format.fontWeight() >= QFont::Bold ? QLatin1String(" bold") : QLatin1String();
    font += format.fontItalic() ? QLatin1String(" italic") : QLatin1String();
    font += format.fontUnderline() ? QLatin1String(" underline") : QLatin1String();
    return font;
}

bool noteFont(Notes &notes, const QString &name, const QString &position)
{
    const auto *edit = qobject_cast<QPlainTextEdit *>(widgetNamed(name));
    if (!edit || !edit->isVisible()) {
        return false;
    }
    notes.note(name + QLatin1String(" font at ") + position + QLatin1String(": ")
               + fontAt(*edit, position.toInt()));
    return true;
}

bool usable(Notes &notes, const QString &name, bool wanted)
{
    const QAction *entry = actionNamed(name);
    const QWidget *control = entry ? nullptr : widgetNamed(name);
    if (!entry && !control) {
        return false;
    }
    if ((entry ? entry->isEnabled() : control->isEnabled()) != wanted) {
        return false;
    }
    notes.note(name + (wanted ? QLatin1String(" is usable: ") : QLatin1String(" is off: "))
               + (entry ? entry->text() + QLatin1Char('|') + entry->statusTip() : textOf(control)));
    return true;
}

bool items(Notes &notes, const QString &name, const QString &wanted)
{
    const auto *list = qobject_cast<QAbstractItemView *>(widgetNamed(name));
    if (!list) {
        return false;
    }
    QStringList rows;
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        rows.append(list->model()->index(row, 0).data().toString());
    }
    if (!rows.contains(wanted)) {
        return false;
    }
    notes.note(name + QLatin1Char('=') + rows.join(QLatin1Char(',')));
    return true;
}

bool ticked(const QString &name, bool wanted)
{
    const QAction *entry = actionNamed(name);
    return entry && entry->isChecked() == wanted;
}

bool noteCaret(Notes &notes, const QString &name, const QString &wanted)
{
    const auto *edit = qobject_cast<QPlainTextEdit *>(widgetNamed(name));
    const QTextBlock line = edit ? edit->textCursor().block() : QTextBlock();
    if (!line.isValid() || !line.text().contains(wanted)) {
        return false;
    }
    notes.note(
        QStringLiteral("%1 line %2: %3").arg(name).arg(line.blockNumber() + 1).arg(line.text()));
    return true;
}

bool moveCaret(const QString &name, int line)
{
    auto *edit = qobject_cast<QPlainTextEdit *>(widgetNamed(name));
    if (!edit || !edit->isVisible()) {
        return false;
    }
    edit->setTextCursor(QTextCursor(edit->document()->findBlockByNumber(line - 1)));
    return true;
}

/// Shortcuts come first, as from a keyboard.
void pressKey(QWidget &control, QKeyCombination key)
{
    const bool types = key.key() < Qt::Key_Escape
        && !(key.keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const QString text = types ? QString(QChar(char16_t(key.key()))) : QString();
    if (qt_sendShortcutOverrideEvent(&control, 0, key.key(), key.keyboardModifiers(), text)) {
        return;
    }
    const QPointer<QWidget> alive(&control);
    for (const auto type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, key.key(), key.keyboardModifiers(), text);
        if (alive) {
            QApplication::sendEvent(alive, &event);
        }
    }
}

bool stroke(const QString &keys)
{
    QWidget *control = QApplication::activePopupWidget();
    if (!control) {
        control = QApplication::focusWidget();
    }
    if (!control) {
        control = QApplication::activeWindow();
    }
    if (!control) {
        return false;
    }
    const QKeyCombination key = QKeySequence(keys)[0];
    later(control, [key](QWidget *at) { pressKey(*at, key); });
    return true;
}

bool noteFace(Notes &notes, const QString &name)
{
    QWidget *control = widgetNamed(name);
    if (!control || !control->isVisible()) {
        return false;
    }
    const QImage face = control->grab().toImage();
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(face.constBits()),
                                               face.sizeInBytes());
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex();
    notes.note(QLatin1String("face ") + name + QLatin1Char(' ') + QString::fromLatin1(hash));
    return true;
}

bool noteFocus(Notes &notes, const QString &wanted)
{
    const QWidget *control = QApplication::focusWidget();
    if (!control || !control->objectName().startsWith(wanted)) {
        return false;
    }
    notes.note(QLatin1String("focus ") + control->objectName());
    return true;
}

} // namespace

std::optional<bool> performOnScene(Notes &notes, const QString &verb, const QString &rest)
{
    const QString first = rest.section(QLatin1Char(' '), 0, 0);
    const QString second = rest.section(QLatin1Char(' '), 1);
    if (verb == QLatin1String("leave")) {
        QApplication::setActiveWindow(nullptr);
        return true;
    }
    if (verb == QLatin1String("return")) {
        QApplication::setActiveWindow(mainWindow());
        return true;
    }
    if (verb == QLatin1String("font")) {
        return noteFont(notes, first, second);
    }
    if (verb == QLatin1String("usable")) {
        return usable(notes, first, second == QLatin1String("1"));
    }
    if (verb == QLatin1String("items")) {
        return items(notes, first, second);
    }
    if (verb == QLatin1String("minimised")) {
        const QWidget *window = windowTitled(rest);
        return window && window->isMinimized();
    }
    if (verb == QLatin1String("ticked")) {
        return ticked(first, second == QLatin1String("1"));
    }
    if (verb == QLatin1String("caret")) {
        return noteCaret(notes, first, second);
    }
    if (verb == QLatin1String("line")) {
        return moveCaret(first, second.toInt());
    }
    if (verb == QLatin1String("stroke")) {
        return stroke(rest);
    }
    if (verb == QLatin1String("face")) {
        return noteFace(notes, rest);
    }
    if (verb == QLatin1String("focus")) {
        return noteFocus(notes, rest);
    }
    if (verb == QLatin1String("clipboard")) {
        QApplication::clipboard()->setText(rest);
        return true;
    }
    if (verb == QLatin1String("remove")) {
        return QFile::remove(QDir(QCoreApplication::applicationDirPath()).filePath(rest));
    }
    if (verb == QLatin1String("time")) {
        notes.note(rest + QLatin1String(" at ")
                   + QString::number(QDateTime::currentMSecsSinceEpoch()));
        return true;
    }
    return std::nullopt;
}
