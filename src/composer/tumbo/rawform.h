// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/statement_inserter.h"
#include "composer/tumbo/notations.h"

#include <QWidget>

#include <memory>

class QLineEdit;
class QPushButton;

namespace zeph {

class ControlPictures;
class KeyListener;
struct TumboSettings;
class MenuActions;

namespace Ui {
class RAWform;
}

/// Tumbo, the virtual keyboard: shows a key in the notations of the language, and builds statements
/// and macros of them. The window stays loaded when its user hides it with OK or Escape.
class RAWform : public QWidget
{
    Q_OBJECT
public:
    /// The documents and the Editor must outlive the window.
    RAWform(const Context &context, Documents &documents, ComposerEditor &editor,
            QWidget *parent = nullptr);
    ~RAWform() override;

    /// Reads the options and shows what they say.
    void GetTumboOptions();
    /// Writes the options, but not the window's place.
    void SaveTumboOptions();
    void PositionTumbo();
    void SavePosition();
    /// Fits the window's height to the parts that are shown; the board keeps its size.
    void ResizeTumbo();
    /// Lists the handles and shows the one in use.
    void GetHandles();
    /// Shows the notations of the key that was pressed last; none after an insertion.
    void UpdateTextBoxes();
    /// Names boxes and entries after the view, KD and KU or USB codes.
    void HideUSBstuff();
    /// Writes the statement as a macro of the name in ComboMacros into the macro file.
    void CreateMacro();

Q_SIGNALS:
    /// The statement under construction has changed to this text.
    void totalCombinedTextChanged(const QString &text);
    /// The help topic of that number is wanted.
    void helpWanted(int topic);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void connectButtons();
    void connectMenus();
    void connectListener();
    void makePictures();
    void Command1_Click(int index);
    void ToggleButton_Click();
    void Command10_Click(int index);
    void CommandPasteJ_Click(int index);
    void mnuViewKDKUUSB_Click(int index);
    void mnuCreatePRraw_Click();
    void mnuAddRemCombined_Click();
    void TotalCombinedText_Change(const QString &text);
    /// Appends to the statement; nothing when the text is empty.
    void append(const QString &text);
    /// What CommandPasteJ writes; an empty text when there is nothing to write.
    Generated statementOf(int index) const;
    /// The button with the focus that Enter clicks; null for the toggles, which Space turns.
    QPushButton *focusedButton() const;
    void clearBoxes();
    void showParts();
    void hideTumbo();
    TumboSettings &options();

    Context m_context;
    Documents &m_documents;
    ComposerEditor &m_editor;
    StatementInserter m_inserter;
    std::unique_ptr<Ui::RAWform> m_ui;
    std::unique_ptr<MenuActions> m_menus;
    std::array<QLineEdit *, notations.size()> m_boxes{}; ///< by Notation
    ControlPictures *m_pictures = nullptr;
    KeyListener *m_listener = nullptr;
    QPushButton *m_default = nullptr; ///< clicked by Enter
    const BoardKey *m_key = nullptr; ///< the one that is shown
    CodeView m_view = CodeView::KdKu;
    KeyStrings m_strings;
};

} // namespace zeph
