// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/wizards/lesson.h"
#include "platform/context.h"

#include <QFrame>

class QTextBrowser;
class QVBoxLayout;

namespace zeph {

/// A page of a lesson: its title, its picture beside its text, and below these the room for what
/// the user does on it. The text is read when the page is first shown.
class LessonFrame : public QFrame
{
    Q_OBJECT
public:
    /// The page must outlive the frame. Its text's object name is TextLesson and the number.
    LessonFrame(const Context &context, const LessonPage &page, DocumentKind kind, int number,
                QWidget *parent = nullptr);

    /// Puts a row of controls below the text.
    void addWork(QWidget *work);
    void addWork(QLayout *work);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void readText();

    Context m_context;
    const LessonPage &m_page;
    DocumentKind m_kind;
    QTextBrowser *m_text = nullptr;
    QVBoxLayout *m_rows = nullptr;
    bool m_isRead = false;
};

} // namespace zeph
