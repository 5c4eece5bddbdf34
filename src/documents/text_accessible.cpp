// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/text_accessible.h"

#include "documents/coloured_text.h"
#include "documents/text_control.h"

#include <QTextBlock>

namespace zeph {

namespace {

/// The attributes of a look by the names that screen readers know.
QString attributesOf(const CharFormat &look)
{
    QString result;
    const auto add = [&result](QStringView name, const QString &value) {
        result += name.toString() + u':' + value + u';';
    };
    if (!look.family.isEmpty()) {
        QString family = look.family;
        family.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
        add(u"font-family", u'"' + family + u'"');
    }
    if (look.pointSize > 0) {
        add(u"font-size", QString::number(look.pointSize) + u"pt"_s);
    }
    add(u"font-weight", look.bold ? u"bold"_s : u"normal"_s);
    if (look.italic) {
        add(u"font-style", u"italic"_s);
    }
    if (look.underline) {
        add(u"text-underline-style", u"solid"_s);
        add(u"text-underline-type", u"single"_s);
    }
    if (look.colour) {
        add(u"color",
            u"rgb(%1,%2,%3)"_s.arg(redOf(*look.colour))
                .arg(greenOf(*look.colour))
                .arg(blueOf(*look.colour)));
    }
    return result;
}

QAccessibleInterface *make(const QString &className, QObject *object)
{
    auto *control = qobject_cast<TextControl *>(object);
    const bool isItsOwn =
        control && className == QLatin1StringView(TextControl::staticMetaObject.className());
    return isItsOwn ? new TextAccessible(*control) : nullptr;
}

} // namespace

TextAccessible::TextAccessible(TextControl &control)
    : QAccessibleWidget(&control, QAccessible::EditableText), m_control(control)
{
}

void TextAccessible::install()
{
    QAccessible::installFactory(make);
}

QAccessible::State TextAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiLine = true;
    state.selectableText = true;
    state.editable = !m_control.isReadOnly();
    state.readOnly = m_control.isReadOnly();
    return state;
}

QString TextAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? m_control.shown().text() : QAccessibleWidget::text(kind);
}

void *TextAccessible::interface_cast(QAccessible::InterfaceType type)
{
    switch (type) {
    case QAccessible::TextInterface:
        return static_cast<QAccessibleTextInterface *>(this);
    case QAccessible::EditableTextInterface:
        return static_cast<QAccessibleEditableTextInterface *>(this);
    default:
        return QAccessibleWidget::interface_cast(type);
    }
}

void TextAccessible::selection(int index, int *start, int *end) const
{
    const QTextCursor cursor = m_control.textCursor();
    const bool isIt = index == 0 && cursor.hasSelection();
    *start = isIt ? cursor.selectionStart() : 0;
    *end = isIt ? cursor.selectionEnd() : 0;
}

int TextAccessible::selectionCount() const
{
    return m_control.textCursor().hasSelection() ? 1 : 0;
}

void TextAccessible::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void TextAccessible::removeSelection(int index)
{
    if (index == 0) {
        setCursorPosition(cursorPosition());
    }
}

void TextAccessible::setSelection(int index, int start, int end)
{
    if (index == 0) {
        m_control.shown().setCaret(start, end);
    }
}

int TextAccessible::cursorPosition() const
{
    return m_control.textCursor().position();
}

void TextAccessible::setCursorPosition(int position)
{
    m_control.shown().setCaret(position, position);
}

QString TextAccessible::text(int start, int end) const
{
    return m_control.shown().richText(start, end - start).text;
}

int TextAccessible::characterCount() const
{
    return m_control.shown().length();
}

QRect TextAccessible::characterRect(int offset) const
{
    QTextCursor cursor(m_control.document());
    cursor.setPosition(qBound(0, offset, characterCount()));
    QRect area = m_control.cursorRect(cursor);
    if (!cursor.atBlockEnd()) {
        cursor.movePosition(QTextCursor::NextCharacter);
        area.setRight(std::max(area.left(), m_control.cursorRect(cursor).left() - 1));
    }
    return area.translated(m_control.viewport()->mapToGlobal(QPoint()));
}

int TextAccessible::offsetAtPoint(const QPoint &point) const
{
    const QPoint local = m_control.viewport()->mapFromGlobal(point);
    return m_control.viewport()->rect().contains(local)
        ? m_control.cursorForPosition(local).position()
        : -1;
}

void TextAccessible::scrollToSubstring(int start, int)
{
    setCursorPosition(start);
    m_control.ensureCursorVisible();
}

QString TextAccessible::attributes(int offset, int *start, int *end) const
{
    *start = *end = offset;
    if (offset < 0 || offset > characterCount()) {
        return {};
    }
    const QTextBlock line = m_control.document()->findBlock(offset);
    int from = line.position();
    for (const CharRun &run : m_control.shown().states().looks(from, line.length())) {
        *start = from;
        *end = from + int(run.length);
        if (offset < *end) {
            return attributesOf(run.format);
        }
        from = *end;
    }
    // At the end of the text there is no character.
    *start = *end = offset;
    return attributesOf(m_control.shown().typingLook());
}

void TextAccessible::deleteText(int start, int end)
{
    replaceText(start, end, {});
}

void TextAccessible::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void TextAccessible::replaceText(int start, int end, const QString &text)
{
    if (!m_control.isReadOnly()) {
        QTextCursor cursor(m_control.document());
        cursor.setPosition(qBound(0, start, characterCount()));
        cursor.setPosition(qBound(0, end, characterCount()), QTextCursor::KeepAnchor);
        cursor.insertText(text);
    }
}

} // namespace zeph
