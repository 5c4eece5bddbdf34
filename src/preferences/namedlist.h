// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QWidget>

#include <memory>

namespace zeph {

namespace Ui {
class NamedList;
}

/// The texts of a list of named things, and the names of its controls.
struct NamedListTexts {
    struct Control {
        QStringView name;
        QStringView caption;
        QStringView tip;
    };
    Control list; ///< its label has the caption
    Control add;
    Control remove;
    Control sort;
};

/// A list of names with its buttons; the Delete key removes too. It only shows names and emits what
/// is wanted; its owner holds the named things. Rows are 0-based.
class NamedList : public QWidget
{
    Q_OBJECT
public:
    NamedList(const NamedListTexts &texts, QWidget *parent = nullptr);
    ~NamedList() override;

    /// Shows these names and selects a row; -1 for none.
    void setNames(const QStringList &names, qsizetype row);
    void setName(qsizetype row, const QString &name);
    /// Highlights one row, with a tip that says why; -1 for none.
    void setMarked(qsizetype row, const QString &tip);
    /// Enables adding only while there is room for one more.
    void setRoom(bool room);
    /// The selected row; -1 when there is none.
    qsizetype row() const;

Q_SIGNALS:
    /// The user selected another row.
    void chosen();
    void addAsked();
    void removeAsked();
    void sortAsked();

private:
    std::unique_ptr<Ui::NamedList> m_ui;
};

} // namespace zeph
