// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/downloader.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

#include <memory>

namespace zeph {

namespace {

/// The most bytes of an answer: only lines of text and pages are fetched.
constexpr qint64 maxBytes = 1 << 20;

QNetworkRequest requestFor(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setRawHeader("Cache-Control", "no-cache");
    request.setRawHeader("Pragma", "no-cache");
    return request;
}

QString tooLarge()
{
    return u"The answer is too large"_s;
}

} // namespace

Expected<QByteArray, QString> HttpDownloader::fetch(const QString &address, int timeoutMs)
{
    const QUrl url(address.trimmed());
    if (url.isEmpty() || !url.isValid()) {
        return Unexpected<QString>(u"There is no such address: \"%1\""_s.arg(address));
    }
    QNetworkAccessManager network;
    const std::unique_ptr<QNetworkReply> reply(network.get(requestFor(url)));
    QString gaveUp;
    const auto giveUp = [&reply, &gaveUp](const QString &reason) {
        gaveUp = reason;
        reply->abort();
    };

    QEventLoop loop;
    QTimer patience;
    patience.setSingleShot(true);
    QObject::connect(&patience, &QTimer::timeout, &loop, [&giveUp, timeoutMs] {
        giveUp(u"No answer within %1 milliseconds"_s.arg(timeoutMs));
    });
    QObject::connect(reply.get(), &QNetworkReply::downloadProgress, &loop,
                     [&giveUp](qint64 received, qint64) {
                         if (received > maxBytes) {
                             giveUp(tooLarge());
                         }
                     });
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    patience.start(timeoutMs);
    if (!reply->isFinished()) {
        loop.exec();
    }
    if (reply->error() != QNetworkReply::NoError) {
        return Unexpected<QString>(gaveUp.isEmpty() ? reply->errorString() : gaveUp);
    }
    QByteArray body = reply->readAll();
    if (body.size() > maxBytes) {
        return Unexpected<QString>(tooLarge());
    }
    return body;
}

} // namespace zeph
