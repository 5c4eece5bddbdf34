// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/wizards/wizard_window.h"

namespace zeph {

class HeadingList;
class MacroFields;

/// Walks a new user through making a macro file. It changes the file only by the Editor's commands
/// and by what the user inserts, so that closing it leaves the file as it is.
class WizardMacroFile : public WizardWindow
{
    Q_OBJECT
public:
    explicit WizardMacroFile(const ComposerParts &parts, QWidget *parent = nullptr);

    /// Puts what Tumbo has made into the keys' field.
    void setKeys(const QString &keys);

Q_SIGNALS:
    /// Tumbo is wanted, and setKeys() with what it makes.
    void tumboWanted();

protected:
    QWidget *firstControl(int page) const override;
    QPushButton *defaultButton(int page) const override;

private:
    void addTumbo();

    HeadingList *m_headings;
    MacroFields *m_macro;
};

} // namespace zeph
