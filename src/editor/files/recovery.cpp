// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/recovery.h"

#include "documents/editor_view.h"
#include "editor/files/file_opening.h"
#include "platform/clock.h"
#include "platform/core/text1252.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "text/insert_blocks.h"
#include "text/text_lines.h"

#include <QFileInfo>

#include <utility>

namespace zeph {

namespace {

constexpr DocumentKind bothKinds[] = { DocumentKind::Joystick, DocumentKind::Macro };

/// The bytes of a text for the backup folder: Windows-1252 as in its own file or, if that lacks one
/// of its characters, UTF-8.
QByteArray bytesOf(const QString &text)
{
    return firstNot1252(text) < 0 ? documentBytes(text) : text.toUtf8();
}

bool isOnDisk(const RecoveredText &recovered)
{
    const auto bytes = readWholeFile(recovered.path);
    return bytes && documentText(*bytes) == recovered.text;
}

Box offerBox(const RecoveredText &recovered, const QString &callsign)
{
    const QFileInfo file(existingPath(recovered.path));
    const QString onDisk = file.isFile()
        ? u"The file on your disk is of "_s + stampText(file.lastModified()) + u'.'
        : u"There's no such file on your disk."_s;
    return { .title = u"Look what I found, "_s + callsign,
             .text = u"It seems that we crashed last time before you could save "_s + recovered.path
                 + u". Luckily I had pulled the black box out just before.\n\n"_s
                 + u"My copy of your text is of "_s + stampText(recovered.written) + u".\n"_s
                 + onDisk
                 + u"\n\nWould you like my copy in the Editor? Nothing on your disk changes until "
                   "you save it. If you'd rather not, I'll put it into your backup folder, just "
                   "in case."_s,
             .icon = BoxIcon::Question,
             .buttons = { BoxButton::Yes, BoxButton::No },
             .defaultButton = BoxButton::Yes };
}

} // namespace

Recovery::Recovery(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts), m_folder(context.paths.inApp(u"Recovery")),
      m_backups(context), m_timer(&parts.view)
{
    m_timer.setObjectName(u"RecoveryTimer"_s);
    m_timer.setSingleShot(true);
    // A coarse timer may fire some hundred milliseconds late, and the letters typed meanwhile would
    // be lost.
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(intervalMs);
    m_timer.callOnTimeout(this, guarded(context.dialogs, [this](auto &&...) { update(); }));
    parts.view.documents().forEach([this](Document &each) {
        connect(&each, &Document::edited, this, &Recovery::touched);
        connect(&each, &Document::replaced, this, [this](Document::How how) {
            if (how == Document::How::Undone) {
                touched();
            } else {
                update();
            }
        });
        connect(&each, &Document::aboutToBeWritten, this, &Recovery::catchUp);
        connect(&each, &Document::written, this, &Recovery::update);
    });
}

void Recovery::touched()
{
    // A key does not restart the timer, so that the text of somebody who types without a pause is
    // kept too.
    if (!m_timer.isActive()) {
        m_timer.start();
    }
}

void Recovery::update()
{
    for (const DocumentKind kind : bothKinds) {
        QString &kept = m_kept[size_t(kind)];
        if (m_parts.view.documents().of(kind).isModified()) {
            keep(kind);
        } else if (!kept.isNull()) {
            m_folder.remove(kind);
            kept = QString();
        }
    }
}

void Recovery::keep(DocumentKind kind)
{
    const Document &document = m_parts.view.documents().of(kind);
    const QString text = document.text();
    QString &kept = m_kept[size_t(kind)];
    if (!kept.isNull() && kept == text) {
        return;
    }
    const auto written = m_folder.write({ kind, document.path(), m_context.clock.now(), text });
    if (written) {
        kept = text.isNull() ? u""_s : text;
        return;
    }
    // Tries again later: the disk may have room by then, and the pilot may not press another key to
    // trigger it.
    m_timer.start();
    if (!std::exchange(m_failureTold, true)) {
        m_context.status.setText(written.error().path + u" wasn't written, so better save often: "_s
                                 + written.error().reason);
    }
}

void Recovery::catchUp()
{
    for (const DocumentKind kind : bothKinds) {
        if (!m_kept[size_t(kind)].isNull() && m_parts.view.documents().of(kind).isModified()) {
            keep(kind);
        }
    }
}

void Recovery::finish()
{
    m_timer.stop();
    m_kept = {};
    m_folder.finish();
}

void Recovery::offerLeft()
{
    std::array<bool, 2> taken{};
    const MayTakeOver mayTakeOver =
        askToTakeOver(m_context.dialogs, u"Unsaved texts in my folder \u201CRecovery\u201D are"_s);
    for (LeftRecovery &left : leftRecoveries(m_context.paths.inApp(u"Recovery"), mayTakeOver)) {
        for (const LeftRecovery::File &file : left.files()) {
            bool &isTaken = taken[size_t(file.recovered.kind)];
            // The Editor has room for one text of each kind only; a second one goes to the backups.
            if (isOnDisk(file.recovered) || isInHand(file.recovered)
                || (!isTaken && offer(file.recovered, isTaken)) || keepAside(file.recovered)) {
                left.remove(file);
            }
        }
        left.finish();
    }
}

/// Whether the Editor already shows this text. A run that crashed while it recovered a text has
/// left it twice.
bool Recovery::isInHand(const RecoveredText &recovered) const
{
    const QString &kept = m_kept[size_t(recovered.kind)];
    return !kept.isNull() && kept == recovered.text
        && m_parts.view.documents().of(recovered.kind).path() == recovered.path;
}

/// Shows the text if the user wants it. True when it is safely kept again, so that the old file may
/// go.
bool Recovery::offer(const RecoveredText &recovered, bool &taken)
{
    if (m_context.dialogs.box(
            offerBox(recovered, m_context.settings.of<SharedSettings>().PilotCallsign))
        != BoxButton::Yes) {
        return false;
    }
    taken = true;
    m_parts.opening.showRecovered(recovered.kind, recovered.path, recovered.text);
    update();
    return !m_kept[size_t(recovered.kind)].isNull();
}

bool Recovery::keepAside(const RecoveredText &recovered)
{
    const auto kept = m_backups.keepAside(tabCaption(nameOf(recovered.path)),
                                          bytesOf(recovered.text), recovered.written);
    m_context.status.setText(kept ? u"Your text is in "_s + *kept
                                  : kept.error().path + u" wasn't written: "_s
                                     + kept.error().reason);
    return kept.has_value();
}

} // namespace zeph
