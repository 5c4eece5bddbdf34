// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/custom_apps.h"

#include <QBitmap>
#include <QBuffer>
#include <QFileIconProvider>
#include <QPainter>
#include <QPixmap>

namespace zeph {

namespace {

constexpr QStringView section = u"Apps";
constexpr int pictureSize = 20;
/// Bitmaps know no transparency: this colour stands for it.
constexpr QRgb maskColour = qRgb(192, 192, 192);

QString keyOf(QStringView field, size_t index)
{
    return field.toString() + QString::number(index + 1);
}

} // namespace

CustomApps readCustomApps(const ProfileFile &store)
{
    CustomApps apps;
    for (size_t i = 0; i < apps.size(); ++i) {
        apps[i] = { store.text(section, keyOf(u"CustomAppName", i)),
                    store.text(section, keyOf(u"CustomAppPath", i)),
                    store.integer(section, keyOf(u"CustomAppUse", i), 0) == 1 };
    }
    return apps;
}

Expected<void, FileError> writeCustomApps(const ProfileFile &store, const CustomApps &apps)
{
    QList<ProfileEntry> entries;
    const auto add = [&entries](QStringView field, size_t i, const QString &value) {
        entries.append({ section.toString(), keyOf(field, i), value });
    };
    for (size_t i = 0; i < apps.size(); ++i) {
        add(u"CustomAppName", i, apps[i].CustomAppName);
        add(u"CustomAppPath", i, apps[i].CustomAppPath);
        add(u"CustomAppUse", i, QString::number(apps[i].CustomAppUse ? 1 : 0));
    }
    return store.write(entries);
}

Launch customAppLaunch(const CustomApp &app)
{
    QString path = app.CustomAppPath.trimmed();
    const QString root = rootOf(path.startsWith(u'"') ? path.sliced(1) : path);
    return launchFromCommand(path, root);
}

QString customAppPicture(const Paths &paths, int place)
{
    return paths.inApp(u"app"_s + QString::number(place) + u".bmp"_s);
}

bool makeCustomAppPicture(const CustomApp &app, const QString &file)
{
    const QString program = existingPath(customAppLaunch(app).program);
    if (program.isEmpty()) {
        return false;
    }
    const QIcon icon = QFileIconProvider().icon(QFileInfo(program));
    const QPixmap drawn = icon.pixmap(pictureSize, pictureSize);
    if (drawn.isNull()) {
        return false;
    }
    QImage picture(pictureSize, pictureSize, QImage::Format_RGB32);
    picture.fill(maskColour);
    QPainter painter(&picture);
    painter.drawPixmap((pictureSize - drawn.width()) / 2, (pictureSize - drawn.height()) / 2,
                       drawn);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, "BMP")
        && writeFileAtomically(file, bytes).has_value();
}

QIcon loadCustomAppPicture(const QString &file)
{
    const QString path = existingPath(file);
    if (path.isEmpty()) {
        return {};
    }
    // Not read as a pixmap: the toolkit would give out the last one that it knows by that name.
    QPixmap picture = QPixmap::fromImage(QImage(path));
    if (picture.isNull()) {
        return {};
    }
    picture.setMask(picture.createMaskFromColor(QColor(maskColour)));
    return QIcon(picture);
}

} // namespace zeph
