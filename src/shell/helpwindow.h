// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "shell/help_set.h"

#include <QDialog>

#include <memory>

class QUrl;

namespace zeph {

class Dialogs;
class ProcessLauncher;
struct Paths;

namespace Ui {
class HelpWindow;
}

/// The help: its pages, reached by contents, by number, by keyword and by links.
class HelpWindow : public QDialog
{
    Q_OBJECT
public:
    HelpWindow(const Paths &paths, Dialogs &dialogs, ProcessLauncher &launcher,
               QWidget *parent = nullptr);
    ~HelpWindow() override;

    /// Each shows its page. When there is none, it tells the user and gives false.
    bool showContents();
    bool showTopic(int number);
    bool showKeyword(const QString &word);
    /// Shows a page by its full path; false, and nothing shown, when it is no page of the help.
    bool showPage(const QString &path);

private:
    /// A place in the help folder, "file" or "file#anchor".
    bool showTarget(const QString &target);
    void openLink(const QUrl &link);
    void fillContents();
    void fillIndex();
    void markTopic(const QUrl &source);
    /// Shows the next place of the word that is sought: in this page, else in those after it, round
    /// to the first.
    void findNext();
    QStringList pagesAfterThis() const;
    QString folder() const;

    const Paths &m_paths;
    Dialogs &m_dialogs;
    ProcessLauncher &m_launcher;
    HelpSet m_set;
    std::unique_ptr<Ui::HelpWindow> m_ui;
};

} // namespace zeph
