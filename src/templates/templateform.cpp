// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/templateform.h"

#include "language/file_kinds.h"
#include "menus/menu_actions.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/printers.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/richtext/rich_text_mime.h"
#include "platform/status_line.h"
#include "platform/window_places.h"
#include "print/printpreview.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "settings/shared_settings.h"
#include "templates/template_actions.h"
#include "templates/template_formatting.h"
#include "templates/template_loading.h"
#include "templates/template_settings.h"
#include "text/macro_table.h"
#include "text/painter.h"
#include "ui_templateform.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTextBlock>

namespace zeph {

namespace {

constexpr double plainSize = 10;
/// The help topic on this window.
constexpr int helpTopic = 290;

QPalette paperPalette(QPalette palette)
{
    // The text is black on white whatever the desktop looks like, since it is read and printed
    // elsewhere.
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

std::initializer_list<SettingRef> ownSettings()
{
    using S = TemplateSettings;
    static const std::initializer_list<SettingRef> own = {
        &S::HideAppsToolBar, &S::TemplateTopAtStartup, &S::TemplateLeftAtStartup,
        &S::TemplateWidthAtStartup, &S::TemplateHeightAtStartup
    };
    return own;
}

} // namespace

TemplateForm::TemplateForm(const Context &context, Printers &printers, const MacroTable &macros,
                           QWidget *parent)
    : QMainWindow(parent), m_context(context), m_printers(printers), m_macros(macros),
      m_plain{ .family = u"Arial"_s, .pointSize = plainSize, .colour = {} },
      m_ui(std::make_unique<Ui::TemplateForm>()),
      m_actions(std::make_unique<MenuActions>(context.dialogs, context.paths.inApp(u"icons/"),
                                              templateMenuBar(), templateActions(), this))
{
    m_ui->setupUi(this);
    const QString caption = windowTitle();
    setWindowFlag(Qt::Window);
    m_actions->addTo(*m_ui->MenuBar1);
    box().setPalette(paperPalette(box().palette()));
    box().viewport()->installEventFilter(this);
    box().setContextMenuPolicy(Qt::CustomContextMenu);
    m_formatting = new TemplateFormatting(
        context, TemplateFormatting::Parts{ box(), *m_actions, *m_ui->Toolbar1 }, m_plain);
    connectFile();
    connectEdit();
    GetTemplateEditorOptions();
    showFile(templatesFolder() + untitledTemplate.toString(), newTemplateDocument(m_plain));
    // showFile() puts a file's name into the title, but nobody has chosen a file yet.
    setWindowTitle(caption);
    updateConditions();
    box().setFocus();
}

TemplateForm::~TemplateForm() = default;

RichTextBox &TemplateForm::box() const
{
    return *m_ui->TemplateText;
}

QString TemplateForm::templatesFolder() const
{
    return withClosingSeparator(m_context.paths.inApp(u"Templates"));
}

void TemplateForm::connectFile()
{
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuFileNew", [this] { mnuFileNew_Click(); });
    on.connectTo(u"mnuFileOpen", [this] { mnuFileOpen_Click(); });
    on.connectTo(u"mnuFileOpenDefault", [this] { mnuFileOpenDefault_Click(); });
    on.connectTo(u"mnuFileSetDefault", [this] { mnuFileSetDefault_Click(); });
    on.connectTo(u"mnuFileSave", [this] { mnuFileSave_Click(); });
    on.connectTo(u"mnuFileSaveAs", [this] { mnuFileSaveAs_Click(); });
    on.connectTo(u"mnuFilePrint", [this] { mnuFilePrint_Click(); });
    on.connectTo(u"mnuFilePrintSelection", [this] { mnuFilePrintSelection_Click(); });
    on.connectTo(u"mnuFilePrintPreview",
                 [this] { showPreview(m_context, m_printers, job(), folderOf(m_path), this); });
    on.connectTo(u"mnuFileExportPDF", [this] { exportPdf(); });
    on.connectTo(u"mnuFileClose", [this] { close(); });
}

void TemplateForm::connectEdit()
{
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuEditUndo", [this] { box().undo(); });
    on.connectTo(u"mnuEditRedo", [this] { box().redo(); });
    on.connectTo(u"mnuEditCut", [this] { box().cut(); });
    on.connectTo(u"mnuEditCopy", [this] { box().copy(); });
    on.connectTo(u"mnuEditPaste", [this] { box().paste(); });
    on.connectTo(u"mnuEditDelete", [this] { box().textCursor().removeSelectedText(); });
    on.connectTo(u"mnuEditSelectAll", [this] { box().selectAll(); });
    on.connectTo(u"mnuEditIniFile", [this] { mnuEditIniFile_Click(); });
    on.connectTo(u"mnuViewColour", [this] { ColourTemplateText(); });
    on.connectTo(u"mnuViewToolBar", [this] {
        m_ui->Toolbar1->setVisible(m_actions->action(u"mnuViewToolBar")->isChecked());
        SaveTemplateEditorOptions();
    });
    on.connectTo(u"mnuHelpContents", [this] { Q_EMIT helpWanted(helpTopic); });
    connect(on.menu(u"mnuStyles"), &QMenu::aboutToShow, m_formatting,
            &TemplateFormatting::UpdateStyleCaptions);
    connect(&box(), &RichTextBox::undoAvailable, on.action(u"mnuEditUndo"), &QAction::setEnabled);
    connect(&box(), &RichTextBox::redoAvailable, on.action(u"mnuEditRedo"), &QAction::setEnabled);
    connect(&box(), &RichTextBox::selectionChanged, this, &TemplateForm::updateConditions);
    // The answer to the question before closing does not cover what is written later.
    connect(&box(), &RichTextBox::textChanged, this, [this] { m_isLeft = false; });
    connect(&box(), &RichTextBox::customContextMenuRequested, this, &TemplateForm::showMenu);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this,
            &TemplateForm::updateConditions);
}

void TemplateForm::updateConditions()
{
    m_actions->setCondition(TemplateWhen::Selection, box().selLength() > 0);
    m_actions->setCondition(TemplateWhen::PasteReady,
                            holdsText(QApplication::clipboard()->mimeData()));
}

void TemplateForm::showMenu(const QPoint &at)
{
    QMenu menu(this);
    for (const QStringView name :
         { u"mnuEditUndo", u"mnuEditRedo", u"", u"mnuEditCut", u"mnuEditCopy", u"mnuEditPaste",
           u"mnuEditDelete", u"mnuEditSelectAll", u"" }) {
        if (name.isEmpty()) {
            menu.addSeparator();
        } else {
            menu.addAction(m_actions->action(name));
        }
    }
    menu.addMenu(m_actions->menu(u"mnuStyles"));
    menu.exec(box().viewport()->mapToGlobal(at));
}

void TemplateForm::say(const QString &text)
{
    m_context.status.setText(text);
    m_ui->StatusBar1->showMessage(text);
}

void TemplateForm::AssignCurrentTexttoTempRTF()
{
    m_tempRTF = box().richText();
}

bool TemplateForm::HasTemplateTextChanged() const
{
    return differs(m_name, box().richText(), m_tempRTF);
}

void TemplateForm::showFile(const QString &path, std::unique_ptr<QTextDocument> document)
{
    m_path = path;
    m_name = nameOf(path);
    m_losses = {};
    m_lineEnds = {};
    box().adopt(std::move(document));
    if (box().document()->isEmpty()) {
        box().setCurrentCharFormat(toTextFormat(m_plain));
        // The toolkit takes the first look of an empty text for a step to undo.
        box().document()->clearUndoRedoStacks();
    }
    AssignCurrentTexttoTempRTF();
    setWindowTitle(u" Editing "_s + m_name);
    m_formatting->UpdateToolbarButtonStates();
}

bool TemplateForm::mayLeave(TemplateLeaving leaving)
{
    if (!HasTemplateTextChanged()) {
        return true;
    }
    const TemplateQuestion question = templateQuestion(leaving, m_name);
    const BoxButton answer =
        m_context.dialogs.box({ .title = question.title,
                                .text = question.text,
                                .icon = BoxIcon::Exclamation,
                                .buttons = { BoxButton::Yes, BoxButton::No, BoxButton::Cancel },
                                .defaultButton = BoxButton::Yes });
    if (answer != BoxButton::Yes) {
        return answer == BoxButton::No;
    }
    mnuFileSave_Click();
    if (HasTemplateTextChanged()) {
        m_context.dialogs.tell(u"Ooops!"_s, question.refusal, BoxIcon::Exclamation);
        return false;
    }
    return true;
}

bool TemplateForm::mayClose()
{
    m_isLeft = mayLeave(TemplateLeaving::Closing);
    return m_isLeft;
}

void TemplateForm::closeEvent(QCloseEvent *event)
{
    if (!m_isLeft && !mayClose()) {
        event->ignore();
        return;
    }
    SaveTemplateEditorOptions();
    QMainWindow::closeEvent(event);
}

bool TemplateForm::load(const QString &path)
{
    auto loaded = loadTemplate(m_context, this, path, m_plain);
    if (!loaded) {
        return false;
    }
    showFile(loaded->path, std::move(loaded->document));
    m_losses = loaded->file.losses;
    m_lineEnds = loaded->file.lineEnds;
    say(m_name + u" was opened successfully"_s);
    return true;
}

bool TemplateForm::OpenReadMe(const QString &path)
{
    return mayLeave(TemplateLeaving::Open) && load(path);
}

void TemplateForm::mnuFileNew_Click()
{
    if (mayLeave(TemplateLeaving::New)) {
        showFile(templatesFolder() + untitledTemplate.toString(), newTemplateDocument(m_plain));
        say(u"New file created"_s);
    }
}

void TemplateForm::mnuFileOpen_Click()
{
    if (!mayLeave(TemplateLeaving::Open)) {
        return;
    }
    const auto path = m_context.dialogs.openFile({ u"Select the file to open ..."_s,
                                                   templateOpenFilter(),
                                                   u"rtf"_s,
                                                   templatesFolder(),
                                                   {} });
    if (path) {
        load(*path);
    }
}

void TemplateForm::mnuFileSave_Click()
{
    if (isUntitled(m_name)) {
        mnuFileSaveAs_Click();
        return;
    }
    if (isReadOnlyFile(m_path)) {
        m_context.dialogs.tell(readOnlyTitle.toString(),
                               m_path
                                   + u" is read only. You'll need to save it elsewhere using the "
                                     "Save As routine. I'll run this for you now."_s,
                               BoxIcon::Exclamation);
        mnuFileSaveAs_Click();
        return;
    }
    if (mayLosePart()) {
        writeTo(m_path);
    }
}

bool TemplateForm::mayLosePart()
{
    if (!m_losses) {
        return true;
    }
    const BoxButton answer = m_context.dialogs.box(
        { .title = u"Some of it would be lost"_s,
          .text = m_name + u" has things that I can't keep: "_s + lossesInWords(m_losses)
              + u". If I save over it they are gone. A copy leaves the file as it is."_s,
          .icon = BoxIcon::Exclamation,
          .buttons = { BoxButton::Yes, BoxButton::No, BoxButton::Cancel },
          .defaultButton = BoxButton::Yes,
          .captions = { u"Save as a &copy"_s, u"Save &over it"_s, u"Cancel"_s } });
    if (answer == BoxButton::Yes) {
        saveAs(copyName(m_name));
    }
    return answer == BoxButton::No;
}

void TemplateForm::mnuFileSaveAs_Click()
{
    saveAs(m_name);
}

void TemplateForm::saveAs(const QString &suggestion)
{
    const auto chosen = m_context.dialogs.saveFile(
        { u"Save file as ..."_s, templateSaveFilter(), u"rtf"_s,
          isUntitled(m_name) ? templatesFolder() : folderOf(m_path), suggestion });
    if (!chosen) {
        return;
    }
    const QString existing = existingPath(*chosen);
    const QString path = existing.isEmpty() ? *chosen : existing;
    if (!mayOverwrite(m_context.dialogs, path) || (path == m_path && !mayLosePart())) {
        return;
    }
    if (writeTo(path)) {
        m_path = path;
        m_name = nameOf(path);
        setWindowTitle(u" Editing "_s + m_name);
    }
}

bool TemplateForm::writeTo(const QString &path)
{
    const RichText text = box().richText();
    if (const qsizetype stranger = firstUnsavable(path, text.text); stranger >= 0) {
        m_context.dialogs.tell(
            u"There's a letter in there that I can't write"_s,
            nameOf(path)
                + u" wasn't saved: a plain text file can't hold the character that I've selected "
                  "for you. Change it, or save the file as rich text (*.rtf)."_s,
            BoxIcon::Exclamation);
        box().select(int(stranger), 1);
        return false;
    }
    if (const auto done = writeFileAtomically(
            path, templateBytes(path, text, lineEndsNow(*box().document(), m_lineEnds)));
        !done) {
        tellNotSaved(m_context.dialogs, done.error());
        return false;
    }
    m_losses = {};
    AssignCurrentTexttoTempRTF();
    say(nameOf(path) + u" was saved successfully"_s);
    Q_EMIT fileWritten(path);
    return true;
}

void TemplateForm::mnuFileSetDefault_Click()
{
    if (isUntitled(m_name) || HasTemplateTextChanged()) {
        m_context.dialogs.tell(u"You need to save "_s + m_name
                                   + u" first before you can make it the default file."_s,
                               m_name + u" needs to be saved first buddy"_s);
        return;
    }
    m_context.settings.of<SharedSettings>().TextFilePath = m_path;
    const auto kept = saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                                   { &SharedSettings::TextFilePath });
    say(kept ? m_name + u" is the default file now"_s
             : u"The settings couldn't be written: "_s + kept.error().reason);
}

