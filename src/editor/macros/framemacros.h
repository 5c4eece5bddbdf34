// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QFrame>
#include <QListView>

class QComboBox;

namespace zeph {

class MacroListModel;
struct ColourSettings;

/// The list in the macro frame. It emits what the user does with its entries and changes nothing
/// itself.
class MacroListView : public QListView
{
    Q_OBJECT
public:
    explicit MacroListView(MacroListModel &model, QWidget *parent = nullptr);

    /// The entry under the list's cursor; empty when there is none.
    QString currentName() const;
    /// The entry that is selected; empty when none is.
    QString selectedName() const;
    /// Selects the first entry with that name, if there is one.
    void select(const QString &name);
    /// Selects the first entry. False in an empty list.
    bool selectFirst();

Q_SIGNALS:
    /// An entry was clicked or reached by keys.
    void chosen(const QString &name);
    /// An entry was clicked, or a key released, while Shift was held.
    void findWanted();
    void insertWanted(const QString &name);
    void popUpWanted(const QPoint &globalPosition);
    void dragStarted();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    MacroListModel &m_model;
    int m_pressedKey = 0;
};

/// The frame on the right of the texts: headings, macros and a strip by which its width is dragged.
class FrameMacros : public QFrame
{
    Q_OBJECT
public:
    /// The least width in pixels that dragging can give it.
    static int narrowest();

    explicit FrameMacros(MacroListModel &model, QWidget *parent = nullptr);

    MacroListView &list() { return *m_list; }
    QComboBox &headings() { return *m_headings; }
    /// Fills the headings and shows the first, without emitting headingChosen().
    void setHeadings(const QStringList &headings);
    void setCurrentHeading(int index);

    void setColours(const ColourSettings &colours);
    /// In pixels; a smaller width than narrowest() is raised to that.
    void setWidth(int width);

Q_SIGNALS:
    /// The pilot chose a heading.
    void headingChosen(const QString &heading);
    /// The left edge was dragged and released; the new width in pixels.
    void widthChosen(int width);

private:
    void drag(int globalX);

    QComboBox *m_headings = nullptr;
    MacroListView *m_list = nullptr;
    int m_dragStart = 0;
    int m_widthAtStart = 0;
};

} // namespace zeph
