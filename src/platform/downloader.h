// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QByteArray>

namespace zeph {

/// Fetches a small file over HTTP, past every cache.
class Downloader
{
public:
    virtual ~Downloader() = default;
    /// The body, waiting in a nested event loop; the error is the reason in words. An empty address
    /// behaves like a server that cannot be reached.
    virtual Expected<QByteArray, QString> fetch(const QString &address, int timeoutMs) = 0;
};

class HttpDownloader : public Downloader
{
public:
    Expected<QByteArray, QString> fetch(const QString &address, int timeoutMs) override;
};

} // namespace zeph
