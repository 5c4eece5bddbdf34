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

/// The favourites: a copy of them, which the fields change at every keystroke and which becomes
/// the menu's when the window closes.
class FavouritesPage : public PreferencesPage
{
    Q_OBJECT
public:
    FavouritesPage(const Context &context, FavouritesMenu &favourites, QWidget *parent = nullptr);
    ~FavouritesPage() override;

    void collect() override;
    /// Whether the files of the last run are opened again, which makes autoloading idle.
    void setRestores(bool restores);

private:
    void connectFields();
    void connectList();
    void browse(QLineEdit &field, DocumentKind kind);
    /// What the fields show becomes the selected favourite.
    void read();
    /// What has been typed so far is what the next keystroke is measured by.
    void settle();
    void change(const Favourites &favourites, qsizetype row);
    void UpdateFavouritesControls();
    void DisableFavouritesControls();
    void showAutoload();
    Favourite typed() const;

    const Context m_context;
    FavouritesMenu &m_menu;
    Favourites m_favourites;
    /// As they were before the field that is being typed into was touched.
    Favourites m_settled;
    bool m_isShowing = false;
    std::unique_ptr<Ui::FavouritesPage> m_ui;
    NamedList *m_list;
};

} // namespace zeph
