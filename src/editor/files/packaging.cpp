// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/packaging.h"

#include "documents/editor_view.h"
#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "editor/files/frm_createpackage.h"
#include "editor/files/use_directives.h"
#include "language/file_kinds.h"
#include "menus/menu_actions.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/long_progress.h"
#include "platform/process_launcher.h"
#include "platform/status_line.h"
#include "platform/zip/zip_unpack.h"
#include "settings/settings.h"

#include <QDir>

namespace zeph {

namespace {

/// How many names a box lists; the others are only counted.
constexpr qsizetype mostLines = 15;

QString shortList(const QStringList &lines)
{
    QString text = lines.mid(0, mostLines).join(u'\n');
    if (lines.size() > mostLines) {
        text += u"\nand %1 more"_s.arg(lines.size() - mostLines);
    }
    return text;
}

UnpackQuestions::Overwrite askOverwrite(Dialogs &dialogs, const QString &path)
{
    const BoxButton answer = dialogs.box(
        { .title = u"OK to overwrite exisiting file?"_s,
          .text = nameOf(path) + u" already exists. Do you want me to overwrite this file?"_s,
          .icon = BoxIcon::Exclamation,
          .buttons = { BoxButton::Yes, BoxButton::No, BoxButton::Cancel },
          .defaultButton = BoxButton::No });
    if (answer == BoxButton::Cancel) {
        return UnpackQuestions::Overwrite::Stop;
    }
    return answer == BoxButton::Yes ? UnpackQuestions::Overwrite::Yes
                                    : UnpackQuestions::Overwrite::No;
}

bool askGoOn(Dialogs &dialogs, qint64 bytes, qint64 entries)
{
    constexpr qint64 megabyte = 1'000'000;
    return dialogs.ask(
        u"That's a big one"_s,
        u"So far this zip has unpacked to %1 MB in %2 files, and there's more. Shall "
        "I go on?"_s.arg(bytes / megabyte)
            .arg(entries));
}

} // namespace

Packaging::Packaging(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts)
{
    m_parts.actions.connectTo(u"mnuFileCreateDistribution",
                              [this] { mnuFileCreateDistribution_Click(); });
    m_parts.actions.connectTo(u"mnuOpenZip", [this] { mnuOpenZip_Click(); });
}

Packaging::~Packaging()
{
    delete m_form;
}

PackageFields Packaging::preset()
{
    PackageFields fields;
    const auto set = [&fields](PackageFile file, const QString &path) {
        fields.files[size_t(file)] = path;
    };
    const Document &joystick = m_parts.view.documents().joystick();
    const Document &macro = m_parts.view.documents().macro();
    // A document that was never saved has no file to pack.
    set(PackageFile::Joystick, isUntitled(joystick.name()) ? QString() : joystick.path());
    set(PackageFile::Macro, isUntitled(macro.name()) ? QString() : macro.path());
    if (joystick.text().isEmpty()) {
        return fields;
    }
    m_parts.directives.GetUSEstatements();
    const UseStatements &said = m_parts.directives.statements();
    const auto beside = [](const QString &folder, const QString &name) {
        return name.isEmpty() ? QString() : folder + name;
    };
    set(PackageFile::Graphic, beside(folderOf(joystick.path()), said.ZephGraphic));
    set(PackageFile::Readme, beside(folderOf(joystick.path()), said.ZephReadme));
    set(PackageFile::Profile,
        beside(withClosingSeparator(m_context.paths.hotasFolder + u"Profiles"_s),
               said.ProfileName));
    return fields;
}

QString Packaging::unsavedHint() const
{
    QStringList names;
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        const Document &document = m_parts.view.documents().of(kind);
        if (document.state() == Document::Modified) {
            names.append(document.name());
        }
    }
    return names.isEmpty()
        ? QString()
        : u"Not saved: "_s + names.join(u" and "_s) + u". The package gets what is on disk."_s;
}

void Packaging::mnuFileCreateDistribution_Click()
{
    if (m_form && m_form->isVisible()) {
        return;
    }
    m_form = new Frm_CreatePackage(m_context, preset(), m_parts.view.window());
    m_form->setAttribute(Qt::WA_DeleteOnClose);
    m_form->showHint(unsavedHint());
    connect(m_form, &Frm_CreatePackage::createWanted, this,
            guarded(m_context.dialogs, [this] { create(); }));
    m_form->open();
}

void Packaging::create()
{
    const PackageFields fields = m_form->fields();
    const auto plan = planPackage(fields, m_context.paths.appFolder);
    if (!plan) {
        m_context.dialogs.tell(plan.error().title, plan.error().text, BoxIcon::Exclamation);
        m_form->focusName();
        return;
    }
    if (!copyFiles(*plan)) {
        return;
    }
    if (fields.wantsZip) {
        const bool made = m_context.settings.of<EditorSettings>().WinZipFilePath.isEmpty()
            ? makeZip(*plan)
            : startWinZip(winZipPackArguments(*plan));
        if (!made) {
            return;
        }
    }
    m_context.dialogs.tell(u"Package successfully created"_s,
                           u"Your files for distribution have been copied to \n"_s
                               + QDir::toNativeSeparators(plan->folder));
    m_form->accept();
}

