// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_desk.h"

#include "platform/status_line.h"
#include "settings/settings_files.h"

#include <QMainWindow>
#include <QStatusBar>

namespace zeph {

void SheetDesk::say(const QString &text) const
{
    context.status.setText(text);
    window.statusBar()->showMessage(text);
}

LayoutsSettings &SheetDesk::settings() const
{
    return context.settings.of<LayoutsSettings>();
}

void SheetDesk::keep(std::initializer_list<SettingRef> wanted) const
{
    if (const auto kept = saveSettings(context.settings, settingsFilesOf(context.paths), wanted);
        !kept) {
        tellNotKept(context.status, kept.error());
    }
}

CharFormat SheetDesk::plain() const
{
    return plainOf(settings());
}

CharFormat plainOf(const LayoutsSettings &settings)
{
    return { .family = settings.LOTextFont,
             .pointSize = settings.LOTextFontSize,
             .bold = settings.LOTextFontBold,
             .colour = ColorRef(0) };
}

void SheetDesk::changeSelected(const std::function<void(LayoutTextBox &)> &change) const
{
    if (model.selected() >= 0) {
        Sheet sheet = model.sheet();
        change(sheet.boxes[size_t(model.selected())]);
        model.change(std::move(sheet));
    }
}

void SheetDesk::changeShown(const std::function<void(LayoutTextBox &)> &change) const
{
    Sheet sheet = model.sheet();
    for (LayoutTextBox &box : sheet.boxes) {
        if (box.Visible) {
            change(box);
        }
    }
    model.change(std::move(sheet));
}

} // namespace zeph
