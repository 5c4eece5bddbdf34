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

/// Opens a favourite's files in the Editor, and ticks the macros used when both are there.
void openFavouriteInEditor(const Favourite &favourite, Editor &editor, Dialogs &dialogs);

/// The favourites and their menu.
class FavouritesMenu : public QObject
{
    Q_OBJECT
public:
    /// Reads the favourites.
    FavouritesMenu(const Context &context, Editor &editor);

    const Favourites &favourites() const { return m_favourites; }
    /// Puts favourites on the menu, one after the other, each to the front.
    void add(const QList<Favourite> &favourites);
    /// Takes the favourites as they now are; saving them is a step of its own.
    void set(const Favourites &favourites);
    void save();

private:
    void mnuFavouritesAddCurrent_Click();
    void mnuFavArray_Click(int place);
    void changed();
    /// The path that a favourite gets for a document; no value when the user wants to save first.
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
