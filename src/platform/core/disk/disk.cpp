// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/disk/disk.h"

#include <QFile>
#include <QFileInfo>

#include <system_error>

#ifdef Q_OS_WIN
#include "platform/core/disk/windows_path.h"

#include <qt_windows.h>

#include <aclapi.h>
#else
#include <filesystem>
#include <unistd.h>
#endif

namespace zeph::disk {

#ifdef Q_OS_WIN

namespace {

/// A handle of the system, closed at the end.
class Handle
{
public:
    explicit Handle(HANDLE handle) : m_handle(handle) { }
    ~Handle()
    {
        if (isOpen()) {
            CloseHandle(m_handle);
        }
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Opens a file that exists. GetLastError() tells why it could not.
Handle opened(const std::wstring &path, DWORD access, DWORD share)
{
    return Handle(CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
}

/// Whether anybody else has the file open. A rename only tells that it was denied.
bool isOpenElsewhere(const std::wstring &path)
{
    return !opened(path, GENERIC_READ, 0).isOpen() && GetLastError() == ERROR_SHARING_VIOLATION;
}

/// Gives one file the rights that the other has of its own; those that both inherit it has already.
void copyRights(const std::wstring &from, const std::wstring &to)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    PACL rights = nullptr;
    if (GetNamedSecurityInfoW(from.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                              nullptr, &rights, nullptr, &descriptor)
        != ERROR_SUCCESS) {
        return;
    }
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    GetSecurityDescriptorControl(descriptor, &control, &revision);
    const DWORD inherits = (control & SE_DACL_PROTECTED) ? PROTECTED_DACL_SECURITY_INFORMATION
                                                         : UNPROTECTED_DACL_SECURITY_INFORMATION;
    std::wstring target = to;
    SetNamedSecurityInfoW(target.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inherits,
                          nullptr, nullptr, rights, nullptr);
    LocalFree(descriptor);
}

/// Gives a new file what the user or the system said about the one whose place it takes. What the
/// file system does not have cannot be kept, and is no reason to refuse the content.
void copyTraits(const std::wstring &from, const std::wstring &to)
{
    WIN32_FILE_ATTRIBUTE_DATA old{};
    if (!GetFileAttributesExW(from.c_str(), GetFileExInfoStandard, &old)) {
        return;
    }
    if (const Handle file = opened(to, FILE_WRITE_ATTRIBUTES, shareAll); file.isOpen()) {
        SetFileTime(file.get(), &old.ftCreationTime, nullptr, nullptr);
    }
    constexpr DWORD kept =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    SetFileAttributesW(to.c_str(), (old.dwFileAttributes & kept) | FILE_ATTRIBUTE_ARCHIVE);
    copyRights(from, to);
}

} // namespace

// The system also has a call that replaces a file and keeps its traits. That one renames twice: for
// a moment, or for ever when the power fails, there is no file of that name.
std::optional<Refusal> putInPlace(const QString &written, const QString &path)
{
    const std::wstring from = windowsPath(written);
    const std::wstring to = windowsPath(path);
    copyTraits(to, from);
    constexpr int mostAttempts = 10;
    for (int attempt = 1;; ++attempt) {
        if (MoveFileExW(from.c_str(), to.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
            return std::nullopt;
        }
        const DWORD code = GetLastError();
        const bool isHeld = code == ERROR_SHARING_VIOLATION || isOpenElsewhere(to);
        // Whoever had it open may have let it go before that could be seen.
        if (isHeld || code != ERROR_ACCESS_DENIED || attempt == mostAttempts) {
            return Refusal{ qt_error_string(int(isHeld ? ERROR_SHARING_VIOLATION : code)), isHeld };
        }
    }
}

bool isHeld(const QString &path)
{
    return !opened(windowsPath(path), GENERIC_READ, shareAll).isOpen()
        && GetLastError() == ERROR_SHARING_VIOLATION;
}

std::optional<QString> flush(const QString &path)
{
    const Handle file = opened(windowsPath(path), GENERIC_WRITE, shareAll);
    const bool isFlushed = file.isOpen() && FlushFileBuffers(file.get());
    return isFlushed ? std::nullopt : std::optional(qt_error_string(int(GetLastError())));
}

std::optional<QString> flushAll(const QStringList &paths)
{
    // Only an administrator may flush a whole disk.
    for (const QString &path : paths) {
        if (auto refused = flush(path)) {
            return refused;
        }
    }
    return std::nullopt;
}

#else

namespace {

std::optional<QString> inWords(const std::error_code &code)
{
    return code ? std::optional(QString::fromStdString(code.message())) : std::nullopt;
}

/// Calls one of the system's functions for an open file.
template <typename Function> std::optional<QString> flushBy(Function function, int handle)
{
    // File systems that cannot flush say so with the first two.
    const bool isRefused = function(handle) != 0 && errno != EINVAL && errno != ENOTSUP;
    return isRefused ? inWords(std::make_error_code(std::errc(errno))) : std::nullopt;
}

template <typename Function> std::optional<QString> flushBy(Function function, const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? flushBy(function, file.handle()) : file.errorString();
}

} // namespace

std::optional<Refusal> putInPlace(const QString &written, const QString &path)
{
    std::error_code code;
    std::filesystem::rename(QFileInfo(written).filesystemFilePath(),
                            QFileInfo(path).filesystemFilePath(), code);
    return code ? std::optional(Refusal{ *inWords(code) }) : std::nullopt;
}

bool isHeld(const QString &)
{
    return false;
}

std::optional<QString> flush(const QString &path)
{
    return flushBy(::fsync, path);
}

std::optional<QString> flush(int handle)
{
    return flushBy(::fsync, handle);
}

std::optional<QString> flushAll(const QStringList &paths)
{
#ifdef Q_OS_LINUX
    return paths.isEmpty() ? std::nullopt : flushBy(::syncfs, paths.front());
#else
    for (const QString &path : paths) {
        if (auto refused = flush(path)) {
            return refused;
        }
    }
    return std::nullopt;
#endif
}

#endif

} // namespace zeph::disk
