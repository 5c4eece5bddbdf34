// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/templatespage.h"

#include "composer/statement_inserter.h"
#include "documents/editor_texts.h"
#include "platform/colours.h"
#include "platform/control_array.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/richtext/rich_text_box.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "text/template_files.h"
#include "ui_templatespage.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace zeph {

namespace {

QString templatesFolder(const Paths &paths)
{
    return paths.inApp(u"Templates");
}

} // namespace

QStringList templateNames(const QString &folder)
{
    const auto files = [&folder](const QString &pattern) {
        return QDir(folder).entryList({ pattern }, QDir::Files, QDir::Name | QDir::IgnoreCase);
    };
    return files(u"*.rtf"_s) + files(u"*.txt"_s);
}

TemplatesPage::TemplatesPage(const ComposerParts &parts, QWidget *parent)
    : ComposerPage(parts, parent), m_ui(std::make_unique<Ui::TemplatesPage>())
{
    m_ui->setupUi(this);
    makeMenu();
    connect(m_ui->Templates, &QListWidget::currentTextChanged, this,
            guarded(parts.context.dialogs, [this](const QString &name) { showTemplate(name); }));
    const ControlArray<QPushButton> buttons(this, u"Command11"_s);
    for (int i = 0; i < buttons.count(); ++i) {
        connect(buttons[i], &QPushButton::clicked, this,
                guarded(parts.context.dialogs, [this, i](bool) { Command11_Click(i); }));
    }
    m_ui->TemplatesPreview->viewport()->installEventFilter(this);
    m_ui->TemplatesPreview->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(
        m_ui->TemplatesPreview, &QWidget::customContextMenuRequested, this,
        [this](const QPoint &at) { mnuTemplates->popup(m_ui->TemplatesPreview->mapToGlobal(at)); });
    FillTemplates();
}

TemplatesPage::~TemplatesPage() = default;

void TemplatesPage::makeMenu()
{
    mnuTemplates = new QMenu(this);
    mnuTemplates->setObjectName(u"mnuTemplates"_s);
    const auto add = [this](const QString &name, const QString &caption, auto act) {
        QAction *entry = mnuTemplates->addAction(caption);
        entry->setObjectName(name);
        connect(entry, &QAction::triggered, this,
                guarded(m_parts.context.dialogs, [act](bool) { act(); }));
    };
    add(u"mnuJoystick"_s, u"Insert into &joystick file"_s, [this] { Command11_Click(0); });
    add(u"mnuMacrofile"_s, u"Insert into &macro file"_s, [this] { Command11_Click(1); });
    mnuTemplates->addSeparator();
    add(u"mnuQuickie"_s, u"Just a &quickie ..."_s, [this] { mnuQuickie_Click(); });
}

void TemplatesPage::enter()
{
    m_ui->Templates->setFocus();
}

void TemplatesPage::windowActivated()
{
    // A template's colours are meant for the ground of the file that it goes into.
    const auto &colours = m_parts.context.settings.of<ColourSettings>();
    QPalette look = m_ui->TemplatesPreview->palette();
    look.setColor(QPalette::Base, toColor(documentBackground(colours, DocumentKind::Joystick)));
    look.setColor(QPalette::Text, toColor(colours.JoystickTextDefaultColour));
    m_ui->TemplatesPreview->setPalette(look);
}

void TemplatesPage::FillTemplates()
{
    const QString before = m_shown;
    const QStringList names = templateNames(templatesFolder(m_parts.context.paths));
    m_ui->Templates->clear();
    m_ui->Templates->addItems(names);
    if (names.contains(before)) {
        m_ui->Templates->setCurrentRow(int(names.indexOf(before)));
    }
}

void TemplatesPage::showTemplate(const QString &name)
{
    m_shown.clear();
    m_ui->TemplatesPreview->clear();
    if (name.isEmpty()) {
        return;
    }
    const QString path = templatesFolder(m_parts.context.paths) + u'/' + name;
    if (QFileInfo(path).size() > largeTemplate
        && !m_parts.context.dialogs.ask(
            u"That's a big one"_s,
            u"%1 is very large for a template, and showing it may take a while. Shall I go on?"_s
                .arg(name))) {
        return;
    }
    const auto bytes = readWholeFile(path);
    const auto file =
        bytes ? readTemplate(name, *bytes, {}) : Unexpected<QString>(bytes.error().reason);
    if (!file) {
        m_parts.context.dialogs.tell(u"Can't read file"_s,
                                     name + u" wasn't opened: "_s + file.error(),
                                     BoxIcon::Exclamation);
        return;
    }
    m_shown = name;
    m_ui->TemplatesPreview->setRichText(file->text);
}

void TemplatesPage::Command11_Click(int index)
{
    if (index == 2) {
        FillTemplates();
        return;
    }
    if (m_ui->TemplatesPreview->document()->isEmpty()) {
        return;
    }
    m_parts.documents.select(index == 0 ? DocumentKind::Joystick : DocumentKind::Macro);
    insert();
}

void TemplatesPage::insert()
{
    m_parts.inserter.insertRich(m_ui->TemplatesPreview->richText());
}

void TemplatesPage::mnuQuickie_Click()
{
    m_parts.context.dialogs.tell(
        u"Double clicking is quickest"_s,
        u"If you double click in the preview area, the template will be inserted into whichever "
        "file has the focus in the Editor window. It's much quicker inserting templates in this "
        "manner. I thought you might like to know that! Don't forget, you can edit these "
        "templates using the Template Editor."_s);
}

bool TemplatesPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        guarded(m_parts.context.dialogs, [this] { insert(); })();
        return true;
    }
    return ComposerPage::eventFilter(watched, event);
}

} // namespace zeph