bool Packaging::copyFiles(const PackagePlan &plan)
{
    const auto failed = [this](const QString &path, const QString &reason) {
        m_context.dialogs.tell(u"Package not created"_s, path + u": "_s + reason,
                               BoxIcon::Exclamation);
        return false;
    };
    if (!QDir().mkpath(plan.folder)) {
        return failed(plan.folder, u"the folder can't be made"_s);
    }
    for (const PackagePlan::Copy &copy : plan.copies) {
        m_context.status.setTextNow(u" Copying "_s + nameOf(copy.from) + u" ..."_s);
        if (isSameFile(copy.from, copy.to)) {
            continue;
        }
        const auto bytes = readWholeFile(copy.from);
        if (!bytes) {
            return failed(copy.from, bytes.error().reason);
        }
        if (const auto written = writeFileAtomically(copy.to, *bytes); !written) {
            return failed(copy.to, written.error().reason);
        }
    }
    return true;
}

bool Packaging::makeZip(const PackagePlan &plan)
{
    m_context.status.setTextNow(u" Making "_s + nameOf(plan.zip) + u" ..."_s);
    LongProgress progress(u"Packing the files"_s, m_form);
    const auto made =
        packFolder(plan.folder, plan.zip, [&progress](const QString &name, int done, int all) {
            return progress.step(name, done, all);
        });
    progress.finish();
    if (!made) {
        m_context.dialogs.tell(u"Zip file not created"_s,
                               u"The files are in "_s + QDir::toNativeSeparators(plan.folder)
                                   + u", but there is no zip of them. "_s + made.error(),
                               BoxIcon::Exclamation);
        return false;
    }
    m_context.status.setText(*made ? nameOf(plan.zip) + u" created"_s : u"Zip file not created"_s);
    return *made;
}

bool Packaging::startWinZip(const QString &arguments)
{
    const auto started = m_context.launcher.start(
        { .program = m_context.settings.of<EditorSettings>().WinZipFilePath,
          .arguments = arguments });
    if (!started) {
        m_context.dialogs.tell(u"Can't start WinZip"_s, started.error(), BoxIcon::Exclamation);
    }
    return started.has_value();
}

void Packaging::mnuOpenZip_Click()
{
    const auto zip = m_context.dialogs.openFile({ .title = u"Select the zip file to open ..."_s,
                                                  .filter = u"WinZip package (*.zip)|*.zip"_s,
                                                  .defaultExtension = u"zip"_s,
                                                  .folder = m_context.paths.filesFolder() });
    if (!zip) {
        return;
    }
    m_context.status.setTextNow(u"Opening WinZip package"_s);
    if (m_context.settings.of<EditorSettings>().WinZipFilePath.isEmpty()) {
        unpack(*zip);
    } else {
        startWinZip(winZipOpenArguments(*zip, m_context.paths.filesFolder()));
    }
}

void Packaging::unpack(const QString &path)
{
    auto zip = ZipReader::open(path);
    if (!zip) {
        m_context.status.setText(u"Zip file not opened"_s);
        m_context.dialogs.tell(u"Can't open zip file"_s, path + u": "_s + zip.error(),
                               BoxIcon::Exclamation);
        return;
    }
    QDir().mkpath(m_context.paths.filesFolder());
    const FileOpening::Overwriting overwriting(m_parts.opening);
    LongProgress progress(u"Unpacking the files"_s, m_parts.view.window());
    Dialogs &dialogs = m_context.dialogs;
    const UnpackQuestions questions{
        .overwrite = [&dialogs](const QString &file) { return askOverwrite(dialogs, file); },
        .goOn = [&dialogs](qint64 bytes,
                           qint64 entries) { return askGoOn(dialogs, bytes, entries); },
        .progress = [&progress](const QString &name, int done,
                                int all) { return progress.step(name, done, all); },
    };
    const UnpackReport report = unpackZip(*zip, m_context.paths.filesFolder(), questions);
    progress.finish();
    tellReport(report);
    m_parts.opening.offerToReload(report.written);
}

void Packaging::tellReport(const UnpackReport &report)
{
    QString said = u"%1 unpacked into "_s.arg(
        report.written.size() == 1 ? u"1 file"_s : u"%1 files"_s.arg(report.written.size()));
    said += QDir::toNativeSeparators(m_context.paths.filesFolder());
    if (report.stopped) {
        said += u", then stopped"_s;
    }
    m_context.status.setText(said);
    if (!report.refused.isEmpty()) {
        m_context.dialogs.tell(u"Not everything was unpacked"_s,
                               u"These I wouldn't let out of the zip:\n"_s
                                   + shortList(report.refused),
                               BoxIcon::Exclamation);
    }
    if (!report.damage.isEmpty()) {
        m_context.dialogs.tell(u"Damaged zip file"_s,
                               u"I could only read a part of it: "_s + report.damage,
                               BoxIcon::Exclamation);
    }
}

} // namespace zeph
