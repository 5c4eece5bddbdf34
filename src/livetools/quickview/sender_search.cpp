// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/sender_search.h"

#include "livetools/board_keys.h"
#include "livetools/key_listener.h"
#include "platform/dialogs.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>

#include <set>

namespace zeph {

namespace {

constexpr QStringView listening = u"Listening: press a key. A click or Escape twice ends it.";
constexpr QStringView unknownKey = u"Listening: your files have no such key.";
constexpr QStringView nothingSends = u"Nothing sends it.";
constexpr int fieldWidth = 22; ///< at least so many letters

QString counted(size_t number, QStringView word)
{
    return QString::number(number) + u' ' + word.toString() + (number == 1 ? u""_s : u"s"_s);
}

} // namespace

QString sendersInWords(const std::vector<CellPlace> &cells)
{
    if (cells.empty()) {
        return nothingSends.toString();
    }
    std::set<int> controls;
    for (const CellPlace &cell : cells) {
        controls.insert(cell.row);
    }
    return u"Sent by %1 in %2."_s.arg(counted(controls.size(), u"control"),
                                      counted(cells.size(), u"position"));
}

QString soughtKey(const BoardKey &key, Qt::KeyboardModifiers held)
{
    KeyToggles toggles;
    toggles.shift = held.testFlag(Qt::ShiftModifier);
    toggles.ctrl = held.testFlag(Qt::ControlModifier);
    toggles.alt = held.testFlag(Qt::AltModifier) || held.testFlag(Qt::GroupSwitchModifier);
    for (const BoardModifier &each : boardModifiers()) {
        const bool isThis = key.name.size() == each.key.size() && key.name.endsWith(each.word);
        if (isThis) {
            toggles.*each.toggle = true;
            return GetModifier(toggles).trimmed();
        }
    }
    return GetModifier(toggles) + key.name.toString();
}

SenderSearch::SenderSearch(Dialogs &dialogs, QWidget *parent)
    : QWidget(parent), m_field(new QLineEdit(this)), m_listen(new QPushButton(u"&Listen"_s, this)),
      m_result(new QLabel(this)), m_names(new QStringListModel(this)),
      m_listener(new KeyListener(dialogs, *this, *m_listen))
{
    makeControls();
    layOut();
    connectListener();
    connect(m_field, &QLineEdit::textChanged, this,
            guarded(dialogs, [this](const QString &text) { typed(text); }));
}

void SenderSearch::makeControls()
{
    m_field->setObjectName(u"TextSought"_s);
    m_field->setClearButtonEnabled(true);
    m_field->setPlaceholderText(u"a key or a macro"_s);
    m_field->setToolTip(u"Such as SPC, CTL SHF a or the name of a macro. Escape empties it"_s);
    m_field->setMinimumWidth(fieldWidth * m_field->fontMetrics().averageCharWidth());
    m_field->installEventFilter(this);
    auto *completer = new QCompleter(m_names, m_field);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    m_field->setCompleter(completer);
    m_listen->setObjectName(u"CommandListen"_s);
    m_listen->setCheckable(true);
    m_listen->setAutoDefault(false);
    m_listen->setToolTip(u"Then press the key on your own keyboard, with Shift, Ctrl and Alt"_s);
    m_result->setObjectName(u"LabelSenders"_s);
    m_result->setTextFormat(Qt::PlainText);
    // The window must not become wider with what is told.
    m_result->setMinimumWidth(m_result->fontMetrics().horizontalAdvance(listening.toString()));
}

void SenderSearch::layOut()
{
    auto *caption = new QLabel(u"&Who sends this?"_s, this);
    caption->setObjectName(u"LabelSought"_s);
    caption->setBuddy(m_field);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 4, 0, 4);
    row->addWidget(caption);
    row->addWidget(m_field, 1);
    row->addWidget(m_listen);
    row->addWidget(m_result, 1);
}

void SenderSearch::connectListener()
{
    connect(m_listener, &KeyListener::toggled, this,
            [this](bool on) { m_result->setText(on ? listening.toString() : m_found); });
    connect(m_listener, &KeyListener::keyPressed, this,
            [this](int index, Qt::KeyboardModifiers held) {
                m_field->setText(soughtKey(*boardKey(index), held));
                m_result->setText(m_found);
            });
    connect(m_listener, &KeyListener::unknownKeyPressed, this,
            [this] { m_result->setText(unknownKey.toString()); });
}

void SenderSearch::setMacroNames(const QStringList &names)
{
    if (m_names->stringList() != names) {
        m_names->setStringList(names);
    }
}

void SenderSearch::typed(const QString &text)
{
    const QString sought = text.trimmed();
    if (sought == m_sought) {
        return;
    }
    m_sought = sought;
    // What was found before is not true of it.
    m_found.clear();
    m_result->clear();
    Q_EMIT soughtChanged(m_sought);
}

void SenderSearch::showResult(const std::vector<CellPlace> &cells)
{
    m_found = m_sought.isEmpty() ? QString() : sendersInWords(cells);
    m_result->setText(m_found);
}

void SenderSearch::focusField()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

bool SenderSearch::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (watched == m_field && isKey && !m_field->text().isEmpty()
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        // An empty field leaves Escape to the window, which puts the search away by it.
        event->accept();
        if (event->type() == QEvent::KeyPress) {
            m_field->clear();
        }
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zeph
