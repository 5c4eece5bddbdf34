// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/favouritespage.h"

#include "editor/editor_settings.h"
#include "lists/favourites_menu.h"
#include "platform/core/profile_list.h"
#include "platform/dialogs.h"
#include "platform/field_text.h"
#include "preferences/list_rules.h"
#include "preferences/namedlist.h"
#include "settings/settings.h"
#include "ui_favouritespage.h"

#include <QScopedValueRollback>

namespace zeph {

namespace {

constexpr NamedListTexts listTexts = {
    { u"ListFavourites", u"&Your favourites:",
      u"Your pairs of files, as the Favourites menu shows them. The one in bold is the default for "
      u"autoload" },
    { u"cmdFavouritesAdd", u"Add &new",
      u"Puts a new favourite on top, with the files that the fields show; 50 are the most" },
    { u"cmdFavouritesRemove", u"&Remove",
      u"Takes the selected favourite off the list; the Delete key does it too. Your files stay" },
    { u"cmdFavouritesSort", u"&Sort", u"Sorts the favourites by their names" },
};

} // namespace

FavouritesPage::FavouritesPage(const Context &context, FavouritesMenu &favourites, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_menu(favourites),
      m_favourites(favourites.favourites()), m_settled(m_favourites),
      m_ui(std::make_unique<Ui::FavouritesPage>()), m_list(new NamedList(listTexts, this))
{
    m_ui->setupUi(this);
    m_ui->layoutPage->insertWidget(0, m_list, 1);
    m_ui->FavLoadOnStart->setChecked(m_favourites.loadOnStart);
    setRestores(context.settings.of<EditorSettings>().RestoreStatus);
    change(m_favourites, m_favourites.list.isEmpty() ? -1 : 0);
    connectFields();
    connectList();
}

FavouritesPage::~FavouritesPage() = default;

void FavouritesPage::connectFields()
{
    for (const QLineEdit *field : { m_ui->FavName, m_ui->FavJFPath, m_ui->FavMFPath }) {
        connect(field, &QLineEdit::textChanged, this, &FavouritesPage::read);
        connect(field, &QLineEdit::editingFinished, this, &FavouritesPage::settle);
    }
    connect(m_ui->cmdBrowseFavJF, &QPushButton::clicked, this,
            guarded(m_context.dialogs,
                    [this](bool) { browse(*m_ui->FavJFPath, DocumentKind::Joystick); }));
    connect(m_ui->cmdBrowseFavMF, &QPushButton::clicked, this,
            guarded(m_context.dialogs,
                    [this](bool) { browse(*m_ui->FavMFPath, DocumentKind::Macro); }));
    connect(m_ui->FavLoadOnStart, &QCheckBox::toggled, this, [this](bool on) {
        m_favourites.loadOnStart = on;
        m_settled.loadOnStart = on;
    });
    connect(m_ui->cmdMakeDefault, &QPushButton::clicked, this,
            [this] { change(withDefault(m_favourites, m_list->row()), m_list->row()); });
}

void FavouritesPage::connectList()
{
    connect(m_list, &NamedList::chosen, this, &FavouritesPage::settle);
    connect(m_list, &NamedList::addAsked, this, [this] {
        change(withNewFavourite(m_favourites, typed()), 0);
        // A new favourite needs a name first.
        m_ui->FavName->setFocus();
        m_ui->FavName->selectAll();
    });
    connect(m_list, &NamedList::removeAsked, this, [this] {
        const qsizetype row = m_list->row();
        const Favourites left = withoutFavourite(m_favourites, row);
        change(left, placeAfterRemoval(row, left.list.size()));
    });
    connect(m_list, &NamedList::sortAsked, this, [this] {
        Favourites sorted = m_favourites;
        SortFavourites(sorted);
        change(sorted, sorted.list.indexOf(m_favourites.list.value(m_list->row())));
    });
}

void FavouritesPage::browse(QLineEdit &field, DocumentKind kind)
{
    const QString now = pathOrNone(field.text());
    const QString folder = existingPath(folderOf(now));
    if (const auto path = m_context.dialogs.openFile(
            { u"Select the %1 file for this favourite"_s.arg(
                  kind == DocumentKind::Joystick ? u"joystick"_s : u"macro"_s),
              fileFilter(kind),
              extensionOf(kind),
              now == noFavouriteFile || folder.isEmpty() ? m_context.paths.filesFolder() : folder,
              {} })) {
        field.setText(*path);
    }
}

Favourite FavouritesPage::typed() const
{
    return { m_ui->FavName->text(), m_ui->FavJFPath->text(), m_ui->FavMFPath->text() };
}

void FavouritesPage::read()
{
    const qsizetype row = m_list->row();
    if (m_isShowing || row < 0) {
        return;
    }
    const Favourite favourite = typed();
    m_favourites = editedFavourites(m_settled, row, favourite);
    m_list->setName(row, m_favourites.list[row].name);
    const QString hint =
        unstorableHint({ favourite.name, favourite.joystickPath, favourite.macroPath });
    m_ui->LabelFavUnstorable->setText(hint);
    m_ui->LabelFavUnstorable->setVisible(!hint.isEmpty());
    showAutoload();
}

void FavouritesPage::settle()
{
    m_settled = m_favourites;
    UpdateFavouritesControls();
}

void FavouritesPage::change(const Favourites &favourites, qsizetype row)
{
    m_favourites = favourites;
    m_list->setNames(namesOf(favourites.list), row);
    m_list->setRoom(favourites.list.size() < mostFavourites);
    settle();
}

void FavouritesPage::UpdateFavouritesControls()
{
    const qsizetype row = m_list->row();
    if (row < 0) {
        DisableFavouritesControls();
        return;
    }
    const QScopedValueRollback showing(m_isShowing, true);
    const Favourite &favourite = m_favourites.list[row];
    showText(*m_ui->FavName, favourite.name);
    showText(*m_ui->FavJFPath, favourite.joystickPath);
    showText(*m_ui->FavMFPath, favourite.macroPath);
    m_ui->LabelFavUnstorable->hide();
    m_ui->groupFavourite->setEnabled(true);
    m_ui->groupAutoload->setEnabled(true);
    showAutoload();
}

void FavouritesPage::DisableFavouritesControls()
{
    const QScopedValueRollback showing(m_isShowing, true);
    for (QLineEdit *field : { m_ui->FavName, m_ui->FavJFPath, m_ui->FavMFPath }) {
        field->clear();
    }
    m_ui->LabelFavUnstorable->hide();
    m_ui->groupFavourite->setEnabled(false);
    m_ui->groupAutoload->setEnabled(false);
    showAutoload();
}

void FavouritesPage::showAutoload()
{
    const qsizetype place = defaultPlace(m_favourites);
    m_list->setMarked(place, u"The default for autoload"_s);
    m_ui->FavLoadOnStart->setChecked(m_favourites.loadOnStart);
    m_ui->FavNameToLoad->setText(place < 0 ? u"none yet"_s : m_favourites.nameToLoad);
    m_ui->cmdMakeDefault->setEnabled(m_list->row() >= 0 && m_list->row() != place);
}

void FavouritesPage::setRestores(bool restores)
{
    m_ui->FavLoadOnStart->setText(autoloadCaption(restores));
}

void FavouritesPage::collect()
{
    m_menu.set(m_favourites);
}

} // namespace zeph
