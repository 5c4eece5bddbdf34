// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/statementline.h"

#include "documents/documents.h"
#include "platform/colours.h"

#include <QMimeData>
#include <QSyntaxHighlighter>

namespace zeph {

/// Gives the line its colours without a part in its steps to undo.
class StatementLine::Painter : public QSyntaxHighlighter
{
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

    void setColours(const ColourScheme &scheme, const CharFormat &plain)
    {
        m_scheme = scheme;
        m_plain = plain;
        rehighlight();
    }

protected:
    void highlightBlock(const QString &text) override
    {
        qsizetype at = 0;
        for (const CharRun &run : paintedAsTyped(text, m_scheme, m_plain).characters) {
            QTextCharFormat format;
            format.setForeground(toColor(run.format.colour.value_or(0)));
            setFormat(int(at), int(run.length), format);
            at += run.length;
        }
    }

private:
    ColourScheme m_scheme;
    CharFormat m_plain;
};

StatementLine::StatementLine(QWidget *parent)
    : RichTextBox(parent), m_painter(new Painter(document()))
{
    setLineWrapMode(NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setTabChangesFocus(true);
    constexpr qreal margin = 2;
    document()->setDocumentMargin(margin);
}

void StatementLine::setColours(const ColourScheme &scheme, const CharFormat &plain,
                               ColorRef background)
{
    QPalette look = palette();
    look.setColor(QPalette::Base, toColor(background));
    look.setColor(QPalette::Text, toColor(plain.colour.value_or(0)));
    setPalette(look);
    m_painter->setColours(scheme, plain);
}

void StatementLine::setLine(const QString &text)
{
    if (toPlainText() != text) {
        setPlainText(text);
        moveCursor(QTextCursor::End);
    }
}

void StatementLine::addToEnd(const QString &text)
{
    moveCursor(QTextCursor::End);
    textCursor().insertText(text);
    ensureCursorVisible();
}

QSize StatementLine::sizeHint() const
{
    const int margins = 2 * (frameWidth() + int(document()->documentMargin()));
    constexpr int letters = 40;
    return { fontMetrics().averageCharWidth() * letters, fontMetrics().lineSpacing() + margins };
}

QSize StatementLine::minimumSizeHint() const
{
    return sizeHint();
}

void StatementLine::focusInEvent(QFocusEvent *event)
{
    RichTextBox::focusInEvent(event);
    Q_EMIT entered();
}

void StatementLine::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        event->ignore();
        break;
    case Qt::Key_Up:
        Q_EMIT stepWanted(-1);
        break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT stepWanted(1);
        break;
    default:
        RichTextBox::keyPressEvent(event);
    }
}

void StatementLine::insertFromMimeData(const QMimeData *source)
{
    QMimeData flat;
    flat.setText(withLineEnds(source->text()).replace(u'\n', u' '));
    RichTextBox::insertFromMimeData(&flat);
}

} // namespace zeph
