// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/auto_save.h"

#include "documents/editor_view.h"
#include "editor/editor_settings.h"
#include "editor/files/file_saving.h"
#include "platform/dialogs.h"
#include "settings/settings.h"

#include <QScopedValueRollback>

#include <chrono>

namespace zeph {

AutoSave::AutoSave(const Context &context, EditorView &view, FileSaving &saving)
    : m_context(context), m_view(view), m_saving(saving), m_timer(&view)
{
    m_timer.setObjectName(u"Timer1"_s);
    m_timer.setInterval(std::chrono::minutes(1));
    m_timer.callOnTimeout(this, guarded(context.dialogs, [this](auto &&...) { Timer1_Timer(); }));
    view.documents().forEach([this](Document &each) {
        connect(&each, &Document::replaced, this, [this](Document::How how) {
            if (how == Document::How::Fresh) {
                restart();
            }
        });
    });
}

void AutoSave::restart()
{
    m_counter = 0;
    if (m_context.settings.of<EditorSettings>().AutoSaveEnabled) {
        m_timer.start();
    } else {
        m_timer.stop();
    }
}

void AutoSave::Timer1_Timer()
{
    if (++m_counter >= m_context.settings.of<EditorSettings>().AutoSaveTime) {
        m_counter = 0;
        AutoSaveFile();
    }
}

void AutoSave::AutoSaveFile()
{
    if (m_saves) {
        // The last autosave is still asking something in a box.
        return;
    }
    const QScopedValueRollback<bool> saves(m_saves, true);
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        Document &document = m_view.documents().of(kind);
        if (document.isModified() && !document.isRecovered()) {
            m_saving.AutoSaveText(document);
        }
    }
}

void AutoSave::EmergencySaveFiles()
{
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        m_view.documents().select(kind);
        m_saving.mnuFileSave_Click();
    }
    m_context.dialogs.tell(
        u"Zeph - Emergency file save procedure executed"_s,
        u"The save routine was called successfully I think, so you should be alright. However, I "
        "recommend you keep pressing the Yes button to try and get stable control back to Zeph. If "
        "you can get back into Zeph (it may take several presses of the Yes button) then you "
        "should be OK to continue."_s,
        BoxIcon::Exclamation);
}

} // namespace zeph
