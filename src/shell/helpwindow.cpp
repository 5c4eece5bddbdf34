// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/helpwindow.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/dialogs.h"
#include "platform/process_launcher.h"
#include "ui_helpwindow.h"

#include <QTextDocumentFragment>
#include <QUrl>

#include <algorithm>

namespace zeph {

namespace {

constexpr int listsWidth = 220;
constexpr int pageWidth = 560;

QString textOf(const QString &path)
{
    const auto bytes = readWholeFile(existingPath(path));
    return bytes ? QString::fromUtf8(*bytes) : QString();
}

} // namespace

HelpWindow::HelpWindow(const Paths &paths, Dialogs &dialogs, ProcessLauncher &launcher,
                       QWidget *parent)
    : QDialog(parent, Qt::Window), m_paths(paths), m_dialogs(dialogs), m_launcher(launcher),
      m_ui(std::make_unique<Ui::HelpWindow>())
{
    m_set = HelpSet(textOf(folder() + u"topics.txt"_s), textOf(folder() + u"index.txt"_s));
    m_ui->setupUi(this);
    m_ui->splitter->setSizes({ listsWidth, pageWidth });
    m_ui->splitter->setStretchFactor(1, 1);
    fillContents();
    fillIndex();
    connect(m_ui->cmdBack, &QToolButton::clicked, m_ui->Browser, &QTextBrowser::backward);
    connect(m_ui->cmdForward, &QToolButton::clicked, m_ui->Browser, &QTextBrowser::forward);
    connect(m_ui->cmdContents, &QToolButton::clicked, this, &HelpWindow::showContents);
    connect(m_ui->Browser, &QTextBrowser::backwardAvailable, m_ui->cmdBack,
            &QToolButton::setEnabled);
    connect(m_ui->Browser, &QTextBrowser::forwardAvailable, m_ui->cmdForward,
            &QToolButton::setEnabled);
    connect(m_ui->Browser, &QTextBrowser::anchorClicked, this, &HelpWindow::openLink);
    connect(m_ui->Browser, &QTextBrowser::sourceChanged, this, &HelpWindow::markTopic);
    connect(m_ui->txtFind, &QLineEdit::returnPressed, this, &HelpWindow::findNext);
    connect(m_ui->cmdFind, &QToolButton::clicked, this, &HelpWindow::findNext);
}

HelpWindow::~HelpWindow() = default;

bool HelpWindow::showContents()
{
    return showTarget(u"contents.html"_s);
}

bool HelpWindow::showTopic(int number)
{
    const auto topic = m_set.topic(number);
    if (!topic) {
        m_dialogs.tell(u"Topic not found"_s,
                       u"The help has no topic with the number "_s + QString::number(number) + u'.',
                       BoxIcon::Exclamation);
        return false;
    }
    return showTarget(topic->file);
}

bool HelpWindow::showKeyword(const QString &word)
{
    const auto target = m_set.target(word);
    if (!target) {
        m_dialogs.tell(u"Keyword Not Found"_s, u"No such keyword found"_s, BoxIcon::Exclamation);
        return false;
    }
    return showTarget(*target);
}

bool HelpWindow::showPage(const QString &path)
{
    return path == existingPath(folder() + nameOf(path)) && showTarget(nameOf(path));
}

bool HelpWindow::showTarget(const QString &target)
{
    const QString file = target.section(u'#', 0, 0);
    const QString path = existingPath(folder() + file);
    if (path.isEmpty()) {
        m_dialogs.tell(u"Missing file"_s,
                       u"I can't find that page of my help. It should be located here: "_s
                           + folder() + file,
                       BoxIcon::Exclamation);
        return false;
    }
    QUrl url = QUrl::fromLocalFile(path);
    url.setFragment(target.section(u'#', 1));
    m_ui->Browser->setSource(url);
    return true;
}

void HelpWindow::openLink(const QUrl &link)
{
    const QUrl url = m_ui->Browser->source().resolved(link);
    if (!url.isLocalFile()) {
        if (const auto opened = m_launcher.openWithDesktop(url.toString()); !opened) {
            m_dialogs.tell(u"Can't open link"_s, opened.error(), BoxIcon::Exclamation);
        }
        return;
    }
    const QString fragment = url.hasFragment() ? u'#' + url.fragment() : QString();
    showTarget(nameOf(url.toLocalFile()) + fragment);
}

void HelpWindow::fillContents()
{
    for (const HelpTopic &topic : m_set.topics()) {
        auto *item = new QListWidgetItem(topic.title, m_ui->lstTopics);
        item->setData(Qt::UserRole, topic.file);
    }
    const auto open = [this](const QListWidgetItem *item) {
        showTarget(item->data(Qt::UserRole).toString());
    };
    connect(m_ui->lstTopics, &QListWidget::itemClicked, this, open);
    connect(m_ui->lstTopics, &QListWidget::itemActivated, this, open);
}

void HelpWindow::fillIndex()
{
    const auto fill = [this](const QString &part) {
        m_ui->lstKeywords->clear();
        m_ui->lstKeywords->addItems(m_set.wordsWith(part));
    };
    fill({});
    connect(m_ui->txtKeyword, &QLineEdit::textChanged, this, fill);
    connect(m_ui->txtKeyword, &QLineEdit::returnPressed, this, [this] {
        const QListWidget &list = *m_ui->lstKeywords;
        showKeyword(list.count() == 1 ? list.item(0)->text() : m_ui->txtKeyword->text());
    });
    const auto open = [this](const QListWidgetItem *item) {
        showKeyword(item->text());
    };
    connect(m_ui->lstKeywords, &QListWidget::itemClicked, this, open);
    connect(m_ui->lstKeywords, &QListWidget::itemActivated, this, open);
}

void HelpWindow::markTopic(const QUrl &source)
{
    const QString file = nameOf(source.toLocalFile());
    m_ui->lstTopics->setCurrentRow(-1);
    for (int i = 0; i < m_ui->lstTopics->count(); ++i) {
        const QString own = m_ui->lstTopics->item(i)->data(Qt::UserRole).toString();
        if (own.compare(file, Qt::CaseInsensitive) == 0) {
            m_ui->lstTopics->setCurrentRow(i);
            return;
        }
    }
}

QStringList HelpWindow::pagesAfterThis() const
{
    QStringList pages;
    for (const HelpTopic &topic : m_set.topics()) {
        pages.append(topic.file.section(u'#', 0, 0));
    }
    pages.removeDuplicates();
    const QString now = nameOf(m_ui->Browser->source().toLocalFile());
    const auto isNow = [&now](const QString &page) {
        return page.compare(now, Qt::CaseInsensitive) == 0;
    };
    const qsizetype at = std::ranges::find_if(pages, isNow) - pages.begin();
    // The present page comes last, and does so too when no topic has it.
    return at == pages.size() ? pages + QStringList{ now }
                              : pages.mid(at + 1) + pages.first(at + 1);
}

void HelpWindow::findNext()
{
    const QString word = m_ui->txtFind->text();
    if (word.isEmpty() || m_ui->Browser->find(word)) {
        return;
    }
    const QString present = nameOf(m_ui->Browser->source().toLocalFile());
    for (const QString &page : pagesAfterThis()) {
        const QString text = QTextDocumentFragment::fromHtml(textOf(folder() + page)).toPlainText();
        if (!text.contains(word, Qt::CaseInsensitive)) {
            continue;
        }
        if (page.compare(present, Qt::CaseInsensitive) != 0) {
            showTarget(page);
        }
        m_ui->Browser->moveCursor(QTextCursor::Start);
        m_ui->Browser->find(word);
        return;
    }
}

QString HelpWindow::folder() const
{
    return withClosingSeparator(m_paths.inApp(u"Help"));
}

} // namespace zeph
