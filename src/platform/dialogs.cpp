// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/dialogs.h"

#include "platform/core/base.h"
#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include <QScopedValueRollback>
#include <exception>

namespace zeph {

void Dialogs::tell(const QString &title, const QString &text, BoxIcon icon)
{
    box({ .title = title, .text = text, .icon = icon });
}

bool Dialogs::ask(const QString &title, const QString &text, BoxIcon icon)
{
    return box({ .title = title,
                 .text = text,
                 .icon = icon,
                 .buttons = { BoxButton::Yes, BoxButton::No },
                 .defaultButton = BoxButton::No })
        == BoxButton::Yes;
}

bool mayOverwrite(Dialogs &dialogs, const QString &path)
{
    if (!fileExists(path)) {
        return true;
    }
    if (!dialogs.ask(u"OK to overwrite exisiting file?"_s,
                     nameOf(path) + u" already exists. Do you want me to overwrite this file?"_s)) {
        return false;
    }
    if (isReadOnlyFile(path)) {
        dialogs.tell(readOnlyTitle.toString(),
                     path
                         + u" is read only. Please save the file with a different name or "
                           "location."_s,
                     BoxIcon::Exclamation);
        return false;
    }
    return true;
}

void tellNotSaved(Dialogs &dialogs, const FileError &error)
{
    dialogs.tell(u"I couldn't save your file buddy"_s,
                 error.path
                     + u" wasn't saved, and what was there before is untouched. The system says: "_s
                     + error.reason,
                 BoxIcon::Stop);
}

void tellEscaped(Dialogs &dialogs, const QString &reason)
{
    dialogs.box(
        { .title = u"Zeph"_s,
          .text = u"Oops! Something has gone wrong here, and I have to admit that I didn't see "
                  u"it coming. This is all I know about it:\n\n"_s
              + reason,
          .icon = BoxIcon::Exclamation });
}

bool FallGuard::run(const std::function<bool()> &handler)
{
    try {
        return handler();
    } catch (const std::exception &error) {
        fall(QString::fromLocal8Bit(error.what()));
    } catch (...) {
        fall(u"Unknown failure"_s);
    }
    return true;
}

void FallGuard::fall(const QString &reason)
{
    if (m_falling) {
        return;
    }
    const QScopedValueRollback<bool> falling(m_falling, true);
    try {
        if (dialogs) {
            tellEscaped(*dialogs, reason);
        }
        if (lastResort) {
            lastResort();
        }
    } catch (...) {
        // There is nothing left to try; the program goes on as well as it can.
    }
}

SafeApplication::SafeApplication(int &argc, char **argv) : QApplication(argc, argv) { }

bool SafeApplication::notify(QObject *receiver, QEvent *event)
{
    return guard.run([this, receiver, event] { return QApplication::notify(receiver, event); });
}

} // namespace zeph
