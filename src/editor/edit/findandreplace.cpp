// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/findandreplace.h"

#include "documents/document.h"
#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "documents/show_line.h"
#include "platform/core/text_search.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "text/search_rules.h"
#include "ui_findandreplace.h"

#include <QKeyEvent>
#include <QSignalBlocker>

namespace zeph {

namespace {

/// Adds the box's present text to its list; the text itself stays.
void remember(QComboBox &box)
{
    const QString text = box.currentText();
    if (text.isEmpty()) {
        return;
    }
    QStringList earlier;
    for (int i = 0; i < box.count(); ++i) {
        earlier.append(box.itemText(i));
    }
    const QSignalBlocker quiet(box);
    box.clear();
    box.addItems(withEarlier(earlier, text));
    box.setEditText(text);
}

void prepareBox(QComboBox &box, const QString &name)
{
    // The completer would search for an earlier text that begins alike instead of the typed one.
    box.setCompleter(nullptr);
    // The toolkit creates the inner field without a name.
    box.lineEdit()->setObjectName(box.objectName() + u"Edit"_s);
    box.lineEdit()->setAccessibleName(name);
}

QString quoted(const QString &word)
{
    return u'"' + word + u'"';
}

} // namespace

FindAndReplace::FindAndReplace(const Context &context, const Parts &parts, QWidget *parent)
    : QDialog(parent), m_context(context), m_parts(parts),
      m_ui(std::make_unique<Ui::FindAndReplace>())
{
    m_ui->setupUi(this);
    m_findPage = { .what = m_ui->ComboTextFind,
                   .matchCase = m_ui->MatchCaseF,
                   .wholeWord = m_ui->WholeWordF,
                   .joystick = m_ui->OptionJoystickF,
                   .macro = m_ui->OptionMacroF,
                   .find = m_ui->Command1,
                   .previous = m_ui->CommandPreviousF,
                   .hits = m_ui->LabelHitsF };
    m_replacePage = { .what = m_ui->ComboTextReplaceFind,
                      .matchCase = m_ui->MatchCaseR,
                      .wholeWord = m_ui->WholeWordR,
                      .joystick = m_ui->OptionJoystickR,
                      .macro = m_ui->OptionMacroR,
                      .find = m_ui->Command3,
                      .previous = m_ui->CommandPreviousR,
                      .hits = m_ui->LabelHitsR };
    prepareBox(*m_ui->ComboTextFind, u"Find what"_s);
    prepareBox(*m_ui->ComboTextReplaceFind, u"Find what"_s);
    prepareBox(*m_ui->ComboTextReplaceWith, u"Replace with"_s);
    connectPage(m_findPage);
    connectPage(m_replacePage);
    connectButtons();
    m_parts.view.watch(*this);
    m_parts.view.documents().forEach([this](Document &each) {
        connect(&each, &Document::edited, this, &FindAndReplace::clearCounts);
        connect(&each, &Document::replaced, this, &FindAndReplace::clearCounts);
    });
}

FindAndReplace::~FindAndReplace() = default;

void FindAndReplace::connectPage(Page &page)
{
    const auto changed = [this, &page] {
        startOver(page);
    };
    connect(page.what, &QComboBox::editTextChanged, this, changed);
    connect(page.matchCase, &QCheckBox::toggled, this, changed);
    connect(page.wholeWord, &QCheckBox::toggled, this, changed);
    connect(page.joystick, &QRadioButton::toggled, this, changed);
    connect(page.find, &QPushButton::clicked, this,
            guarded(m_context.dialogs, [this, &page](bool) { find(page); }));
    connect(page.previous, &QPushButton::clicked, this,
            guarded(m_context.dialogs, [this, &page](bool) { findPrevious(page); }));
}

void FindAndReplace::connectButtons()
{
    connect(m_ui->Command5, &QPushButton::clicked, this,
            guarded(m_context.dialogs, [this](bool) { ReplaceText(); }));
    connect(m_ui->Command6, &QPushButton::clicked, this,
            guarded(m_context.dialogs, [this](bool) { ReplaceAll(); }));
    connect(m_ui->Command7, &QPushButton::clicked, this,
            guarded(m_context.dialogs, [this](bool) { goToLine(); }));
    for (const QPushButton *cancel : { m_ui->Command2, m_ui->Command4, m_ui->Command8 }) {
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    }
    connect(m_ui->Command10, &QPushButton::clicked, this, [this] { Q_EMIT helpOn(u"find"_s); });
    connect(m_ui->SSTab1, &QTabWidget::currentChanged, this, [this](int tab) {
        showDefault(Tab(tab));
        markHits();
    });
    connect(m_ui->LineToFind, &QLineEdit::textChanged, m_ui->LabelLines, &QLabel::clear);
}

void FindAndReplace::showDefault(Tab tab)
{
    QPushButton *const buttons[] = { m_ui->Command1, m_ui->Command3, m_ui->Command7 };
    buttons[int(tab)]->setDefault(true);
}

void FindAndReplace::showTab(Tab tab)
{
    QWidget *const fields[] = { m_ui->ComboTextFind, m_ui->ComboTextReplaceFind, m_ui->LineToFind };
    m_ui->SSTab1->setCurrentIndex(int(tab));
    showDefault(tab);
    // The user may switch to the other page, so both are preset.
    preset(m_findPage);
    preset(m_replacePage);
    show();
    raise();
    activateWindow();
    fields[int(tab)]->setFocus();
    QLineEdit *const line = tab == Tab::GoToLine
        ? m_ui->LineToFind
        : static_cast<QComboBox *>(fields[int(tab)])->lineEdit();
    line->selectAll();
}

void FindAndReplace::preset(Page &page)
{
    const Document &document = m_parts.view.documents().selected();
    const bool isJoystick = document.kind() == DocumentKind::Joystick;
    (isJoystick ? page.joystick : page.macro)->setChecked(true);
    const QString selection = document.text().mid(document.selStart(), document.selLength());
    const QString present = page.what->currentText();
    if (selection.isEmpty()) {
        if (present.isEmpty()) {
            page.what->setEditText(LastFindText);
        }
    } else if (!isSought(selection, present, optionsOf(page))) {
        // A selection that is just the last hit, perhaps in other letter case, does not replace the
        // search text.
        page.what->setEditText(selection);
    }
}

void FindAndReplace::setFirst(Page &page, bool first)
{
    page.first = first;
    page.find->setText(first ? u"Find first"_s : u"Find next"_s);
}

void FindAndReplace::startOver(Page &page)
{
    setFirst(page, true);
    if (&page == &m_replacePage) {
        enableReplacing(false);
    }
    page.hits->clear();
    markHits();
}

void FindAndReplace::clearCounts()
{
    // Counted again by the next search, not at every key.
    m_findPage.hits->clear();
    m_replacePage.hits->clear();
}

FindAndReplace::Page *FindAndReplace::shownPage()
{
    Page *const pages[] = { &m_findPage, &m_replacePage, nullptr };
    return pages[m_ui->SSTab1->currentIndex()];
}

void FindAndReplace::markHits()
{
    const Page *page = isVisible() ? shownPage() : nullptr;
    m_parts.view.documents().forEach([this, page](const Document &each) {
        const bool isSearched = page && &documentOf(*page) == &each;
        m_parts.view.markWord(each.kind(), isSearched ? page->what->currentText() : QString(),
                              page ? optionsOf(*page) : SearchPlain);
    });
}

void FindAndReplace::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    markHits();
}

