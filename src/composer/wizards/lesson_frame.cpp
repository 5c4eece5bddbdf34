// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/lesson_frame.h"

#include "composer/wizards/lesson_picture.h"
#include "composer/wizards/lesson_text.h"
#include "documents/editor_texts.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include <QDir>
#include <QLabel>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace zeph {

namespace {

constexpr double titleScale = 1.3;
constexpr QSize leastText(260, 120);
constexpr double textMargin = 8;

} // namespace

LessonFrame::LessonFrame(const Context &context, const LessonPage &page, DocumentKind kind,
                         int number, QWidget *parent)
    : QFrame(parent), m_context(context), m_page(page), m_kind(kind)
{
    m_rows = new QVBoxLayout(this);
    m_rows->setContentsMargins({});
    auto *title = new QLabel(page.title.toString(), this);
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * titleScale);
    title->setFont(font);
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    m_rows->addWidget(title);
    auto *middle = new QHBoxLayout;
    m_rows->addLayout(middle, 1);
    middle->addWidget(new LessonPicture(context.paths.appFolder, page, this), 2);
    m_text = new QTextBrowser(this);
    m_text->setObjectName(u"TextLesson_%1"_s.arg(number));
    m_text->setAccessibleName(page.title.toString());
    m_text->setOpenLinks(false);
    m_text->setMinimumSize(leastText);
    m_text->document()->setDocumentMargin(textMargin);
    middle->addWidget(m_text, 3);
}

void LessonFrame::addWork(QWidget *work)
{
    m_rows->addWidget(work);
}

void LessonFrame::addWork(QLayout *work)
{
    m_rows->addLayout(work);
}

void LessonFrame::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    if (!std::exchange(m_isRead, true)) {
        readText();
    }
}

void LessonFrame::readText()
{
    const QString wanted =
        QDir::toNativeSeparators(QDir(m_context.paths.appFolder).filePath(m_page.text.toString()));
    const QString path = existingPath(wanted);
    if (path.isEmpty()) {
        m_text->setPlainText(u"I can't find the text of this page. It should be located here: "_s
                             + wanted);
        return;
    }
    m_text->setSource(QUrl::fromLocalFile(path));
    const auto &colours = m_context.settings.of<ColourSettings>();
    paintExamples(*m_text->document(), colourScheme(colours, m_kind), plainFormat(colours, m_kind),
                  documentBackground(colours, m_kind));
    m_text->moveCursor(QTextCursor::Start);
}

} // namespace zeph
