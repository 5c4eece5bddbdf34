// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_editor.h"

#include <QListWidget>
#include <QMultiHash>

class QComboBox;
class QStackedWidget;
class QVBoxLayout;

namespace zeph {

/// The macros under one heading, each with its tick. It emits what the user does with its entries.
class MacroMirrorList : public QListWidget
{
    Q_OBJECT
public:
    explicit MacroMirrorList(QWidget *parent);

    /// The entry at the list's cursor; empty when there is none.
    QString currentName() const;

Q_SIGNALS:
    /// An entry was clicked or reached by keys.
    void chosen(const QString &name);
    /// An entry was clicked while Shift was held.
    void findWanted(const QString &name);
    void insertWanted(const QString &name);
    void menuWanted(const QPoint &globalPosition);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    /// An empty list tells where macros come from.
    void paintEvent(QPaintEvent *event) override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override;

private:
    void choose(bool alsoFinds);
};

/// The Editor's macro list once more: the headings in Combo1, and a list for each, List1_0 and on.
/// Ticks are the Editor's; here they are only shown.
class MacroMirror : public QWidget
{
    Q_OBJECT
public:
    explicit MacroMirror(QWidget *parent = nullptr);

    void ClearAllForNewMacroFile();
    /// Shows these groups, and the one called "All" in front, or the heading that was in front
    /// before if it is still there.
    void CopyMacroList(const QList<MacroGroup> &groups);
    /// Shows a macro ticked or not, under all headings.
    void TickMacroList(const QString &macro, bool isUsed);
    /// Shows the ticks of these groups.
    void showTicks(const QList<MacroGroup> &groups);
    /// Puts the list's cursor on a macro of the list in front, if that has it.
    void select(const QString &macro);

    QComboBox &headings() { return *m_headings; }
    /// The list in front; null when there is none.
    MacroMirrorList *list() const;

Q_SIGNALS:
    void chosen(const QString &name);
    void findWanted(const QString &name);
    void insertWanted(const QString &name);
    void menuWanted(const QString &name, const QPoint &globalPosition);

private:
    MacroMirrorList *addList();

    QComboBox *m_headings;
    QStackedWidget *m_lists;
    QMultiHash<QString, QListWidgetItem *> m_items; ///< by name, lower-cased
};

} // namespace zeph
