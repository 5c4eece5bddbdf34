// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"

#include <QDialog>

#include <memory>

namespace zeph {

class HeadingList;
class MacroFields;

namespace Ui {
class Speedy;
}

/// Writes many macros fast: the working page of the macro wizard without the teaching, with the
/// Editor's commands for macro files around it.
class Speedy : public QDialog
{
    Q_OBJECT
public:
    explicit Speedy(const ComposerParts &parts, QWidget *parent = nullptr);
    ~Speedy() override;

    /// Puts what Tumbo has made into the keys' field.
    void setKeys(const QString &keys);

Q_SIGNALS:
    /// Tumbo is wanted, and setKeys() with what it makes.
    void tumboWanted();
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

private:
    void connectButtons();

    ComposerParts m_parts;
    std::unique_ptr<Ui::Speedy> m_ui;
    MacroFields *m_macro;
    HeadingList *m_headings;
};

} // namespace zeph