void FindAndReplace::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    markHits();
}

bool FindAndReplace::isOnLastHit(DocumentKind kind) const
{
    const Document &document = m_parts.view.documents().of(kind);
    return m_hit.page && m_hit.kind == kind && document.selStart() == m_hit.start
        && document.selLength() == m_hit.length
        && isSought(document.richText(m_hit.start, m_hit.length).text, LastFindText, SearchOptions);
}

bool FindAndReplace::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !isVisible() || isMinimized()) {
        return QDialog::eventFilter(watched, event);
    }
    const auto *key = static_cast<QKeyEvent *>(event);
    const auto held = key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const auto kind = m_parts.view.kindOf(watched);
    // A hit has the focus in the text: Enter pressed once more would put a line end in its place.
    if (!kind || !isEnter || held != Qt::NoModifier || !isOnLastHit(*kind)) {
        return QDialog::eventFilter(watched, event);
    }
    const bool isBackwards = key->modifiers().testFlag(Qt::ShiftModifier);
    guarded(m_context.dialogs, [this, isBackwards] {
        if (isBackwards) {
            findPrevious(*m_hit.page);
        } else {
            find(*m_hit.page);
        }
    })();
    return true;
}

void FindAndReplace::enableReplacing(bool on)
{
    m_ui->Command5->setEnabled(on);
    m_ui->Command6->setEnabled(on);
}

int FindAndReplace::optionsOf(const Page &page) const
{
    return (page.wholeWord->isChecked() ? SearchWholeWord : SearchPlain)
        + (page.matchCase->isChecked() ? SearchMatchCase : SearchPlain);
}

Document &FindAndReplace::documentOf(const Page &page) const
{
    return m_parts.view.documents().of(page.joystick->isChecked() ? DocumentKind::Joystick
                                                                  : DocumentKind::Macro);
}

bool FindAndReplace::refuses(const Document &document)
{
    if (document.kind() != DocumentKind::Macro || !m_parts.view.documents().isProtected()) {
        return m_parts.view.documents().refuseSent(document.kind());
    }
    m_context.dialogs.box(fileProtectedBox());
    return true;
}

bool FindAndReplace::tellNothingToSearch(const QString &word, const Document &document)
{
    if (word.isEmpty()) {
        m_context.dialogs.tell(u"Please enter text to search"_s,
                               u"You haven't specified the text to search for"_s);
        return true;
    }
    if (document.length() == 0) {
        const bool isJoystick = document.kind() == DocumentKind::Joystick;
        m_context.dialogs.tell(isJoystick ? u"No text in joystick file"_s
                                          : u"No text in macro file"_s,
                               document.name() + u" has no text to highlight."_s);
        return true;
    }
    return false;
}

