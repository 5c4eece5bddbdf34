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

/// What a list of named things says, and what its controls are called.
struct NamedListTexts {
    struct Control {
        QStringView name;
        QStringView caption;
        QStringView tip;
    };
    Control list; ///< the caption is that of the label before it
    Control add;
    Control remove;
    Control sort;
};

/// A list of things that the user has named, with its buttons; the Delete key removes too. It shows
/// names and tells what is wanted: the things themselves are its owner's. Rows are 0-based.
class NamedList : public QWidget
{
    Q_OBJECT
public:
    NamedList(const NamedListTexts &texts, QWidget *parent = nullptr);
    ~NamedList() override;

    /// Shows these names with one of them selected; -1 for none.
    void setNames(const QStringList &names, qsizetype row);
    void setName(qsizetype row, const QString &name);
    /// Makes one row stand out, with a tip that says why; -1 for none.
    void setMarked(qsizetype row, const QString &tip);
    /// Whether there is room for one more.
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
