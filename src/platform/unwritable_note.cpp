// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/unwritable_note.h"

#include "platform/core/base.h"
#include "platform/core/text1252.h"

#include <QLabel>
#include <QLineEdit>

namespace zeph {

namespace {

/// What the user calls a field: its accessible name, or the label that leads to it.
QString nameOfField(const QWidget &page, const QLineEdit &field)
{
    if (!field.accessibleName().isEmpty()) {
        return field.accessibleName();
    }
    for (const QLabel *label : page.findChildren<QLabel *>()) {
        if (label->buddy() == &field) {
            return label->text().remove(u'&').remove(u':');
        }
    }
    return {};
}

} // namespace

QString unwritableText(const QString &field, const QString &text)
{
    const qsizetype at = firstNot1252(text);
    if (at < 0) {
        return {};
    }
    const qsizetype length = text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
    return u"%1: my files can't hold the character \"%2\", so I can't keep that."_s.arg(
        field, text.mid(at, length));
}

UnwritableNote::UnwritableNote(QWidget &page, QLabel &label)
    : QObject(&page), m_page(page), m_label(label)
{
    m_label.setWordWrap(true);
    m_label.setTextFormat(Qt::PlainText);
    for (const QLineEdit *field : page.findChildren<QLineEdit *>()) {
        connect(field, &QLineEdit::textChanged, this, &UnwritableNote::look);
    }
    look();
}

void UnwritableNote::look()
{
    QString told;
    for (const QLineEdit *field : m_page.findChildren<QLineEdit *>()) {
        if (told.isEmpty()) {
            told = unwritableText(nameOfField(m_page, *field), field->text());
        }
    }
    m_label.setText(told);
    m_label.setVisible(!told.isEmpty());
    Q_EMIT changed(told.isEmpty());
}

} // namespace zeph
