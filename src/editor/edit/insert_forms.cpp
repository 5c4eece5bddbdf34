// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/insert_forms.h"

#include "documents/coloured_insert.h"
#include "documents/editor_view.h"
#include "editor/edit/insert_windows.h"
#include "editor/editor_settings.h"
#include "menus/menu_actions.h"
#include "platform/clock.h"
#include "platform/core/paths.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "settings/shared_settings.h"
#include "text/insert_blocks.h"

namespace zeph {

InsertForms::InsertForms(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts)
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuInsertTitle", [this] { mnuInsertTitle_Click(); });
    on.connectTo(u"mnuInsertHeading", [this] { mnuInsertHeading_Click(); });
    on.connectTo(u"mnuInsertRemStatement", [this] { mnuInsertRemStatement_Click(); });
    on.connectArray(u"mnuSlashArray"_s, [this](int i) { mnuSlashArray_Click(i); });
    on.connectTo(u"mnuSlashWindow", [this] { mnuSlashWindow_Click(); });
    on.connectTo(u"mnuInsertQuickTip", [this] { Q_EMIT helpOn(u"insert forms"_s); });
}

InsertForms::~InsertForms()
{
    delete m_form;
    delete m_slashWindow;
}

bool InsertForms::canOpen()
{
    return !(m_form && m_form->isVisible()) && !m_parts.view.documents().refuseProtected();
}

template <class Form> void InsertForms::open(Form *form, std::function<void(const Form &)> accepted)
{
    m_form = form;
    form->setAttribute(Qt::WA_DeleteOnClose);
    connect(
        form, &QDialog::accepted, this,
        guarded(m_context.dialogs, [form, accepted = std::move(accepted)] { accepted(*form); }));
    form->open();
}

void InsertForms::mnuInsertTitle_Click()
{
    if (!canOpen()) {
        return;
    }
    const TitleFields preset{ .fileName = m_parts.view.documents().selected().name(),
                              .person = GetPersonsName(),
                              .lastModified = stampText(m_context.clock.now()),
                              .controllers = u"Thrustmaster Cougar"_s };
    open<Title>(new Title(preset, m_parts.view.window()), [this](const Title &form) {
        const TitleFields fields = form.fields();
        SaveThePersonsName(fields.person);
        insertLines(titleBlock(fields));
    });
}

void InsertForms::mnuInsertHeading_Click()
{
    if (!canOpen()) {
        return;
    }
    const QStringList headings =
        linesOfListFile(m_context.paths.inApp(u"DefaultMacroHeadings.txt"));
    open<Heading>(new Heading(headings, m_parts.view.window()), [this](const Heading &form) {
        if (!form.text().isEmpty()) {
            insertLines(headingBlock(form.text()));
        }
    });
}

void InsertForms::mnuInsertRemStatement_Click()
{
    if (!canOpen()) {
        return;
    }
    auto *form = new SingleTextForm(m_context.settings.of<EditorSettings>().AddCRtoREM,
                                    m_parts.view.window());
    open<SingleTextForm>(form, [this](const SingleTextForm &filled) {
        SaveCRthang(filled.addsCarriageReturn());
        insertRem(filled.text(), filled.addsCarriageReturn());
    });
}

void InsertForms::insertLines(const QStringList &lines)
{
    ColouredInsert &insert = m_parts.insert;
    insert.BeginColInsert();
    insert.CheckAtLineBeginning();
    for (const QString &line : lines) {
        insert.InsertColouredStringNoSpace(line,
                                           m_context.settings.of<ColourSettings>().RemStatements);
        insert.InsertCarriageReturn();
    }
    insert.EndColInsert();
}

void InsertForms::insertRem(const QString &text, bool addCarriageReturn)
{
    const Document &document = m_parts.view.documents().selected();
    const int caret = document.selStart();
    const QChar before = caret > 0 ? document.content().characterAt(caret - 1) : QChar(u' ');
    ColouredInsert &insert = m_parts.insert;
    insert.TextToInsert = remStatement(text);
    if (!before.isSpace()) {
        // Rem starts a comment only if it is a word of its own.
        insert.TextToInsert.prepend(u' ');
    }
    insert.BeginColInsert();
    insert.InsertColouredString(insert.TextToInsert,
                                m_context.settings.of<ColourSettings>().RemStatements);
    if (addCarriageReturn) {
        insert.InsertCarriageReturn();
    }
    insert.EndColInsert();
}

void InsertForms::mnuSlashArray_Click(int Index)
{
    const language::Word &word = language::insertWords[size_t(Index)];
    const auto &colours = m_context.settings.of<ColourSettings>();
    ColouredInsert &insert = m_parts.insert;
    insert.TextToInsert = insertText(word, m_context.settings.of<EditorSettings>().DefaultDLYvalue);
    insert.AddSpaceToColouredText();
    insert.BeginColInsert();
    insert.InsertColouredString(insert.TextToInsert,
                                word.is(language::SlashRole) ? colours.SlashColour
                                                             : colours.RAWColour);
    insert.EndColInsert();
}

void InsertForms::mnuSlashWindow_Click()
{
    if (!m_slashWindow) {
        m_slashWindow =
            new SlashWindow(m_context.settings.of<EditorSettings>(), m_parts.view.window());
        connect(m_slashWindow, &SlashWindow::chosen, this,
                guarded(m_context.dialogs, [this](int index) {
                    mnuSlashArray_Click(index);
                    // The palette took the focus, but the pilot goes on typing in the text.
                    m_parts.view.window()->activateWindow();
                }));
    }
    m_slashWindow->show();
    m_slashWindow->raise();
}

void InsertForms::applySettings()
{
    if (m_slashWindow) {
        m_slashWindow->applySettings();
    }
}

QString InsertForms::GetPersonsName() const
{
    return personsNameOr(m_context.settings.of<SharedSettings>().ValidUser);
}

void InsertForms::SaveThePersonsName(const QString &name)
{
    m_context.settings.of<SharedSettings>().ValidUser = personsNameOr(name);
    keep({ &SharedSettings::ValidUser });
}

void InsertForms::SaveCRthang(bool addCarriageReturn)
{
    m_context.settings.of<EditorSettings>().AddCRtoREM = addCarriageReturn;
    keep({ &EditorSettings::AddCRtoREM });
}

void InsertForms::keep(std::initializer_list<SettingRef> fields)
{
    const auto written = saveSettings(m_context.settings, settingsFilesOf(m_context.paths), fields);
    if (!written) {
        m_context.status.setText(u"The settings couldn't be written: "_s + written.error().path
                                 + u": "_s + written.error().reason);
    }
}

} // namespace zeph
