// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/statement_check.h"

#include <QPointer>
#include <QTextCursor>
#include <QTimer>

#include <memory>

namespace zeph {

namespace Ui {
class StatementPreview;
}

/// The strip below the pages: what the page in front would insert, in its colours, in which line it
/// would land, and what the language model has against it. Keeps the statement that a page was
/// filled from, and replaces it.
class StatementPreview : public QWidget
{
    Q_OBJECT
public:
    StatementPreview(const ComposerParts &parts, QWidget *parent);
    ~StatementPreview() override;

    /// Follows this page from now on.
    void setPage(ComposerPage *page);
    /// The page has been filled from this statement, which may be replaced then.
    void setRead(const ReadStatement &read);
    /// Shows at once what is waiting to be shown.
    void refreshNow();

Q_SIGNALS:
    /// The fields are to be filled from the statement at the caret.
    void readWanted();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void refreshSoon();
    void showStatement(const Statement &statement);
    void showNothing(const QString &why);
    void CMD_ReplaceStatement_Click();
    /// Whether the statement that the page was filled from is still there as it was.
    bool holdsRead() const;

    ComposerParts m_parts;
    std::unique_ptr<Ui::StatementPreview> m_ui;
    QPointer<ComposerPage> m_page;
    QTimer m_soon;
    QPointer<ComposerPage> m_readPage; ///< the page that was filled from it
    QTextCursor m_read; ///< selects the statement that was read, and moves along with edits
    QString m_readText; ///< what it selected
    bool m_readHasComments = false;
};

} // namespace zeph
