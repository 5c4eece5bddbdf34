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

/// The Insert menu: titles, headings and comments through forms, slash modifiers at once or from a
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
    /// Index of a word in insertWords.
    void mnuSlashArray_Click(int Index);
    void mnuSlashWindow_Click();

    /// Who writes titles, "User unknown" when nobody has said so.
    QString GetPersonsName() const;
    void SaveThePersonsName(const QString &name);
    /// Keeps whether a line end follows an inserted comment.
    void SaveCRthang(bool addCarriageReturn);
    /// The floating palette may be open while its delay is changed.
    void applySettings();

Q_SIGNALS:
    void helpOn(const QString &word);

private:
    /// Not while another form is open, nor over a protected text, which is told.
    bool canOpen();
    /// Shows a form until it is left; what is accepted is written by the function.
    template <class Form> void open(Form *form, std::function<void(const Form &)> accepted);
    void insertLines(const QStringList &lines);
    void insertRem(const QString &text, bool addCarriageReturn);
    void keep(std::initializer_list<SettingRef> fields);

    Context m_context;
    Parts m_parts;
    QPointer<QDialog> m_form;
    /// Made at the first use, since it belongs to the main window, which the Editor joins late.
    QPointer<SlashWindow> m_slashWindow;
};

/// The lines of a list that pilots may edit, trimmed, empty ones left out. A list that is missing
/// or cannot be read is empty.
QStringList linesOfListFile(const QString &path);

} // namespace zeph
