// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/quickview/control_rows.h"

#include <QWidget>

class QCompleter;
class QLabel;
class QLineEdit;
class QPushButton;
class QStringListModel;

namespace zeph {

class Dialogs;
class KeyListener;
struct BoardKey;

/// Asks which controls send a key or a macro: typed, with the macros' names on offer, or pressed
/// while "Listen" is on. Whoever owns it looks for what is sought and tells what was found.
class SenderSearch : public QWidget
{
    Q_OBJECT
public:
    /// The dialogs must outlive it.
    explicit SenderSearch(Dialogs &dialogs, QWidget *parent = nullptr);

    /// The names that are on offer while one types.
    void setMacroNames(const QStringList &names);
    /// Without blanks around it; empty when nothing is sought.
    const QString &sought() const { return m_sought; }
    /// Tells what the cells are that send what is sought; tells nothing while nothing is.
    void showResult(const std::vector<CellPlace> &cells);
    /// Puts the caret into the field, what is in it selected.
    void focusField();

Q_SIGNALS:
    /// Something else is sought now; empty for nothing.
    void soughtChanged(const QString &sought);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeControls();
    void layOut();
    void connectListener();
    void typed(const QString &text);

    QLineEdit *m_field;
    QPushButton *m_listen;
    QLabel *m_result;
    QStringListModel *m_names;
    KeyListener *m_listener;
    QString m_sought;
    QString m_found; ///< what showResult() told
};

/// "Sent by 3 controls in 5 positions.", or that nothing sends it.
QString sendersInWords(const std::vector<CellPlace> &cells);

/// How the search writes a key of the board that is pressed while modifiers are held: "CTL SHF a".
/// Modifiers are without a side, so that the keys of both sides are found.
QString soughtKey(const BoardKey &key, Qt::KeyboardModifiers held);

} // namespace zeph