void TemplateForm::mnuFileOpenDefault_Click()
{
    const QString path = m_context.settings.of<SharedSettings>().TextFilePath;
    if (path.isEmpty()) {
        m_context.dialogs.tell(u"Have a beer instead"_s,
                               u"You don't have a default template to open. You can set one here "
                               "or in Preferences."_s);
        return;
    }
    if (OpenReadMe(path)) {
        say(u" Default file ("_s + path + u") was opened successfully. How about that then!"_s);
    }
}

void TemplateForm::mnuEditIniFile_Click()
{
    const QString path = m_context.paths.iniPath;
    if (!fileExists(path)) {
        m_context.dialogs.tell(u"Couldn't locate Zeph.ini"_s,
                               u"Hmmm...I couldn't find your ini file - I was looking for it "
                               "here: "_s
                                   + path,
                               BoxIcon::Exclamation);
        return;
    }
    if (mayLeave(TemplateLeaving::IniFile)) {
        load(path);
    }
}

PrintJob TemplateForm::job() const
{
    return { m_name, box().richText(), m_plain, box().tabStopDistance() };
}

void TemplateForm::exportPdf()
{
    exportAsPdf(m_context, m_printers, job(), folderOf(m_path));
    m_ui->StatusBar1->showMessage(m_context.status.text());
}

