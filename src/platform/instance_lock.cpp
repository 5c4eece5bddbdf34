// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/instance_lock.h"

#include "platform/core/disk/windows_path.h"
#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/dialogs.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QLockFile>
#include <QSysInfo>
#include <QThread>
#include <QTimer>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <cerrno>
#include <csignal>
#include <utime.h>
#endif

namespace zeph {

namespace {

#ifdef Q_OS_WIN

bool isRunning(qint64 process)
{
    const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, DWORD(process));
    if (!handle) {
        return GetLastError() == ERROR_ACCESS_DENIED;
    }
    DWORD code = 0;
    const bool runs = GetExitCodeProcess(handle, &code) && code == STILL_ACTIVE;
    CloseHandle(handle);
    return runs;
}

/// This machine's name as the toolkit writes it into locks.
QString hostName()
{
    return qEnvironmentVariable("COMPUTERNAME");
}

/// Gives a file the present time as its last change. Needs no right to write its content, which the
/// lock keeps to itself.
void touch(const QString &path)
{
    const HANDLE file = CreateFileW(windowsPath(path).c_str(), FILE_WRITE_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        FILETIME now;
        GetSystemTimeAsFileTime(&now);
        SetFileTime(file, nullptr, nullptr, &now);
        CloseHandle(file);
    }
}

#else

bool isRunning(qint64 process)
{
    return ::kill(pid_t(process), 0) == 0 || errno == EPERM;
}

QString hostName()
{
    return QSysInfo::machineHostName();
}

/// Gives a file the present time as its last change.
void touch(const QString &path)
{
    ::utime(QFile::encodeName(path).constData(), nullptr);
}

#endif

std::optional<LockMark> markOf(const QString &path)
{
    const auto bytes = readWholeFile(path);
    return bytes ? readLockMark(*bytes) : std::nullopt;
}

LockWitness witness(const std::optional<LockMark> &mark)
{
    return { hostName(), QString::fromLatin1(QSysInfo::machineUniqueId()),
             QString::fromLatin1(QSysInfo::bootUniqueId()), mark && isRunning(mark->process),
             QDateTime::currentDateTime() };
}

} // namespace

MayTakeOver askToTakeOver(Dialogs &dialogs, const QString &what)
{
    return [&dialogs, what](const DoubtfulLock &lock) {
        const QString moment = QLocale(QLocale::C).toString(lock.touched, u"dd MMMM yyyy, h:mm ap");
        return dialogs.ask(
            u"Is somebody else at work?"_s,
            what + u" in use by Zeph on \u201C"_s + lock.hostName
                + u"\u201D, but I haven't had a sign of life from there since "_s + moment
                + u".\n\nShall I take over? If Zeph still runs there, better say No."_s,
            BoxIcon::Question);
    };
}

InstanceLock::InstanceLock(const QString &folder, QStringView name, const MayTakeOver &mayTakeOver,
                           int touchMs)
    : m_lock(std::make_unique<QLockFile>(withClosingSeparator(folder) + name.toString()))
{
    // The age of a lock is judged here, by rules that know its owner.
    m_lock->setStaleLockTime(0);
    const bool isMine = QFileInfo::exists(folder) && take(mayTakeOver);
    m_first = isMine || m_lock->error() != QLockFile::LockFailedError;
    if (isMine) {
        touchEvery(touchMs);
    }
}

InstanceLock::~InstanceLock()
{
    if (m_toucher && m_toucher->thread() != QThread::currentThread()) {
        m_toucher->deleteLater();
    } else {
        delete m_toucher;
    }
}

bool InstanceLock::take(const MayTakeOver &mayTakeOver)
{
    if (m_lock->tryLock(0)) {
        return true;
    }
    const QString path = m_lock->fileName();
    const auto mark = markOf(path);
    const QDateTime touched = QFileInfo(path).lastModified();
    LockState state = judgeLock(mark, touched, witness(mark));
    if (state == LockState::Doubtful && mayTakeOver
        && mayTakeOver({ mark->hostName, touched })
        // The owner may have come back while the question was open.
        && markOf(path) == mark && QFileInfo(path).lastModified() == touched) {
        state = LockState::Stale;
    }
    // The system still refuses to remove the lock of a program that runs on this machine.
    return state == LockState::Stale && m_lock->removeStaleLockFile() && m_lock->tryLock(0);
}

void InstanceLock::touchEvery(int intervalMs)
{
    if (!QCoreApplication::instance()) {
        return;
    }
    // A timer needs an event loop, which the thread that took the lock may not have.
    m_toucher = new QObject;
    m_toucher->moveToThread(QCoreApplication::instance()->thread());
    QMetaObject::invokeMethod(
        m_toucher,
        [owner = m_toucher, path = m_lock->fileName(), intervalMs] {
            auto *timer = new QTimer(owner);
            timer->callOnTimeout(owner, [path] { touch(path); });
            timer->start(intervalMs);
        },
        Qt::QueuedConnection);
}

} // namespace zeph
