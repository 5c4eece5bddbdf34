// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lists/favourites.h"
#include "platform/context.h"
#include "platform/core/base.h"

#include <QDialog>
#include <QObject>
#include <memory>

namespace zeph {

class Editor;
class MenuArray;

/// Opens a favourite's files in the Editor and, if both were opened, ticks the macros used.
void openFavouriteInEditor(const Favourite &favourite, Editor &editor, Dialogs &dialogs);

/// Owns the favourites and shows them on their menu.
class FavouritesMenu : public QObject
{
    Q_OBJECT
public:
    /// Reads the favourites from the settings store and shows them.
    FavouritesMenu(const Context &context, Editor &editor);

    const Favourites &favourites() const { return m_favourites; }
    /// Adds favourites one after the other, each in front of the list.
    void add(const QList<Favourite> &favourites);
    /// Replaces the favourites. Does not store them: that is save().
    void set(const Favourites &favourites);
    void save();

private:
    void mnuFavouritesAddCurrent_Click();
    void mnuFavArray_Click(int place);
    void changed();
    /// The path for a document of a new favourite; no value when the user wants to save the file
    /// first.
    std::optional<QString> pathFor(const QString &path, const QString &kind, const QString &other);
    QString askName();

    Context m_context;
    Editor &m_editor;
    ProfileFile m_store;
    Favourites m_favourites;
    MenuArray *m_menu;
};

namespace Ui {
class EnterFavouritename;
}

/// Asks for a favourite's name. An empty name means the same as Cancel.
class EnterFavouritename : public QDialog
{
    Q_OBJECT
public:
    explicit EnterFavouritename(QWidget *parent = nullptr);
    ~EnterFavouritename() override;

    QString name() const;

private:
    std::unique_ptr<Ui::EnterFavouritename> m_ui;
};

} // namespace zeph