void TemplateForm::mnuFilePrint_Click()
{
    if (!tellIfNoPrinter(m_context, m_printers)) {
        askForPortrait(m_context, m_printers);
        printJob(m_context, m_printers, job());
        say(m_context.status.text());
    }
}

void TemplateForm::mnuFilePrintSelection_Click()
{
    if (!tellIfNoPrinter(m_context, m_printers)) {
        PrintJob part = job();
        part.text = part.text.mid(box().selStart(), box().selLength());
        printJob(m_context, m_printers, part);
        say(m_context.status.text());
    }
}

void TemplateForm::ColourTemplateText()
{
    RichText text = box().richText();
    if (text.text.isEmpty()) {
        say(u"There's no text to highlight."_s);
        return;
    }
    const auto &colours = m_context.settings.of<ColourSettings>();
    const bool isMacro = kindOfName(m_name) == DocumentKind::Macro;
    const auto passes = isMacro ? macroPasses() : joystickPasses();
    const ColourScheme scheme = isMacro ? colours.macroScheme() : colours.joystickScheme();
    qsizetype from = 0;
    RichTextChanges changes(std::move(text));
    for (const ColourRun &run : paint(plainTextOf(*box().document()), passes, scheme)) {
        changes.change(from, run.length,
                       [&run](CharFormat &format) { format.colour = run.colour; });
        from += run.length;
    }
    applyCharacterRuns(*box().document(), changes.take().characters);
    say(u"Done"_s);
}

