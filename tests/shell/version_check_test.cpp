// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/version_check.h"

#include "platform/downloader.h"
#include "platform/package.h"
#include "tests/support/shell_world.h"

#include <QTcpServer>
#include <QTcpSocket>

using namespace zeph;

namespace {

/// A web server on this machine that holds one text file.
class TextServer : public QTcpServer
{
public:
    explicit TextServer(QByteArray body, QByteArray status = "200 OK")
    {
        EXPECT_TRUE(listen(QHostAddress::LocalHost));
        connect(this, &QTcpServer::newConnection, this,
                [this, body = std::move(body), status = std::move(status)] {
                    QTcpSocket *socket = nextPendingConnection();
                    connect(socket, &QTcpSocket::readyRead, socket, [socket, body, status] {
                        socket->write("HTTP/1.1 " + status
                                      + "\r\nContent-Length: " + QByteArray::number(body.size())
                                      + "\r\nConnection: close\r\n\r\n" + body);
                        socket->disconnectFromHost();
                    });
                });
    }

    QString address() const { return u"http://127.0.0.1:%1/version.txt"_s.arg(serverPort()); }
};

struct VersionCheck : test::ShellWorld {
    Box tell(const QString &address, const Package &package = {})
    {
        HttpDownloader http;
        ScriptedDialogs seen;
        for (const auto *title : { u"Version information", u"Newer software is available",
                                   u"Unable to retrieve version information" }) {
            seen.answer(QString::fromUtf16(title), BoxButton::Ok);
        }
        checkVersion(http, { paths, settings, status, seen, launcher, clock, keyboard }, address,
                     package);
        return seen.boxes().value(0);
    }
};

const QString unableTitle = u"Unable to retrieve version information"_s;
const QString unableText = u"I couldn't connect to ZephSite to find out if you're running the "
                           "latest software. Please try again later."_s;

} // namespace

TEST_F(VersionCheck, TellsTheLatestVersion)
{
    const TextServer server("4.4.02");
    const Box box = tell(server.address());
    EXPECT_EQ(box.title, u"Version information");
    EXPECT_EQ(box.text, u"You are running the latest version of Zeph, version 4.4.02.");
    EXPECT_EQ(folder.read(u"VersionURL.txt"_s), "4.4.02");
}

TEST_F(VersionCheck, TellsANewerVersion)
{
    const TextServer server("4.5");
    const Box box = tell(server.address());
    EXPECT_EQ(box.title, u"Newer software is available");
    EXPECT_EQ(box.text,
              u"There is a newer version (version 4.5) of Zeph available to download.\n"
              "Please visit Klaifi (links are in the Help menu) to download it.");
}

TEST_F(VersionCheck, OfANewerVersionItNamesTheFileToFetchAsThisCopyWasInstalled)
{
    const TextServer server("4.5\r\n");
    EXPECT_EQ(tell(server.address(), { u"zeph_<version>_amd64.deb"_s }).text,
              u"There is a newer version (version 4.5) of Zeph available to download.\n"
              "Please visit Klaifi (links are in the Help menu) to download it.\n"
              "The file for you is zeph_4.5_amd64.deb.");
}

TEST_F(VersionCheck, TheLatestVersionNamesNoFile)
{
    const TextServer server("4.4.02");
    EXPECT_EQ(tell(server.address(), { u"zeph_<version>_amd64.deb"_s }).text,
              u"You are running the latest version of Zeph, version 4.4.02.");
}

TEST_F(VersionCheck, BlanksAndLineEndsAroundTheVersionDoNotCount)
{
    const TextServer server(" 4.4.02 \r\n");
    EXPECT_EQ(tell(server.address()).title, u"Version information");
}

TEST_F(VersionCheck, NothingOrAPageIsNoVersion)
{
    for (const QByteArray &answer :
         { QByteArray(), QByteArray("\r\n"), QByteArray("<html><body>404</body></html>"),
           QByteArray("4.4.02 <b>"), QByteArray("Sign in to this network") }) {
        const TextServer server(answer);
        const Box box = tell(server.address());
        EXPECT_EQ(box.title, unableTitle) << answer.constData();
        EXPECT_EQ(box.text, u"ZephSite answered, but not with a version. Please try again later.");
    }
}

TEST_F(VersionCheck, TheStatusLineSaysThatItRuns)
{
    QStringList told;
    QObject::connect(&status, &StatusLine::textChanged, &status,
                     [&told](const QString &text) { told.append(text); });
    const TextServer server("4.4.02");
    tell(server.address());
    EXPECT_EQ(told, (QStringList{ u" Asking ZephSite for the latest version ..."_s, u" Ready"_s }));
}

TEST_F(VersionCheck, AServerThatAnswersWithAnErrorIsOneThatCannotBeReached)
{
    const TextServer server("4.4.02", "404 Not Found");
    const Box box = tell(server.address());
    EXPECT_EQ(box.title, unableTitle);
    EXPECT_EQ(box.text, unableText);
}

TEST_F(VersionCheck, NobodyListeningIsTold)
{
    QString address;
    {
        const TextServer gone("x");
        address = gone.address();
    }
    EXPECT_EQ(tell(address).title, unableTitle);
}

TEST_F(VersionCheck, AnEmptyAddressBehavesLikeAServerThatCannotBeReached)
{
    EXPECT_EQ(tell({}).text, unableText);
}

TEST_F(VersionCheck, AFolderThatCannotHoldTheAnswerIsAFailureToo)
{
    downloader.answer = QByteArray("4.4.02");
    paths.appFolder = folder.file(u"missing/folder"_s);
    dialogs.answer(unableTitle, BoxButton::Ok);
    checkVersion(downloader, context(), u"http://server/"_s, {});
    EXPECT_EQ(boxTitles(), QStringList{ unableTitle });
}
