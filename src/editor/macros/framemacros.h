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

/// The list in the macro frame: says in signals what is done to its entries.
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
    /// An entry was pressed, or reached by keys.
    void chosen(const QString &name);
    /// An entry was pressed with Shift held, or a key let go with Shift held.
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

/// The frame right of the texts: headings, macros and the strip at which its width is dragged.
class FrameMacros : public QFrame
{
    Q_OBJECT
public:
    /// The width in pixels below which it cannot be dragged.
    static int narrowest();

    explicit FrameMacros(MacroListModel &model, QWidget *parent = nullptr);

    MacroListView &list() { return *m_list; }
    QComboBox &headings() { return *m_headings; }
    /// Fills the headings and shows the first, without a word to anybody.
    void setHeadings(const QStringList &headings);
    void setCurrentHeading(int index);

    /// Colours and width.
    void setColours(const ColourSettings &colours);
    /// Pixels; a width below the narrowest takes that.
    void setWidth(int width);

Q_SIGNALS:
    /// The pilot chose a heading.
    void headingChosen(const QString &heading);
    /// The left edge was dragged and let go: the new width in pixels.
    void widthChosen(int width);

private:
    void drag(int globalX);

    QComboBox *m_headings = nullptr;
    MacroListView *m_list = nullptr;
    int m_dragStart = 0;
    int m_widthAtStart = 0;
};

} // namespace zeph
