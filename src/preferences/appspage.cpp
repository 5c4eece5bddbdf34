// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/appspage.h"

#include "lists/custom_apps.h"
#include "platform/core/portable_paths.h"
#include "platform/core/profile_list.h"
#include "platform/dialogs.h"
#include "platform/system_info.h"
#include "preferences/list_rules.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "text/template_files.h"
#include "ui_appspage.h"

#include <QCheckBox>
#include <QDir>

namespace zeph {

namespace {

/// The captions of an application's fields. Each application has its own, since access keys must
/// differ.
struct Captions {
    QStringView name;
    QStringView path;
    QStringView use;
};

constexpr std::array<Captions, std::tuple_size_v<CustomApps>> captions = { {
    { u"Name &1", u"&Path and switches", u"&Show on the Apps menu" },
    { u"Name &2", u"Pa&th and switches", u"S&how on the Apps menu" },
    { u"Name &3", u"Path and sw&itches", u"Sho&w on the Apps menu" },
    { u"Name &4", u"Path and switch&es", u"Show o&n the Apps menu" },
} };

constexpr QStringView applicationFilter =
    u"Applications (*.exe)|*.exe|Control panel applets (*.cpl)|*.cpl|Help files (*.hlp)|*.hlp|"
    "All files (*.*)|*.*";
constexpr QStringView pictureFilter =
    u"Image files (*.bmp,*.jpg,*.gif)|*.bmp;*.jpg;*.gif|All files (*.*)|*.*";

constexpr int rowsOfAnApp = 3; ///< name, path and a gap
constexpr int roomBetweenApps = 12;

QLabel *captionFor(QStringView caption, QWidget *field)
{
    auto *label = new QLabel(caption.toString() + u':');
    label->setBuddy(field);
    return label;
}

} // namespace

AppsPage::AppsPage(const Context &context, CustomAppsMenu &apps, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_menu(apps),
      m_ui(std::make_unique<Ui::AppsPage>())
{
    m_ui->setupUi(this);
    m_ui->ImageFilePath->setMaxLength(longestStorable);
    m_ui->TextFilePath->setMaxLength(longestStorable);
    m_ui->ImageFilePath->setText(context.settings.of<SharedSettings>().ImageFilePath);
    m_ui->TextFilePath->setText(context.settings.of<SharedSettings>().TextFilePath);
    connect(
        m_ui->CMD_BrowseImage, &QPushButton::clicked, this, guarded(context.dialogs, [this](bool) {
            browse(*m_ui->ImageFilePath,
                   { .title = u"Select image file to open"_s, .filter = pictureFilter.toString() },
                   m_context.paths.filesFolder());
        }));
    connect(
        m_ui->CMD_BrowseText, &QPushButton::clicked, this, guarded(context.dialogs, [this](bool) {
            browse(*m_ui->TextFilePath,
                   { .title = u"Select the file to open ..."_s, .filter = templateOpenFilter() },
                   withClosingSeparator(m_context.paths.inApp(u"Templates")));
        }));
    for (size_t index = 0; index < m_fields.size(); ++index) {
        addFields(index);
    }
}

AppsPage::~AppsPage() = default;

void AppsPage::addFields(size_t index)
{
    const QString place = QString::number(index + 1);
    const CustomApp &app = m_menu.apps()[index];
    Fields &fields = m_fields[index];
    fields.name = new QLineEdit(app.CustomAppName);
    fields.name->setObjectName(u"CustomAppName_"_s + place);
    fields.name->setMaxLength(longestStorable);
    fields.name->setToolTip(u"What the Apps menu calls it"_s);
    fields.path = new QLineEdit(app.CustomAppPath);
    fields.path->setObjectName(u"CustomAppPath_"_s + place);
    fields.path->setMaxLength(longestStorable);
    fields.path->setToolTip(u"The program to start, followed by any switches. Mine's a beer."_s);
    fields.use = new QCheckBox(captions[index].use.toString());
    fields.use->setObjectName(u"CustomAppUse_"_s + place);
    fields.use->setToolTip(u"Gives it a place on the Apps menu and a button on the toolbar. It "
                           "needs a path first, and a folder is no program."_s);
    fields.use->setEnabled(canBeUsed(app.CustomAppPath));
    fields.use->setChecked(app.CustomAppUse && canBeUsed(app.CustomAppPath));
    auto *find = new QPushButton(u"Browse ..."_s);
    find->setObjectName(u"CMD_BrowseCustomApp_"_s + place);
    find->setAccessibleName(u"Browse for: Application "_s + place);
    find->setToolTip(u"Looks for the program on your disks"_s);
    find->setAutoDefault(false);

    QGridLayout &grid = *m_ui->layoutApps;
    const int row = int(index) * rowsOfAnApp;
    grid.addWidget(captionFor(captions[index].name, fields.name), row, 0);
    grid.addWidget(fields.name, row, 1);
    grid.addWidget(fields.use, row, 2, 1, 2);
    grid.addWidget(captionFor(captions[index].path, fields.path), row + 1, 0);
    grid.addWidget(fields.path, row + 1, 1, 1, 2);
    grid.addWidget(find, row + 1, 3);
    grid.setRowMinimumHeight(row + 2, index + 1 < m_fields.size() ? roomBetweenApps : 0);

    connect(find, &QPushButton::clicked, this,
            guarded(m_context.dialogs, [this, &fields](bool) { browseForApp(fields); }));
    connectFields(fields);
}

void AppsPage::connectFields(const Fields &fields)
{
    connect(fields.path, &QLineEdit::textChanged, this, [&fields](const QString &path) {
        fields.use->setEnabled(canBeUsed(path));
        if (!canBeUsed(path)) {
            fields.use->setChecked(false);
        }
    });
    connect(fields.path, &QLineEdit::editingFinished, this,
            guarded(m_context.dialogs, [this, &fields] { askIfTyped(fields); }));
    connect(fields.use, &QCheckBox::toggled, this,
            guarded(m_context.dialogs, [this, &fields](bool) { askAboutApplet(fields); }));
}

void AppsPage::browse(QLineEdit &field, const FileRequest &request, const QString &folder)
{
    FileRequest asked = request;
    const QString present = folderOf(field.text());
    asked.folder = folderExists(present) ? present : folder;
    if (const auto path = m_context.dialogs.openFile(asked); path && !path->isEmpty()) {
        field.setText(*path);
    }
}

void AppsPage::browseForApp(const Fields &fields)
{
    const QString before = fields.path->text();
    browse(*fields.path,
           { .title = u"Select the application"_s, .filter = applicationFilter.toString() },
           QDir::homePath());
    if (fields.path->text() == before) {
        return;
    }
    if (fields.name->text().trimmed().isEmpty()) {
        fields.name->setText(appNameFor(fields.path->text()));
    }
    askAboutApplet(fields);
}

void AppsPage::askIfTyped(const Fields &fields)
{
    if (fields.path->isModified()) {
        askAboutApplet(fields);
    }
}

void AppsPage::askAboutApplet(const Fields &fields)
{
    // The question comes once for each typed path.
    fields.path->setModified(false);
    if (!fields.use->isChecked()) {
        return;
    }
    const auto question = appletQuestion(fields.path->text(), windowsFolder());
    if (!question) {
        return;
    }
    const BoxButton answer = m_context.dialogs.box({ .title = question->title,
                                                     .text = question->text,
                                                     .icon = BoxIcon::Question,
                                                     .buttons = { BoxButton::Yes, BoxButton::No },
                                                     .defaultButton = BoxButton::Yes });
    if (answer == BoxButton::Yes) {
        fields.path->setText(question->newPath);
    }
}

void AppsPage::collect()
{
    auto &settings = m_context.settings.of<SharedSettings>();
    const QString &appFolder = m_context.paths.appFolder;
    settings.ImageFilePath =
        resolvedPath(storableOr(m_ui->ImageFilePath->text(), settings.ImageFilePath), appFolder);
    settings.TextFilePath =
        resolvedPath(storableOr(m_ui->TextFilePath->text(), settings.TextFilePath), appFolder);
    CustomApps apps;
    for (size_t index = 0; index < apps.size(); ++index) {
        const Fields &fields = m_fields[index];
        // A field that still has the focus has not asked yet.
        askIfTyped(fields);
        apps[index] = { fields.name->text(), fields.path->text(), fields.use->isChecked() };
    }
    m_menu.set(settledApps(apps, m_menu.apps()));
}

} // namespace zeph
