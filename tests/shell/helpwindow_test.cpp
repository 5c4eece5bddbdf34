// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/helpwindow.h"

#include "tests/support/shell_world.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

using namespace zeph;

namespace {

struct Help : test::ShellWorld {
    Help()
    {
        folder.write(u"Help/contents.html"_s,
                     "<h1>Contents</h1><a href='b.html#two'>B</a><a href='http://x.org/'>X</a>");
        folder.write(u"Help/b.html"_s, "<p>Buttons</p><p id='two'>Second flap and flap</p>");
        folder.write(u"Help/topics.txt"_s, "10\tcontents.html\tContents\n100\tb.html\tB page\n");
        folder.write(u"Help/index.txt"_s, "BTN\tb.html#two\nGone\tgone.html\n");
        window = std::make_unique<HelpWindow>(paths, dialogs, launcher);
    }

    std::unique_ptr<HelpWindow> window;

    QTextBrowser &browser() const { return *window->findChild<QTextBrowser *>(u"Browser"_s); }
    QString page() const { return browser().source().fileName(); }
    template <class T> T *control(const QString &name) const
    {
        return window->findChild<T *>(name);
    }
};

} // namespace

TEST_F(Help, OpensAtItsContents)
{
    EXPECT_TRUE(window->showContents());
    EXPECT_EQ(page(), u"contents.html");
    EXPECT_EQ(control<QListWidget>(u"lstTopics"_s)->currentRow(), 0);
}

TEST_F(Help, ShowsATopicByItsNumber)
{
    EXPECT_TRUE(window->showTopic(100));
    EXPECT_EQ(page(), u"b.html");
    EXPECT_EQ(control<QListWidget>(u"lstTopics"_s)->currentItem()->text(), u"B page");
}

TEST_F(Help, ShowsAKeywordsPlace)
{
    EXPECT_TRUE(window->showKeyword(u"btn"_s));
    EXPECT_EQ(page(), u"b.html");
    EXPECT_EQ(browser().source().fragment(), u"two");
}

TEST_F(Help, AMissIsTold)
{
    dialogs.answer(u"Keyword Not Found"_s, BoxButton::Ok);
    EXPECT_FALSE(window->showKeyword(u"Banana"_s));
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text, u"No such keyword found");
    EXPECT_EQ(page(), QString());
}

TEST_F(Help, AMissingPageOrTopicIsTold)
{
    dialogs.answer(u"Missing file"_s, BoxButton::Ok);
    EXPECT_FALSE(window->showKeyword(u"gone"_s));
    EXPECT_TRUE(dialogs.boxes()[0].text.endsWith(folder.file(u"Help/gone.html"_s)));
    dialogs.answer(u"Topic not found"_s, BoxButton::Ok);
    EXPECT_FALSE(window->showTopic(7));
}

TEST_F(Help, GoesBackAndForward)
{
    window->showContents();
    window->showTopic(100);
    control<QToolButton>(u"cmdBack"_s)->click();
    EXPECT_EQ(page(), u"contents.html");
    control<QToolButton>(u"cmdForward"_s)->click();
    EXPECT_EQ(page(), u"b.html");
}

TEST_F(Help, FollowsLinksWithinAndHandsOthersToTheDesktop)
{
    window->showContents();
    Q_EMIT browser().anchorClicked(QUrl(u"b.html#two"_s));
    EXPECT_EQ(page(), u"b.html");
    Q_EMIT browser().anchorClicked(QUrl(u"http://x.org/"_s));
    EXPECT_EQ(page(), u"b.html");
    EXPECT_EQ(launcher.opened, QStringList{ u"http://x.org/"_s });
}

TEST_F(Help, FiltersTheIndexAndReturnOpensTheOnlyOneLeft)
{
    auto *filter = control<QLineEdit>(u"txtKeyword"_s);
    auto *list = control<QListWidget>(u"lstKeywords"_s);
    EXPECT_EQ(list->count(), 2);
    filter->setText(u"bt"_s);
    ASSERT_EQ(list->count(), 1);
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_EQ(page(), u"b.html");
}

TEST_F(Help, FindsInThePageAndGoesRound)
{
    window->showTopic(100);
    auto *find = control<QLineEdit>(u"txtFind"_s);
    find->setText(u"flap"_s);
    QTest::keyClick(find, Qt::Key_Return);
    const int first = browser().textCursor().selectionStart();
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_GT(browser().textCursor().selectionStart(), first);
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(browser().textCursor().selectionStart(), first);
}

TEST_F(Help, FindsOnInAllOtherPagesAndComesRound)
{
    window->showContents();
    auto *find = control<QLineEdit>(u"txtFind"_s);
    find->setText(u"FLAP"_s);
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(page(), u"b.html");
    EXPECT_EQ(browser().textCursor().selectedText(), u"flap");
    find->setText(u"contents"_s);
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(page(), u"contents.html");
    find->setText(u"nowhere to be found"_s);
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(page(), u"contents.html");
}

TEST_F(Help, ClimbsOutOfItsFolderForNobody)
{
    folder.write(u"secret.html"_s, "<p>no page of the help</p>");
    EXPECT_FALSE(window->showPage(folder.file(u"secret.html"_s)));
    EXPECT_TRUE(window->showPage(folder.file(u"Help/b.html"_s)));
}

TEST(HelpOfTheProgram, HasAPageForEachTopicAndEachKeyword)
{
    const QString folder = QStringLiteral(ZEPH_SOURCE_DIR "/data/Help/");
    const auto read = [&](const QString &name) {
        QFile file(folder + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return QString::fromUtf8(file.readAll());
    };
    const HelpSet set(read(u"topics.txt"_s), read(u"index.txt"_s));
    EXPECT_TRUE(set.topic(100));
    EXPECT_GT(set.keywords().size(), 50);
    for (const HelpTopic &topic : set.topics()) {
        EXPECT_TRUE(QFile::exists(folder + topic.file)) << topic.file.toStdString();
    }
    for (const HelpKeyword &keyword : set.keywords()) {
        const QString file = keyword.target.section(u'#', 0, 0);
        EXPECT_TRUE(QFile::exists(folder + file)) << keyword.word.toStdString();
    }
}
