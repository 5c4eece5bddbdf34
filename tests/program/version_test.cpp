// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The question for a newer version, with a server of the test's own.

#include "platform/core/base.h"
#include "shell/version_check.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <future>

using namespace zeph;
using namespace zeph::test;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// Answers one request after another with the given bodies, each a little late.
class Answers
{
public:
    explicit Answers(const QByteArrayList &bodies)
    {
        std::promise<quint16> port;
        m_port = port.get_future();
        m_thread.reset(QThread::create([bodies, port = std::move(port)]() mutable {
            QTcpServer server;
            server.listen(QHostAddress::LocalHost);
            port.set_value(server.serverPort());
            for (const QByteArray &body : bodies) {
                answer(server, body);
            }
        }));
        m_thread->start();
    }
    ~Answers() { m_thread->wait(); }

    QByteArray address()
    {
        return "http://127.0.0.1:" + QByteArray::number(m_port.get()) + "/version.txt";
    }

private:
    static void answer(QTcpServer &server, const QByteArray &body)
    {
        constexpr int patienceMs = 20000;
        if (!server.waitForNewConnection(patienceMs)) {
            return;
        }
        const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
        socket->waitForReadyRead(patienceMs);
        QThread::msleep(300);
        socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: "
                      + QByteArray::number(body.size()) + "\r\n\r\n" + body);
        socket->disconnectFromHost();
        if (socket->state() != QTcpSocket::UnconnectedState) {
            socket->waitForDisconnected(patienceMs);
        }
    }

    std::future<quint16> m_port;
    std::unique_ptr<QThread> m_thread;
};

} // namespace

TEST(ProgramVersion, TheCheckShowsThatItRunsAndTellsAVersionFromAnythingElse)
{
    Answers answers({ "", "<html><body>Not found</body></html>",
                      QString::fromUtf16(versionText).toLatin1() + " \r\n", "99.1\r\n" });
    Program program;
    program.settle();
    program.write(u"Package.ini"_s, "[Package]\nFile=zeph-<version>-linux-x86_64.tar.xz\n");
    program.write(u"Zeph.ini"_s,
                  program.read(u"Zeph.ini"_s)
                      .replace("[Unsupported]\r\n",
                               "[Unsupported]\r\nVersionURL=" + answers.address() + "\r\n"));
    QStringList script{ u"text Panel_1 Ready"_s };
    for (int i = 0; i < 4; ++i) {
        script += { u"trigger mnuHelpAbout_0"_s, u"text Panel_1 Asking ZephSite"_s, u"modal"_s,
                    u"press OK"_s, u"done"_s };
    }
    const QStringList notes = program.run(script + QStringList{ u"close"_s });
    EXPECT_THAT(lines(notes.filter(u"box "_s)),
                ElementsAre(HasSubstr("ZephSite answered, but not with a version"),
                            HasSubstr("ZephSite answered, but not with a version"),
                            HasSubstr("You are running the latest version of Zeph"),
                            AllOf(HasSubstr("There is a newer version (version 99.1)"),
                                  HasSubstr("zeph-99.1-linux-x86_64.tar.xz"))));
}
