// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QLabel>

namespace zeph {

/// Whether a control sends what is looked for.
enum class SendsSought : quint8 {
    No,
    Elsewhere, ///< in other positions of the dogfight switch or S3
    Here
};

/// What is said of a label beside its text.
struct LabelMarks {
    bool hasCaret = false; ///< the Editor's caret is in the control's statement
    bool isReadOtherwise = false; ///< the language reads the statement otherwise
    SendsSought sends = SendsSought::No;

    friend bool operator==(const LabelMarks &, const LabelMarks &) = default;
};

/// What one control does. text() is whole; as much of it as there is room for is painted, after the
/// control's name. A double click, Return or Enter activates it; Up and Down go to the next label.
/// The focus comes back to a label that was disabled meanwhile.
class StatementLabel : public QLabel
{
    Q_OBJECT
public:
    /// The spoken name is what a screen reader says before the text.
    StatementLabel(const QString &shownName, const QString &spokenName, QWidget *parent);

    /// Shows a text and says it to a screen reader. Without a statement the label is disabled; one
    /// that has a statement can have no text all the same. The tip is plain text.
    void showText(const QString &text, const QString &tip, bool hasStatement);
    /// Bold while the control is pressed.
    void setPressed(bool pressed);
    bool isPressed() const { return font().bold(); }
    void setMarks(const LabelMarks &marks);
    const LabelMarks &marks() const { return m_marks; }

Q_SIGNALS:
    void activated();
    void focused();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void paintGround(QPainter &painter) const;
    void paintMarks(QPainter &painter) const;
    /// The room at the right that the text leaves to the marks.
    qreal marksWidth() const;
    void speak();
    void enable(bool enabled);

    QString m_shownName;
    QString m_spokenName;
    LabelMarks m_marks;
    bool m_isFocusLent = false; ///< the parent has had it since the label was disabled
};

} // namespace zeph
