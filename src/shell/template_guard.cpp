// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/template_guard.h"

#include "editor/files/recovery.h"
#include "platform/clock.h"
#include "platform/core/paths.h"
#include "platform/core/rtf.h"
#include "platform/dialogs.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/status_line.h"
#include "platform/tool_windows.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "templates/templateform.h"
#include "text/text_lines.h"

namespace zeph {

namespace {

RichTextBox &textOf(const TemplateForm &form)
{
    return *form.findChild<RichTextBox *>(u"TemplateText"_s);
}

} // namespace

TemplateGuard::TemplateGuard(const Context &context, ToolWindows &windows, QObject *parent)
    : QObject(parent), m_context(context), m_windows(windows),
      m_folder(context.paths.inApp(u"Recovery")), m_backups(context)
{
    m_timer.setObjectName(u"TemplateRecoveryTimer"_s);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(Recovery::intervalMs);
    m_timer.callOnTimeout(this, guarded(context.dialogs, [this](auto &&...) { update(false); }));
    connect(&m_folder, &RecoveryFolder::hasWritten, this, &TemplateGuard::settle);
    windows.whenLoaded<TemplateForm>(this, [this](TemplateForm &form) { watch(form); });
}

void TemplateGuard::watch(TemplateForm &form)
{
    m_form = &form;
    connect(&textOf(form), &RichTextBox::textChanged, this, [this] {
        if (!m_timer.isActive()) {
            m_timer.start();
        }
    });
    connect(&form, &TemplateForm::fileWritten, this,
            guarded(m_context.dialogs, [this](auto &&...) { update(true); }));
    connect(&form, &QObject::destroyed, this, [this] {
        m_timer.stop();
        settle();
        forget();
    });
}

void TemplateGuard::update(bool waitsForDisk)
{
    settle();
    if (!m_form || !m_form->HasTemplateTextChanged()) {
        forget();
        return;
    }
    const RichText text = textOf(*m_form).richText();
    if (m_writtenLast == text) {
        return;
    }
    m_writtenLast = text;
    const auto make = [text, path = m_form->path(), now = m_context.clock.now()] {
        return RecoveredText{ RecoveredKind::Template, path, now,
                              QString::fromLatin1(writeRtf(text)) };
    };
    if (waitsForDisk) {
        RecoveredText recovered = make();
        auto result = m_folder.write(recovered);
        note({ std::move(recovered), std::move(result) });
    } else {
        m_folder.writeSoon([make] { return std::vector{ make() }; });
    }
}

void TemplateGuard::settle()
{
    for (const RecoveryFolder::Written &written : m_folder.settle()) {
        note(written);
    }
}

void TemplateGuard::note(const RecoveryFolder::Written &written)
{
    if (written.result) {
        m_kept = written.recovered.text;
    } else {
        m_writtenLast = std::nullopt;
        m_timer.start();
        m_context.status.setText(written.result.error().path
                                 + u" wasn't written, so better save often: "_s
                                 + written.result.error().reason);
    }
}

void TemplateGuard::forget()
{
    if (!m_kept.isNull()) {
        m_folder.remove(RecoveredKind::Template);
        m_kept = QString();
        m_writtenLast = std::nullopt;
    }
}

void TemplateGuard::finish()
{
    m_timer.stop();
    settle();
    m_folder.finish();
}

void TemplateGuard::offerLeft()
{
    for (LeftRecovery &left : leftRecoveries(m_context.paths.inApp(u"Recovery"))) {
        for (const LeftRecovery::File &file : left.files()) {
            const bool isOurs = file.recovered.kind == RecoveredKind::Template;
            if (isOurs && (offer(file.recovered) || keepAside(file.recovered))) {
                left.remove(file);
            }
        }
        left.finish();
    }
}

/// Shows the text if the user wants it. It is kept on disk again before the old file goes.
bool TemplateGuard::offer(const RecoveredText &recovered)
{
    const auto text = readRtf(recovered.text.toLatin1());
    if (!text || (m_form && m_form->HasTemplateTextChanged())
        || m_context.dialogs.box(
               recoveryOffer(recovered, m_context.settings.of<SharedSettings>().PilotCallsign))
            != BoxButton::Yes) {
        return false;
    }
    auto &form = *m_windows.open<TemplateForm>();
    // Without its file opened, the next save would write the text into another one.
    if (fileExists(recovered.path) && !form.OpenReadMe(recovered.path)) {
        return false;
    }
    // Over the file's text, so that it is unsaved.
    textOf(form).setRichText(*text);
    update(true);
    return !m_kept.isNull();
}

bool TemplateGuard::keepAside(const RecoveredText &recovered)
{
    const QString name = nameOf(recovered.path);
    const QString rtf = u".rtf"_s;
    const auto kept =
        m_backups.keepAside(name.endsWith(rtf, Qt::CaseInsensitive) ? name : name + rtf,
                            recovered.text.toLatin1(), recovered.written);
    m_context.status.setText(kept ? u"Your text is in "_s + *kept
                                  : kept.error().path + u" wasn't written: "_s
                                     + kept.error().reason);
    return kept.has_value();
}

} // namespace zeph