QString TemplateForm::TemplateRichWordOver(const QPoint &at) const
{
    const QTextCursor nearest = box().cursorForPosition(at);
    const QRect place = box().cursorRect(nearest);
    if (at.y() < place.top() || at.y() > place.bottom()) {
        return {};
    }
    const int position = nearest.positionInBlock() - (at.x() < place.left() ? 1 : 0);
    return templateWordOver(nearest.block().text(), position);
}

bool TemplateForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseMove
        && m_context.settings.of<SharedSettings>().MacroWithMouse) {
        const QString word = TemplateRichWordOver(static_cast<QMouseEvent *>(event)->pos());
        if (std::exchange(m_wordUnderMouse, word) != word && !word.isEmpty()) {
            if (const auto keys = macroKeys(m_macros, word)) {
                say(*keys);
            }
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void TemplateForm::GetTemplateEditorOptions()
{
    auto &settings = m_context.settings.of<TemplateSettings>();
    // The problems are not told: with a value that cannot be read the toolbar is shown.
    (void)readSettings(m_context.settings, settingsFilesOf(m_context.paths), ownSettings());
    m_actions->action(u"mnuViewToolBar")->setChecked(!settings.HideAppsToolBar);
    m_ui->Toolbar1->setVisible(!settings.HideAppsToolBar);
    if (settings.TemplateWidthAtStartup > 0) {
        restorePlace(*this,
                     { pixelsFromTwips(settings.TemplateLeftAtStartup),
                       pixelsFromTwips(settings.TemplateTopAtStartup),
                       pixelsFromTwips(settings.TemplateWidthAtStartup),
                       pixelsFromTwips(settings.TemplateHeightAtStartup) });
    } else if (parentWidget()) {
        openBeside(*this, *parentWidget()->window());
    }
}

void TemplateForm::SaveTemplateEditorOptions()
{
    auto &settings = m_context.settings.of<TemplateSettings>();
    settings.HideAppsToolBar = !m_actions->action(u"mnuViewToolBar")->isChecked();
    const QRect place = normalPlace(*this);
    settings.TemplateTopAtStartup = twipsFromPixels(place.y());
    settings.TemplateLeftAtStartup = twipsFromPixels(place.x());
    settings.TemplateWidthAtStartup = twipsFromPixels(place.width());
    settings.TemplateHeightAtStartup = twipsFromPixels(place.height());
    (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths), ownSettings());
}

} // namespace zeph
