// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/favourites_menu.h"

#include "documents/document_settings.h"
#include "documents/foreign_keyboard.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "editor/files/file_opening.h"
#include "menus/menu_actions.h"
#include "platform/core/text1252.h"
#include "platform/dialogs.h"
#include "settings/settings.h"
#include "ui_enterfavouritename.h"

#include <QAction>
#include <QMenu>

namespace zeph {

void openFavouriteInEditor(const Favourite &favourite, Editor &editor, Dialogs &dialogs)
{
    const bool both = openFavourite(favourite, dialogs, [&editor](const QString &path) {
        editor.opening().OpenFavouriteFile(path);
        const Document &document =
            kindOfName(path) == DocumentKind::Macro ? editor.macro() : editor.joystick();
        // The user may have declined to replace an unsaved text.
        return document.path() == path && !document.isModified();
    });
    if (both) {
        editor.actions().action(u"mnuMacrosIdentify")->trigger();
    }
}

FavouritesMenu::FavouritesMenu(const Context &context, Editor &editor)
    : QObject(&editor), m_context(context), m_editor(editor), m_store(context.paths.iniPath),
      m_favourites(readFavourites(m_store)),
      m_menu(new MenuArray(context.dialogs, *editor.actions().menu(u"mnuFavourites"), nullptr,
                           u"mnuFavArray"_s, [this](int place) { mnuFavArray_Click(place); }))
{
    MenuActions &actions = editor.actions();
    actions.connectTo(u"mnuFavouritesAddCurrent", [this] { mnuFavouritesAddCurrent_Click(); });
    actions.connectTo(u"mnuSortFavourites", [this] {
        SortFavourites(m_favourites);
        save();
        changed();
    });
    changed();
}

void FavouritesMenu::add(const QList<Favourite> &favourites)
{
    for (const Favourite &favourite : favourites) {
        updateFavourites(m_favourites, favourite);
    }
    save();
    changed();
}

void FavouritesMenu::set(const Favourites &favourites)
{
    m_favourites = favourites;
    changed();
}

void FavouritesMenu::save()
{
    // A failed write is not told: the list is right for this run at least.
    (void)writeFavourites(m_store, m_favourites);
}

void FavouritesMenu::mnuFavArray_Click(int place)
{
    // A copy: opening a file may ask questions, and the list may change meanwhile.
    const Favourite favourite = m_favourites.list.value(place - 1);
    openFavouriteInEditor(favourite, m_editor, m_context.dialogs);
}

void FavouritesMenu::mnuFavouritesAddCurrent_Click()
{
    const auto joystick = pathFor(m_editor.joystick().path(), u"joystick"_s, u"macro"_s);
    if (!joystick) {
        return;
    }
    const auto macro = pathFor(m_editor.macro().path(), u"macro"_s, u"joystick"_s);
    if (!macro) {
        return;
    }
    const QString name = askName();
    if (!name.isEmpty()) {
        add({ { name, *joystick, *macro } });
    }
}

std::optional<QString> FavouritesMenu::pathFor(const QString &path, const QString &kind,
                                               const QString &other)
{
    if (fileExists(path)) {
        return path;
    }
    const bool without = m_context.dialogs.ask(
        u"Do you want me to create a Favourite without your current "_s + kind + u" file?"_s,
        u"Your "_s + kind
            + u" file hasn't been saved as yet.\n\nIf you press No, you can save it first and then "
              "add both files to your Favourites. If you press Yes, I'll make a Favourite of the "_s
            + other + u" file alone."_s);
    return without ? std::optional(noFavouriteFile.toString()) : std::nullopt;
}

QString FavouritesMenu::askName()
{
    EnterFavouritename window(&m_editor);
    new ForeignKeyBSupport(m_context.keyboard, m_context.settings.of<DocumentSettings>(), &window);
    return window.exec() == QDialog::Accepted ? window.name() : QString();
}

void FavouritesMenu::changed()
{
    QStringList names;
    for (const Favourite &favourite : m_favourites.list) {
        names.append(favourite.name);
    }
    m_menu->setCaptions(names);
    m_editor.action(u"mnuSortFavourites")->setVisible(!names.isEmpty());
    m_editor.action(u"mnuFavouritesDivider")->setVisible(!names.isEmpty());
}

EnterFavouritename::EnterFavouritename(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::EnterFavouritename>())
{
    m_ui->setupUi(this);
    // A name that the store cannot hold would be lost at the next start.
    connect(m_ui->TextFavouriteName, &QLineEdit::textChanged, this,
            [this](const QString &text) { m_ui->cmdOK->setEnabled(firstNot1252(text) < 0); });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &EnterFavouritename::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &EnterFavouritename::reject);
}

EnterFavouritename::~EnterFavouritename() = default;

QString EnterFavouritename::name() const
{
    return m_ui->TextFavouriteName->text().trimmed();
}

} // namespace zeph