void FindAndReplace::find(Page &page)
{
    Document &document = documentOf(page);
    const QString word = page.what->currentText();
    remember(*page.what);
    if (tellNothingToSearch(word, document)) {
        return;
    }
    SearchOptions = qint16(optionsOf(page));
    LastFindText = word;
    const qsizetype caret = document.cursor().position();
    const SearchResult result = search(document.text(), { word, SearchOptions, page.first, caret });
    if (result.verdict != SearchVerdict::Hit) {
        tellNoHit(page, word, document);
        return;
    }
    showHit(page, document, int(result.start), int(word.size()));
}

void FindAndReplace::findPrevious(Page &page)
{
    Document &document = documentOf(page);
    const QString word = page.what->currentText();
    remember(*page.what);
    if (tellNothingToSearch(word, document)) {
        return;
    }
    SearchOptions = qint16(optionsOf(page));
    LastFindText = word;
    const std::vector<qsizetype> hits = allHits(document.text(), word, SearchOptions);
    if (hits.empty()) {
        setFirst(page, true);
        tellNoHit(page, word, document);
        return;
    }
    showHit(page, document, int(hitBefore(hits, document.selStart())), int(word.size()));
}

void FindAndReplace::tellNoHit(Page &page, const QString &word, const Document &document)
{
    if (page.first) {
        m_context.dialogs.tell(u"Text not found"_s,
                               quoted(word) + u" not found in "_s + document.name());
        return;
    }
    setFirst(page, true);
    m_context.dialogs.tell(u"You found 'em all!"_s,
                           u"No further instances of "_s + quoted(word) + u" found in "_s
                               + document.name());
}

void FindAndReplace::showHit(Page &page, Document &document, int start, int length)
{
    setFirst(page, false);
    if (&page == &m_replacePage) {
        enableReplacing(true);
    }
    m_parts.view.documents().select(document.kind());
    const bool isSeen = m_parts.view.shows(document.kind(), start);
    document.select(start, length);
    if (!isSeen) {
        // At the edge of the view nothing would be seen of what surrounds the hit.
        m_parts.view.centreCaret(document.kind());
    }
    m_hit = { &page, document.kind(), start, length };
    page.hits->setText(hitCount(allHits(document.text(), LastFindText, SearchOptions), start));
    m_context.status.setLine(document.caretLine());
    returnToTexts();
}

void FindAndReplace::returnToTexts()
{
    m_parts.view.window()->activateWindow();
    m_parts.view.ResetFocusToEditor();
}

void FindAndReplace::ReplaceText()
{
    Document &document = documentOf(m_replacePage);
    if (refuses(document)) {
        return;
    }
    const QString replacement = m_ui->ComboTextReplaceWith->currentText();
    remember(*m_ui->ComboTextReplaceWith);
    if (document.selLength() > 0) {
        const int start = document.selStart();
        Change change(document);
        document.replace(start, document.selLength(), replacement);
        document.select(start + int(replacement.size()), 0);
        change.commit();
    }
    find(m_replacePage);
}

void FindAndReplace::ReplaceAll()
{
    Document &document = documentOf(m_replacePage);
    const QString word = m_replacePage.what->currentText();
    const QString replacement = m_ui->ComboTextReplaceWith->currentText();
    remember(*m_replacePage.what);
    remember(*m_ui->ComboTextReplaceWith);
    if (refuses(document) || tellNothingToSearch(word, document)) {
        return;
    }
    SearchOptions = qint16(optionsOf(m_replacePage));
    LastFindText = word;
    const std::vector<qsizetype> hits =
        hitsToReplace(document.text(), word, replacement, SearchOptions);
    if (!hits.empty()) {
        Change change(document);
        document.replaceAll(hits, word.size(), replacement);
        const qsizetype growth = replacement.size() - word.size();
        const qsizetype afterLast =
            hits.back() + growth * qsizetype(hits.size() - 1) + replacement.size();
        document.select(int(afterLast), 0);
        change.commit();
    }
    setFirst(m_replacePage, true);
    m_context.dialogs.tell(u"Replaced 'em all for you. Now buy me a drink"_s,
                           QString::number(hits.size()) + u" replacements were made in "_s
                               + document.name());
}

void FindAndReplace::goToLine()
{
    Document &document = m_parts.view.documents().selected();
    const int line = plainLineNumber(m_ui->LineToFind->text()).value_or(0);
    if (line < 1 || line > document.content().blockCount()) {
        tellLines(document);
        return;
    }
    if (showLine(m_context, m_parts.view, document, line, LineCaret::AtStart)) {
        returnToTexts();
    }
}

void FindAndReplace::tellLines(const Document &document)
{
    const int last = document.content().blockCount();
    m_ui->LabelLines->setText(last == 1 ? document.name() + u" has line 1 only."_s
                                        : document.name() + u" has lines 1 to "_s
                                      + QString::number(last) + u'.');
    m_ui->LineToFind->setFocus();
    m_ui->LineToFind->selectAll();
}

} // namespace zeph
