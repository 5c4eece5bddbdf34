// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/teaching_text.h"

#include <QTextBrowser>

namespace zeph {

void showTeaching(QTextBrowser &browser, const Paths &paths, QStringView file)
{
    const QString expected = withClosingSeparator(paths.inApp(u"Wizards")).append(file);
    const QString path = existingPath(expected);
    if (path.isEmpty()) {
        browser.setPlainText(u"The text of this page should be here: "_s + expected);
        return;
    }
    browser.setSource(QUrl::fromLocalFile(path));
}

} // namespace zeph
