// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/statementpreview.h"

#include "composer/statement_inserter.h"
#include "documents/editor_texts.h"
#include "platform/colours.h"
#include "platform/richtext/rich_text_box.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "ui_statementpreview.h"

#include <chrono>

namespace zeph {

using namespace std::chrono_literals;

namespace {

/// Long enough that typing does not wait for the check of a long file.
constexpr auto pause = 150ms;
constexpr int linesShown = 3;
/// The room for them is always there, so that the window does not jump.
constexpr int mostFindings = 2;

QString selectedOf(const QTextCursor &cursor)
{
    return cursor.selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

void setGround(RichTextBox &box, ColorRef colour)
{
    QPalette palette;
    palette.setColor(QPalette::Base, toColor(colour));
    box.setPalette(palette);
}

/// They would only scroll what is to be seen.
RichText withoutLineEndsAfter(const RichText &text)
{
    qsizetype end = text.text.size();
    while (end > 0 && text.text[end - 1] == u'\n') {
        --end;
    }
    return text.mid(0, end);
}

QString inWords(const QStringList &findings)
{
    QStringList shown = findings.first(std::min<qsizetype>(findings.size(), mostFindings));
    if (const qsizetype more = findings.size() - shown.size(); more > 0) {
        shown.last() += u" (and %1 more)"_s.arg(more);
    }
    return shown.join(u'\n');
}

} // namespace

StatementPreview::StatementPreview(const ComposerParts &parts, QWidget *parent)
    : QWidget(parent), m_parts(parts), m_ui(std::make_unique<Ui::StatementPreview>())
{
    m_ui->setupUi(this);
    m_ui->PreviewText->setFixedHeight(
        m_ui->PreviewText->fontMetrics().lineSpacing() * linesShown
        + 2
            * (m_ui->PreviewText->frameWidth()
               + int(m_ui->PreviewText->document()->documentMargin())));
    m_ui->LabelFindings->setMinimumHeight(m_ui->LabelFindings->fontMetrics().lineSpacing()
                                          * mostFindings);
    m_soon.setSingleShot(true);
    m_soon.setInterval(pause);
    connect(&m_soon, &QTimer::timeout, this,
            guarded(parts.context.dialogs, [this](auto &&...) { refreshNow(); }));
    connect(m_ui->CMD_ReadStatement, &QPushButton::clicked, this, &StatementPreview::readWanted);
    connect(m_ui->CMD_ReplaceStatement, &QPushButton::clicked, this,
            guarded(parts.context.dialogs, [this](bool) { CMD_ReplaceStatement_Click(); }));
    parts.documents.forEach([this](Document &each) {
        connect(&each, &Document::edited, this, &StatementPreview::refreshSoon);
        connect(&each, &Document::replaced, this, &StatementPreview::refreshSoon);
        connect(&each, &Document::caretMoved, this, &StatementPreview::refreshSoon);
    });
    connect(&parts.documents, &Documents::selectedChanged, this, &StatementPreview::refreshSoon);
}

StatementPreview::~StatementPreview() = default;

void StatementPreview::setPage(ComposerPage *page)
{
    if (m_page) {
        m_page->disconnect(this);
    }
    m_page = page;
    if (page) {
        connect(page, &ComposerPage::changed, this, &StatementPreview::refreshSoon);
    }
    refreshSoon();
}

void StatementPreview::setRead(const ReadStatement &read)
{
    m_read = QTextCursor(&m_parts.documents.joystick().content());
    m_read.setPosition(read.start);
    m_read.setPosition(read.start + read.length, QTextCursor::KeepAnchor);
    m_readText = selectedOf(m_read);
    m_readPage = m_page;
    m_readHasComments = read.hasComments;
    refreshNow();
}

bool StatementPreview::holdsRead() const
{
    return m_page == m_readPage && m_read.hasSelection() && selectedOf(m_read) == m_readText;
}

void StatementPreview::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refreshSoon();
}

void StatementPreview::refreshSoon()
{
    if (isVisible()) {
        m_soon.start();
    }
}

void StatementPreview::refreshNow()
{
    m_soon.stop();
    const auto current = m_page ? m_page->current() : std::nullopt;
    m_ui->CMD_ReplaceStatement->setEnabled(current && *current && !m_page->isPiece()
                                           && holdsRead());
    if (!current) {
        showNothing(QString());
    } else if (!*current) {
        showNothing(current->error().text);
    } else {
        showStatement(**current);
    }
}

void StatementPreview::showNothing(const QString &why)
{
    m_ui->PreviewText->clear();
    setGround(
        *m_ui->PreviewText,
        documentBackground(m_parts.context.settings.of<ColourSettings>(), DocumentKind::Joystick));
    m_ui->LabelFindings->clear();
    m_ui->LabelLanding->setText(why.isEmpty() ? u"The caret is in line %1 of %2"_s
                                                    .arg(m_parts.documents.selected().caretLine())
                                                    .arg(m_parts.documents.selected().caption())
                                              : why);
}

void StatementPreview::showStatement(const Statement &statement)
{
    const auto &colours = m_parts.context.settings.of<ColourSettings>();
    const bool isPiece = m_page->isPiece();
    Documents &documents = m_parts.documents;
    Document &into = isPiece ? documents.selected() : documents.joystick();
    const DocumentKind kind = into.kind();
    const RichText shown = withoutLineEndsAfter(
        richTextOf(statement, colourScheme(colours, kind), plainFormat(colours, kind)));
    setGround(*m_ui->PreviewText, documentBackground(colours, kind));
    if (m_ui->PreviewText->richText() != shown) {
        m_ui->PreviewText->setRichText(shown);
    }
    const StatementInserter &inserter = m_parts.inserter;
    const Landing landing =
        landingOf(into.text(), into.selStart(), into.selLength(),
                  isPiece ? inserter.pieceNow(statement) : inserter.composedNow(statement));
    m_ui->LabelLanding->setText(u"Goes into line %1 of %2"_s.arg(landing.line).arg(into.caption()));
    const bool isJoystick = kind == DocumentKind::Joystick;
    m_ui->LabelFindings->setText(isJoystick ? inWords(findingsOf(landing, documents.macro().text()))
                                            : QString());
}

void StatementPreview::CMD_ReplaceStatement_Click()
{
    const auto current = m_page ? m_page->current() : std::nullopt;
    if (!current || !holdsRead()) {
        return;
    }
    if (m_readHasComments
        && !m_parts.context.dialogs.ask(
            u"There are comments in it"_s,
            u"The statement in the file has comments between its lines, which would go with it. "
            "Shall I replace it all the same?"_s)) {
        return;
    }
    const int start = m_read.selectionStart();
    const auto length = m_parts.inserter.replace(start, int(m_readText.size()), *current);
    if (length) {
        setRead({ start, *length, {}, false });
    }
}

} // namespace zeph
