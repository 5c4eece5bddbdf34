// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"

#include <QWidget>

class QLineEdit;

namespace zeph {

/// Tumbo, the virtual keyboard: shows a key in the notations of the language, and builds statements
/// and macros of them.
class RAWform : public QWidget
{
    Q_OBJECT
public:
    /// The documents and the Editor must outlive the window.
    RAWform(const Context &context, Documents &documents, ComposerEditor &editor,
            QWidget *parent = nullptr);
    ~RAWform() override;

Q_SIGNALS:
    /// The statement under construction has changed to this text.
    void totalCombinedTextChanged(const QString &text);
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

private:
    QLineEdit *m_total;
};

} // namespace zeph
