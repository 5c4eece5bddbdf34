// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"
#include "lists/favourites.h"
#include "platform/context.h"
#include "preferences/preferences_page.h"

#include <memory>

class QLineEdit;

namespace zeph {

class FavouritesMenu;
class NamedList;

namespace Ui {
class FavouritesPage;
}

/// Edits a copy of the favourites at every keystroke; the copy goes to the menu when the window
/// closes.
class FavouritesPage : public PreferencesPage
{
    Q_OBJECT
public:
    FavouritesPage(const Context &context, FavouritesMenu &favourites, QWidget *parent = nullptr);
    ~FavouritesPage() override;

    void collect() override;
    /// Tells whether the files of the last run are reopened, in which case autoload does nothing.
    void setRestores(bool restores);

private:
    void connectFields();
    void connectList();
    void browse(QLineEdit &field, DocumentKind kind);
    /// Takes the fields over into the selected favourite.
    void read();
    /// Makes the present list the starting point of further typing.
    void settle();
    void change(const Favourites &favourites, qsizetype row);
    void UpdateFavouritesControls();
    void DisableFavouritesControls();
    void showAutoload();
    Favourite typed() const;

    const Context m_context;
    FavouritesMenu &m_menu;
    Favourites m_favourites;
    /// The list before the typing in the present field.
    Favourites m_settled;
    bool m_isShowing = false;
    std::unique_ptr<Ui::FavouritesPage> m_ui;
    NamedList *m_list;
};

} // namespace zeph
