// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/statement_inserter.h"
#include "platform/context.h"

#include <QDialog>

#include <array>
#include <memory>

class QComboBox;

namespace zeph {

namespace Ui {
class MouseManual;
}

/// Mouse movement programming with plain fields: what is typed goes into the statements unchecked.
class MouseManual : public QDialog
{
    Q_OBJECT
public:
    /// The tabs of SSTab1.
    enum Tab { Introduction, Resolution, Place, Move, Rotate };

    /// The documents and the Editor must outlive the window.
    MouseManual(const Context &context, Documents &documents, ComposerEditor &editor,
                QWidget *parent = nullptr);
    ~MouseManual() override;

    /// Brings a tab to the front; a number that is none counts as the introduction.
    void showTab(int tab);

Q_SIGNALS:
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

private:
    void FillFields();
    void Command1_Click();
    /// What the tab in front inserts; the introduction refuses.
    Generated statement() const;
    void refresh();

    Context m_context;
    Documents &m_documents;
    StatementInserter m_inserter;
    std::unique_ptr<Ui::MouseManual> m_ui;
};

} // namespace zeph
