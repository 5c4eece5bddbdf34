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

} // namespace

Box recoveryOffer(const RecoveredText &recovered, const QString &callsign)
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
    connect(&m_folder, &RecoveryFolder::hasWritten, this, &Recovery::settle);
    m_timer.callOnTimeout(this, guarded(context.dialogs, [this](auto &&...) { updateSoon(); }));
    parts.view.documents().forEach([this](Document &each) {
        connect(&each, &Document::edited, this, &Recovery::touched);
        // A text becomes the only one of its kind without an edit, too: when the file changes.
        connect(&each, &Document::stateChanged, this, &Recovery::touched);
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
    settle();
    removeUnmodified();
    for (const DocumentKind kind : bothKinds) {
        if (m_parts.view.documents().of(kind).isModified()) {
            keep(kind);
        }
    }
}

void Recovery::updateSoon()
{
    settle();
    removeUnmodified();
    std::vector<RecoveredText> texts;
    for (const DocumentKind kind : bothKinds) {
        if (auto text =
                m_parts.view.documents().of(kind).isModified() ? unkept(kind) : std::nullopt) {
            texts.push_back(*std::move(text));
        }
    }
    if (!texts.empty()) {
        m_folder.writeSoon([texts = std::move(texts)] { return texts; });
    }
}

void Recovery::settle()
{
    for (const RecoveryFolder::Written &written : m_folder.settle()) {
        note(written);
    }
}

void Recovery::removeUnmodified()
{
    for (const DocumentKind kind : bothKinds) {
        QString &kept = m_kept[size_t(kind)];
        if (!m_parts.view.documents().of(kind).isModified() && !kept.isNull()) {
            m_folder.remove(recoveredKind(kind));
            kept = QString();
        }
    }
}

std::optional<RecoveredText> Recovery::unkept(DocumentKind kind) const
{
    const Document &document = m_parts.view.documents().of(kind);
    const QString text = document.text();
    const QString &kept = m_kept[size_t(kind)];
    if (!kept.isNull() && kept == text) {
        return std::nullopt;
    }
    return RecoveredText{ recoveredKind(kind), document.path(), m_context.clock.now(),
                          text.isNull() ? u""_s : text };
}

void Recovery::keep(DocumentKind kind)
{
    if (auto text = unkept(kind)) {
        auto result = m_folder.write(*text);
        note({ *std::move(text), std::move(result) });
    }
}

void Recovery::note(const RecoveryFolder::Written &written)
{
    if (written.result) {
        m_kept[size_t(written.recovered.kind)] = written.recovered.text;
        return;
    }
    // Tries again later: the disk may have room by then, and the pilot may not press another key to
    // trigger it.
    m_timer.start();
    const FileError &error = written.result.error();
    if (!std::exchange(m_failureTold, true)) {
        m_context.status.setText(error.path + u" wasn't written, so better save often: "_s
                                 + error.reason);
    }
}

void Recovery::catchUp()
{
    settle();
    for (const DocumentKind kind : bothKinds) {
        if (!m_kept[size_t(kind)].isNull() && m_parts.view.documents().of(kind).isModified()) {
            keep(kind);
        }
    }
}

void Recovery::finish()
{
    m_timer.stop();
    settle();
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
            if (file.recovered.kind == RecoveredKind::Template) {
                continue; // the Template Editor's own guard offers it
            }
            bool &isTaken = taken[size_t(file.recovered.kind)];
            // The Editor has room for one text of each kind only; a second one goes to the backups.
            if (isOnDisk(file.recovered) || isInHand(file.recovered)
                || (!isTaken && offer(file.recovered, isTaken)) || keepAside(file.recovered)) {
                left.remove(file);
            }
        }
        tellDamaged(left);
        left.finish();
    }
}

void Recovery::tellDamaged(const LeftRecovery &left)
{
    for (const QString &path : left.damaged()) {
        m_context.dialogs.tell(
            u"I can't read that black box"_s,
            path
                + u" should hold a text that you hadn't saved when we crashed, "
                  "but it's damaged. I've left it where it is: have a look at it "
                  "with any text editor, and delete it when you're done."_s,
            BoxIcon::Exclamation);
    }
}

/// Whether the Editor already shows this text. A run that crashed while it recovered a text has
/// left it twice.
bool Recovery::isInHand(const RecoveredText &recovered) const
{
    const DocumentKind kind = documentKind(recovered.kind);
    const QString &kept = m_kept[size_t(kind)];
    return !kept.isNull() && kept == recovered.text
        && m_parts.view.documents().of(kind).path() == recovered.path;
}

/// Shows the text if the user wants it. True when it is safely kept again, so that the old file may
/// go.
bool Recovery::offer(const RecoveredText &recovered, bool &taken)
{
    if (m_context.dialogs.box(
            recoveryOffer(recovered, m_context.settings.of<SharedSettings>().PilotCallsign))
        != BoxButton::Yes) {
        return false;
    }
    taken = true;
    m_parts.opening.showRecovered(documentKind(recovered.kind), recovered.path, recovered.text);
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
