// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/files/layout_store.h"
#include "platform/context.h"

#include <QObject>
#include <QStringList>

class QWidget;

namespace zeph {

/// A layout that was opened: the sheet as it is now, texts included.
struct OpenedLayout {
    Sheet sheet;
    LayoutForm form;
};

/// The layout files of one sheet window: saving and opening with all that is asked and told, the
/// current layout, and the list of layouts used before. Sheets come and go as values; nothing is
/// half opened: without a result the sheet stays as it is.
class LayoutFiles : public QObject
{
    Q_OBJECT
public:
    /// Dialogs stand over the window, which owns this. Reads the list of layouts used before.
    LayoutFiles(const Context &context, SheetKind kind, QWidget *window);

    /// The current layout; empty until one is opened or saved.
    const QString &path() const { return m_path; }
    /// Layouts used before, most recently used first.
    const QStringList &recent() const { return m_recent; }
    /// Whether the sheet is as it was when it was last saved or opened. Positions that are opened
    /// leave the sheet's texts, and with them the sheet, as unsaved as they were.
    bool isSaved(const Sheet &sheet) const { return m_saved == sheet; }

    /// Saves under a name that the user enters. False when nothing was saved.
    bool SavePositions(const Sheet &sheet);
    bool SaveTextWithPositions(const Sheet &sheet);

    /// Opens the layout of that path, or without one asks the user for it.
    std::optional<OpenedLayout> OpenTextBoxPositions(const Sheet &open,
                                                     const QString &fromList = {});
    std::optional<OpenedLayout> OpenTextWithPositions(const Sheet &open,
                                                      const QString &fromList = {});
    /// Opens a layout used before (1-based), after an offer to save the sheet.
    std::optional<OpenedLayout> openRecent(int place, const Sheet &open);
    /// Opens the layout that the settings want with this kind of sheet, if there is one.
    std::optional<OpenedLayout> openAutomatic(const Sheet &open);

    /// Before the window closes: offers to save a sheet that is not saved. False to stay open.
    bool mayClose(const Sheet &sheet);
    /// Forgets the layouts used before.
    void mnuClearLayouts_Click();

Q_SIGNALS:
    /// What the status bar says.
    void told(const QString &status);
    void recentChanged();

private:
    bool save(LayoutForm form, const Sheet &sheet);
    QString askName(LayoutForm form);
    bool mayReplace(LayoutForm form, const QString &path);
    std::optional<OpenedLayout> open(LayoutForm form, const Sheet &open, const QString &fromList);
    bool offerToSave(const QString &question, const Sheet &sheet);
    void remember(const QString &path, std::optional<Sheet> saved);
    void GetPreviousLOFiles();
    void UpdatePrevLOMenuList();
    void writeRecent();

    Context m_context;
    SheetKind m_kind;
    QWidget *m_window;
    QString m_path;
    std::optional<Sheet> m_saved;
    QStringList m_recent;
};

} // namespace zeph
