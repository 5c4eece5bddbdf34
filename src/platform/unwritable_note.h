// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

class QLabel;
class QLineEdit;
class QWidget;

namespace zeph {

/// What to tell of a field whose text has a character that the files, which are Windows-1252,
/// cannot hold; empty when there is none.
QString unwritableText(const QString &field, const QString &text);

/// Tells in a label, as it is typed, that a field below a widget has a character that cannot be
/// stored. The label is hidden while there is nothing to tell. Fields that are added later are not
/// watched.
class UnwritableNote : public QObject
{
    Q_OBJECT
public:
    /// The note belongs to the page.
    UnwritableNote(QWidget &page, QLabel &label);

Q_SIGNALS:
    /// A text was changed; whether all fields can be stored now.
    void changed(bool isWritable);

private:
    void look();

    QWidget &m_page;
    QLabel &m_label;
};

} // namespace zeph
