// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/control_pictures.h"

#include "composer/composer_editor.h"
#include "composer/control_search.h"
#include "composer/statement_inserter.h"
#include "cougar/controls_picture.h"
#include "cougar/handle_file.h"
#include "cougar/handle_list.h"
#include "platform/core/profile_file.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QMenu>

namespace zeph {

namespace {

/// The picture whose hot spots serve while a handle cannot be shown.
constexpr QStringView shippedHandle = u"F-16 Block 50.bmp";
constexpr QStringView throttlePicture = u"Throttle.bmp";

} // namespace

ControlPictures::ControlPictures(const ComposerParts &parts, const Widgets &widgets,
                                 const bool &alwaysInsert, const ControlMenuNames &names,
                                 QWidget *window)
    : QObject(window), m_parts(parts), m_widgets(widgets), m_alwaysInsert(alwaysInsert)
{
    Dialogs &dialogs = parts.context.dialogs;
    makeMenus(names, window);
    for (ControlsPicture *picture : { widgets.stick, widgets.throttle }) {
        connect(picture, &ControlsPicture::clicked, this,
                guarded(dialogs, [this, picture](const QString &id) { clicked(*picture, id); }));
        connect(picture, &ControlsPicture::hovered, this,
                guarded(dialogs, [this, picture](const QString &id) { tell(*picture, id); }));
    }
    connect(widgets.handles, &QComboBox::currentIndexChanged, this,
            guarded(dialogs, [this](int) { ChangeHandle(); }));
    GetHandles();
    if (const auto shown = widgets.throttle->showDrawing(parts.context.paths.appFolder,
                                                         throttlePicture.toString());
        !shown) {
        parts.context.status.setText(u" Throttle.bmp can't be shown: "_s + shown.error().reason);
    }
}

void ControlPictures::makeMenus(const ControlMenuNames &names, QWidget *window)
{
    const auto menu = [window](QStringView name) {
        auto *made = new QMenu(window);
        made->setObjectName(name.toString());
        return made;
    };
    const auto add = [this](QMenu *to, QStringView name, int index, const QString &caption) {
        QAction *entry = to->addAction(caption);
        entry->setObjectName(name.toString() + u'_' + QString::number(index));
        connect(entry, &QAction::triggered, this,
                guarded(m_parts.context.dialogs,
                        [this, entry](bool) { insertControl(entry->text()); }));
    };
    m_hatMenu = menu(names.hatMenu);
    const QStringList ways = offeredControls(u"HAT_0", true);
    for (int i = 0; i < ways.size(); ++i) {
        if (i == hatDirections) {
            m_hatMenu->addSeparator();
        }
        const bool isCorner = i >= hatDirections;
        add(m_hatMenu, isCorner ? names.hatCorners : names.hatDirections,
            isCorner ? i - hatDirections : i, ways[i]);
    }
    m_triggerMenu = menu(names.triggerMenu);
    const QStringList stages = offeredControls(u"TRIG", true);
    for (int i = 0; i < stages.size(); ++i) {
        add(m_triggerMenu, names.triggerStages, i, stages[i]);
    }
}

void ControlPictures::GetHandles()
{
    const HandleList handles =
        listHandles(ProfileFile(m_parts.context.paths.iniPath), m_parts.context.paths.appFolder);
    {
        const QSignalBlocker loadingHandle(m_widgets.handles);
        m_widgets.handles->clear();
        m_widgets.handles->addItems(handles.names);
        m_widgets.handles->setCurrentText(handles.chosen);
    }
    if (const auto shown = showHandle(handles.chosen); !shown) {
        m_parts.context.status.setText(u' ' + shown.error());
    }
}

void ControlPictures::followHandle()
{
    const HandleList handles =
        listHandles(ProfileFile(m_parts.context.paths.iniPath), m_parts.context.paths.appFolder);
    const bool isOther = handles.names.contains(handles.chosen)
        && handles.chosen != m_widgets.handles->currentText();
    if (isOther) {
        GetHandles();
    }
}

Expected<void, QString> ControlPictures::showHandle(const QString &name)
{
    const QString &folder = m_parts.context.paths.appFolder;
    const auto handle = loadHandleFile(handlePath(folder, name));
    if (!handle) {
        m_triggerHasStages = true;
        // Its picture may be missing as well; its hot spots never are.
        (void)m_widgets.stick->showDrawing(folder, shippedHandle.toString());
        return Unexpected<QString>(
            u"The handle %1 can't be shown: %2"_s.arg(name).arg(handle.error().reason));
    }
    m_triggerHasStages = handle->triggerHasStages;
    if (const auto shown = m_widgets.stick->showHandle(folder, *handle); !shown) {
        return Unexpected<QString>(
            u"%1 can't be shown: %2"_s.arg(handle->picture).arg(shown.error().reason));
    }
    return {};
}

void ControlPictures::ChangeHandle()
{
    const QString name = m_widgets.handles->currentText();
    const auto kept = SaveHandle(ProfileFile(m_parts.context.paths.iniPath), name);
    if (!kept) {
        tellNotKept(m_parts.context.status, kept.error());
    }
    if (const auto shown = showHandle(name); !shown) {
        m_parts.context.dialogs.tell(u"No such handle"_s, shown.error(), BoxIcon::Exclamation);
    }
}

void ControlPictures::clicked(const ControlsPicture &picture, const QString &id)
{
    m_parts.documents.select(DocumentKind::Joystick);
    const QStringList controls = offeredControls(id, m_triggerHasStages);
    if (controls.size() == 1) {
        insertControl(controls.first());
        return;
    }
    QMenu *menu = id == u"TRIG" ? m_triggerMenu : m_hatMenu;
    qsizetype next = 0;
    for (QAction *entry : menu->actions()) {
        if (!entry->isSeparator() && next < controls.size()) {
            entry->setText(controls[next++]);
        }
    }
    const QWidget *spot = picture.spot(id);
    menu->popup(spot ? spot->mapToGlobal(spot->rect().bottomLeft()) : QCursor::pos());
}

void ControlPictures::tell(ControlsPicture &picture, const QString &id)
{
    const QString text = m_parts.documents.joystick().text();
    const QStringList controls = offeredControls(id, m_triggerHasStages);
    QStringList found;
    for (const QString &control : controls) {
        if (findControl(text, buttonStatement(control))) {
            found.append(toldOf(text, control));
        }
    }
    const QString shown = id.isEmpty() ? QString()
        : found.isEmpty()              ? spokenName(id) + u": nothing yet"_s
                                       : found.join(u'\n');
    if (QAbstractButton *spot = picture.spot(id)) {
        spot->setToolTip(Qt::convertFromPlainText(shown));
        spot->setAccessibleDescription(shown);
    }
    m_told = { &picture, id };
    m_pointed = controls.size() == 1 && found.isEmpty() ? controls.first() : QString();
    Q_EMIT told(shown);
}

void ControlPictures::insertControl(const QString &control)
{
    const QString statement = buttonStatement(control);
    m_parts.documents.select(DocumentKind::Joystick);
    if (!goToStatement(statement)) {
        m_parts.inserter.insertFragment(statement,
                                        m_parts.context.settings.of<ColourSettings>().BTNColour);
    }
    if (m_told.picture) {
        tell(*m_told.picture, m_told.id);
    }
}

bool ControlPictures::goToStatement(const QString &statement)
{
    if (m_alwaysInsert) {
        return false;
    }
    Document &joystick = m_parts.documents.joystick();
    const auto found = findControl(joystick.text(), statement);
    if (found) {
        joystick.select(int(found->start + found->length), 0);
        m_parts.context.status.setLine(joystick.caretLine());
        m_parts.editor.ResetFocusToEditor();
    }
    return found.has_value();
}

} // namespace zeph
