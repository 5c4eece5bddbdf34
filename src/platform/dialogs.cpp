// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/dialogs.h"

namespace zeph {

void Dialogs::tell(const QString &title, const QString &text, BoxIcon icon)
{
    box({ title, text, icon, { BoxButton::Ok }, BoxButton::Ok });
}

bool Dialogs::ask(const QString &title, const QString &text, BoxIcon icon)
{
    return box({ title, text, icon, { BoxButton::Yes, BoxButton::No }, BoxButton::No })
        == BoxButton::Yes;
}

} // namespace zeph
