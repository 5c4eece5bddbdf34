// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class LayoutSave;
}

/// Asks for the name under which the places of a sheet are saved.
class LayoutSave : public QDialog
{
    Q_OBJECT
public:
    /// The names are on offer; others can be entered.
    explicit LayoutSave(const QStringList &names, QWidget *parent = nullptr);
    ~LayoutSave() override;

    /// Without the blanks around it; empty when nothing is to be saved.
    QString name() const;

protected:
    void setTexts(const QString &title, const QString &label);

private:
    void judge();

    std::unique_ptr<Ui::LayoutSave> m_ui;
};

/// The same for a layout with text.
class LayoutSaveText : public LayoutSave
{
    Q_OBJECT
public:
    explicit LayoutSaveText(const QStringList &names, QWidget *parent = nullptr);
};

} // namespace zeph
