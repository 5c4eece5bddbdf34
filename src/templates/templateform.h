// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "print/print_job.h"
#include "text/template_files.h"

#include <QMainWindow>

#include <functional>
#include <memory>

namespace zeph {

namespace Ui {
class TemplateForm;
}

class MenuActions;
class Printers;
class RichTextBox;
class TemplateFormatting;

/// What the Template Editor needs of the rooms around it.
struct TemplateHost {
    /// Brings the help on this window up.
    std::function<void()> showHelp;
    /// The line of a macro's keys, if there is a macro of that name.
    std::function<std::optional<QString>(const QString &word)> macroKeys;
    /// Opens the Composer's page of templates; null while there is no Composer.
    std::function<void()> openComposer;
    /// A file was written, which another window may have open too.
    std::function<void(const QString &path)> fileWritten;
};

/// A small word processor for templates and readme texts, and a viewer of any text file. Works on a
/// text of its own, never on the two documents.
class TemplateForm : public QMainWindow
{
    Q_OBJECT
public:
    TemplateForm(const Context &context, Printers &printers, TemplateHost host,
                 QWidget *parent = nullptr);
    ~TemplateForm() override;

    /// Opens a readme, after the question about unsaved changes. False when it was not opened.
    bool OpenReadMe(const QString &path);
    /// The question before the window goes. False: it has to stay.
    bool mayClose();
    bool HasTemplateTextChanged() const;

    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFileSetDefault_Click();
    void mnuFileOpenDefault_Click();
    void mnuEditIniFile_Click();
    void mnuFilePrint_Click();
    void mnuFilePrintSelection_Click();
    /// Colours the text as the statements of a file; nothing but colours changes.
    void ColourTemplateText();
    /// The word under a point of the text's viewport; empty when there is none.
    QString TemplateRichWordOver(const QPoint &at) const;

    void GetTemplateEditorOptions();
    void SaveTemplateEditorOptions();

    MenuActions &actions() { return *m_actions; }
    const QString &path() const { return m_path; }

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectFile();
    void connectEdit();
    void updateConditions();
    void showMenu(const QPoint &at);
    bool mayLeave(TemplateLeaving leaving);
    bool load(const QString &path);
    bool writeTo(const QString &path);
    void showFile(const QString &path, const RichText &text);
    void AssignCurrentTexttoTempRTF();
    void say(const QString &text);
    QString templatesFolder() const;
    PrintJob job() const;
    void exportPdf();
    RichTextBox &box() const;

    Context m_context;
    Printers &m_printers;
    TemplateHost m_host;
    CharFormat m_plain;
    std::unique_ptr<Ui::TemplateForm> m_ui;
    std::unique_ptr<MenuActions> m_actions;
    TemplateFormatting *m_formatting = nullptr;
    QString m_path;
    QString m_name;
    RichText m_tempRTF; ///< the text as it was loaded or saved
    QString m_wordUnderMouse;
    bool m_isLeft = false; ///< the question before closing has been answered
};

} // namespace zeph
