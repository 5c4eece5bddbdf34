// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/downloader.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>

using namespace zeph;

namespace {

constexpr int patienceMs = 10000;

/// A server of one page, on this computer only. Without an answer it takes the question and stays
/// silent.
class Server
{
public:
    explicit Server(QByteArray answer) : m_answer(std::move(answer))
    {
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            QTcpSocket *socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                m_question += socket->readAll();
                if (m_question.endsWith("\r\n\r\n") && !m_answer.isEmpty()) {
                    socket->write(m_answer);
                    socket->disconnectFromHost();
                }
            });
        });
    }

    QString address() const
    {
        return u"http://127.0.0.1:%1/VersionURL.txt"_s.arg(m_server.serverPort());
    }
    const QByteArray &question() const { return m_question; }

private:
    QTcpServer m_server;
    QByteArray m_answer;
    QByteArray m_question;
};

QByteArray page(const QByteArray &status, const QByteArray &body)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
        + "\r\nConnection: close\r\n\r\n" + body;
}

} // namespace

TEST(HttpDownloader, GivesTheBody)
{
    const Server server(page("200 OK", "4.4.02"));
    EXPECT_EQ(HttpDownloader().fetch(server.address(), patienceMs).value_or("failed"), "4.4.02");
}

TEST(HttpDownloader, AsksPastEveryCache)
{
    const Server server(page("200 OK", "x"));
    ASSERT_TRUE(HttpDownloader().fetch(server.address(), patienceMs));
    EXPECT_TRUE(server.question().toLower().contains("cache-control: no-cache"));
}

TEST(HttpDownloader, AMissingPageIsAFailure)
{
    const Server server(page("404 Not Found", "no"));
    const auto fetched = HttpDownloader().fetch(server.address(), patienceMs);
    ASSERT_FALSE(fetched);
    EXPECT_FALSE(fetched.error().isEmpty());
}

TEST(HttpDownloader, ASilentServerIsGivenUpAfterTheTime)
{
    const Server server({});
    QElapsedTimer timer;
    timer.start();
    const auto fetched = HttpDownloader().fetch(server.address(), 100);
    ASSERT_FALSE(fetched);
    EXPECT_FALSE(fetched.error().isEmpty());
    EXPECT_GE(timer.elapsed(), 90);
    EXPECT_LT(timer.elapsed(), patienceMs);
}

TEST(HttpDownloader, AnAnswerThatIsTooLargeIsGivenUp)
{
    const Server server(page("200 OK", QByteArray(3 << 20, 'x')));
    EXPECT_FALSE(HttpDownloader().fetch(server.address(), patienceMs));
}

TEST(HttpDownloader, NoServerAndNoAddressAreFailures)
{
    quint16 port = 0;
    {
        QTcpServer closed;
        ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
        port = closed.serverPort();
    }
    const auto fetched = HttpDownloader().fetch(u"http://127.0.0.1:%1/"_s.arg(port), patienceMs);
    ASSERT_FALSE(fetched);
    EXPECT_FALSE(fetched.error().isEmpty());
    EXPECT_FALSE(HttpDownloader().fetch(QString(), patienceMs));
    EXPECT_FALSE(HttpDownloader().fetch(u"  "_s, patienceMs));
    EXPECT_FALSE(HttpDownloader().fetch(u"what is this"_s, patienceMs));
}
