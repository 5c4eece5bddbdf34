// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/custom_apps.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"

#include <QAction>
#include <QBitmap>
#include <QBuffer>
#include <QFile>
#include <QFileIconProvider>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QPixmap>

namespace zeph {

namespace {

constexpr QStringView section = u"Apps";
constexpr int pictureSize = 20;
/// Bitmap files have no transparency; pixels of this colour are shown as transparent.
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

QString lackOf(const CustomApp &app, const ProcessLauncher &launcher)
{
    const QString program = customAppLaunch(app).program;
    if (folderExists(program)) {
        return program + u" is a folder, not a program"_s;
    }
    return launcher.finds(program) ? QString() : program + u" is missing"_s;
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
    // Loaded as an image, since loading a pixmap may return an outdated one from the toolkit's
    // cache.
    QPixmap picture = QPixmap::fromImage(QImage(path));
    if (picture.isNull()) {
        return {};
    }
    picture.setMask(picture.createMaskFromColor(QColor(maskColour)));
    return QIcon(picture);
}

namespace {

QString entryOf(int place)
{
    return u"mnuCustomApp_"_s + QString::number(place);
}

} // namespace

CustomAppsMenu::CustomAppsMenu(const Context &context, Editor &editor)
    : QObject(&editor), m_context(context), m_editor(editor),
      m_apps(readCustomApps(ProfileFile(context.paths.iniPath))),
      m_plainPicture(editor.action(entryOf(1))->icon())
{
    for (int place = 1; place <= int(m_apps.size()); ++place) {
        m_plainCaptions[size_t(place - 1)] = editor.action(entryOf(place))->text();
        editor.actions().connectTo(entryOf(place), [this, place] { mnuCustomApp_Click(place); });
        show(place);
    }
    // A program that is missing may be back by then.
    const auto again = [this] {
        for (int place = 1; place <= int(m_apps.size()); ++place) {
            show(place);
        }
    };
    connect(editor.actions().menu(u"mnuApps"), &QMenu::aboutToShow, this, again);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, again);
}

void CustomAppsMenu::set(const CustomApps &apps)
{
    for (int place = 1; place <= int(apps.size()); ++place) {
        const size_t index = size_t(place - 1);
        const QString picture = existingPath(customAppPicture(m_context.paths, place));
        if (apps[index].CustomAppPath != m_apps[index].CustomAppPath && !picture.isEmpty()) {
            // The picture is the old program's.
            QFile::remove(picture);
        }
        m_apps[index] = apps[index];
        show(place);
    }
}

void CustomAppsMenu::save()
{
    // As everywhere, a settings store that cannot be written is not told.
    (void)writeCustomApps(ProfileFile(m_context.paths.iniPath), m_apps);
}

void CustomAppsMenu::mnuCustomApp_Click(int place)
{
    const CustomApp &app = m_apps.at(size_t(place - 1));
    if (const auto started = m_context.launcher.start(customAppLaunch(app)); !started) {
        m_context.dialogs.tell(u"I couldn't start that buddy"_s, started.error(),
                               BoxIcon::Exclamation);
    }
}

void CustomAppsMenu::show(int place)
{
    const CustomApp &app = m_apps.at(size_t(place - 1));
    QAction *entry = m_editor.action(entryOf(place));
    entry->setVisible(app.CustomAppUse);
    const QString lack = app.CustomAppUse ? lackOf(app, m_context.launcher) : QString();
    entry->setEnabled(app.CustomAppUse && lack.isEmpty());
    if (!app.CustomAppUse) {
        return;
    }
    entry->setText(app.CustomAppName.isEmpty() ? m_plainCaptions[size_t(place - 1)]
                                               : captionOf(app.CustomAppName));
    entry->setToolTip(lack);
    entry->setStatusTip(lack.isEmpty() ? app.CustomAppPath : lack);
    const QString file = customAppPicture(m_context.paths, place);
    if (!fileExists(file)) {
        makeCustomAppPicture(app, file);
    }
    const QIcon picture = loadCustomAppPicture(file);
    entry->setIcon(picture.isNull() ? m_plainPicture : picture);
}

} // namespace zeph
