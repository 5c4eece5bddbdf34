// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/tool_windows.h"
#include "print/print_job.h"
#include "text/template_files.h"

#include <QMainWindow>

#include <memory>

namespace zeph {

namespace Ui {
class TemplateForm;
}

struct MacroTable;
class MenuActions;
class Printers;
class RichTextBox;
class TemplateFormatting;

/// A small word processor for templates and readme texts, and a viewer of any text file. Works on a
/// text of its own, never on the two documents.
class TemplateForm : public QMainWindow, public AsksBeforeClosing
{
    Q_OBJECT
public:
    /// The macro table gives the keys that are told for a macro under the mouse; it must outlive
    /// the window. The owner of the Composer connects and enables the entry mnuComposerPlugin.
    TemplateForm(const Context &context, Printers &printers, const MacroTable &macros,
                 QWidget *parent = nullptr);
    ~TemplateForm() override;

    /// Opens a file, after the question about unsaved changes. False when it was not opened.
    bool OpenReadMe(const QString &path);
    /// Asks about unsaved changes; the answer holds until the text is changed.
    bool mayClose() override;
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
    /// Colours the text as the statements of a joystick or macro file; nothing but colours changes.
    void ColourTemplateText();
    /// The word under a point of the text's viewport; empty when there is none.
    QString TemplateRichWordOver(const QPoint &at) const;

    /// Reads whether the toolbar is shown, and shows it.
    void GetTemplateEditorOptions();
    void SaveTemplateEditorOptions();

    MenuActions &actions() { return *m_actions; }
    const QString &path() const { return m_path; }

Q_SIGNALS:
    /// The user wants the help page of that number.
    void helpWanted(int topic);
    /// A file was written; another window may have it open too.
    void fileWritten(const QString &path);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectFile();
    void connectEdit();
    void updateConditions();
    void showMenu(const QPoint &at);
    /// Asks about unsaved changes; false when the text has to stay.
    bool mayLeave(TemplateLeaving leaving);
    bool load(const QString &path);
    bool writeTo(const QString &path);
    void showFile(const QString &path, std::unique_ptr<QTextDocument> document);
    void saveAs(const QString &suggestion);
    bool mayLosePart();
    void AssignCurrentTexttoTempRTF();
    void say(const QString &text);
    QString templatesFolder() const;
    PrintJob job() const;
    void exportPdf();
    RichTextBox &box() const;

    Context m_context;
    Printers &m_printers;
    const MacroTable &m_macros;
    CharFormat m_plain;
    std::unique_ptr<Ui::TemplateForm> m_ui;
    std::unique_ptr<MenuActions> m_actions;
    TemplateFormatting *m_formatting = nullptr;
    QString m_path;
    QString m_name;
    RtfLosses m_losses; ///< what the file on the disk has and this window has not
    LineEnds m_lineEnds;
    RichText m_tempRTF; ///< the text as it was loaded or saved
    QString m_wordUnderMouse;
    bool m_isLeft = false; ///< the question before closing has been answered
};

} // namespace zeph
