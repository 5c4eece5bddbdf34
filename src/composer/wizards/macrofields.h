// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"

#include <QTimer>

#include <memory>

namespace zeph {

namespace Ui {
class MacroFields;
}

/// The fields of a new macro, its name (ComboMacros) and its keys, with a preview of its line
/// (Label1) and the buttons that insert it (Command1_4), empty the fields (Command1_5) and ask for
/// Tumbo (Command1_6).
class MacroFields : public QWidget
{
    Q_OBJECT
public:
    /// The field of the keys gets that object name.
    MacroFields(const ComposerParts &parts, const QString &keysName, QWidget *parent = nullptr);
    ~MacroFields() override;

    QComboBox &nameField() const;
    QPushButton &insertButton() const;
    /// Puts what Tumbo has made into the keys' field.
    void setKeys(const QString &keys);

Q_SIGNALS:
    /// Tumbo is wanted, and setKeys() with what it makes.
    void tumboWanted();

private:
    void fillNames();
    /// Corrects the name and shows the macro's line.
    void CreateMacro();
    void showWarning();
    /// Writes the macro's line into the macro file and starts the next one. Nothing without a name,
    /// or when the file is protected.
    void insertMacro();
    /// Empties the fields and gives the name the focus.
    void clearText();

    ComposerParts m_parts;
    std::unique_ptr<Ui::MacroFields> m_ui;
    QTimer m_soon; ///< until the warning is looked for again
};

} // namespace zeph
