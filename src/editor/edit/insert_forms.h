// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/edit/insert_windows.h"
#include "platform/context.h"
#include "platform/core/base.h"
#include "settings/settings.h"

#include <QObject>
#include <QPointer>

#include <QStringList>
#include <functional>
#include <initializer_list>

namespace zeph {

class ColouredInsert;
class MenuActions;
class EditorView;

/// The Insert menu: titles, headings and comments through forms, slash modifiers directly or from a
/// palette.
class InsertForms : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        EditorView &view;
        MenuActions &actions;
        ColouredInsert &insert;
    };
    InsertForms(const Context &context, const Parts &parts);
    ~InsertForms() override;

    void mnuInsertTitle_Click();
    void mnuInsertHeading_Click();
    void mnuInsertRemStatement_Click();
    /// Inserts a slash modifier; Index is its place in insertWords.
    void mnuSlashArray_Click(int Index);
    void mnuSlashWindow_Click();

    /// The name for titles; "User unknown" until the user has given one.
    QString GetPersonsName() const;
    void SaveThePersonsName(const QString &name);
    /// Stores in the settings whether a line end follows an inserted comment.
    void SaveCRthang(bool addCarriageReturn);
    /// Applies changed settings to the palette, if it is open: one button shows the delay of DLY.
    void applySettings();

Q_SIGNALS:
    void helpOn(const QString &word);

private:
    /// False while another form is open, and for a protected document, which is told.
    bool canOpen();
    /// Shows a form; calls the function with it when it is accepted.
    template <class Form> void open(Form *form, std::function<void(const Form &)> accepted);
    void insertLines(const QStringList &lines);
    void insertRem(const QString &text, bool addCarriageReturn);
    void keep(std::initializer_list<SettingRef> fields);

    Context m_context;
    Parts m_parts;
    QPointer<QDialog> m_form;
    /// Created at the first use: its parent is the main window, which the Editor joins only after
    /// its construction.
    QPointer<SlashWindow> m_slashWindow;
};

} // namespace zeph
