// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/statement_inserter.h"

#include <array>
#include <memory>

class QCheckBox;

namespace zeph {

class ComposerFirstPage;
class StatementPreview;
struct ReadStatement;

namespace Ui {
class InsertOptions;
}

/// The Composer: a window of pages that write statements into the files. It is only a frame: a page
/// is a class of its own and is made when it is first shown. The window stays loaded when its user
/// hides it with OK or Escape.
class InsertOptions : public QWidget
{
    Q_OBJECT
public:
    /// The tabs of SSTab1.
    enum Page { Composer, Hats, DigitalAxis, AnalogueAxis, Mouse, Use, Templates, Logical };
    static constexpr int pageCount = 8;

    /// The documents and the Editor must outlive the window.
    InsertOptions(const Context &context, Documents &documents, ComposerEditor &editor,
                  QWidget *parent = nullptr);
    ~InsertOptions() override;

    /// Brings a page to the front; the focus goes to its first control.
    void showPage(Page page);
    /// The page, which is made if need be; null while a page does not exist yet.
    ComposerPage *page(Page page);

    /// Reads the Composer's settings.
    void GetSpaces();
    /// Writes them, and the window's place.
    void SaveSpaces();
    void PositionComposer();

    /// Copies the Editor's macro list: at once while the window is seen, else when it is activated.
    void macroListChanged();
    /// Shows the ticks that the Editor's list has now.
    void ticksChanged();
    /// Shows a macro that was chosen in the Editor's list.
    void selectMacro(const QString &macro);
    /// Shows the settings anew that other windows edit too.
    void settingsChanged();

Q_SIGNALS:
    /// The help topic of that number is wanted.
    void helpWanted(int topic);
    /// The place of the help is wanted to which its index leads from this word.
    void keywordWanted(const QString &word);
    /// The window LogicFlagsDetected is wanted.
    void flagsWanted();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeKeys();
    void turnPage(int step);
    void enterPage(int index);
    /// Puts the windows that teach the page's subject on the button CommandShowMeHow.
    void offerLessons(int page);
    void bindLineEndBoxes(ComposerPage &page);
    /// Has Tab go from the tabs through a page to what is below all pages.
    void reachAfterTabs(const ComposerPage &page);
    void showAddsLineEnd();
    void readStatement();
    bool readInto(Page page, const ReadStatement &read);
    void activated();
    void Command6_Click();
    void CommandHelp_Click();
    ComposerFirstPage &first();

    Context m_context;
    Documents &m_documents;
    ComposerEditor &m_editor;
    StatementInserter m_inserter;
    ComposerParts m_parts;
    std::unique_ptr<Ui::InsertOptions> m_ui;
    std::array<ComposerPage *, pageCount> m_pages{};
    QList<QCheckBox *> m_lineEndBoxes; ///< CheckMultiAddCR of all pages
    StatementPreview *m_preview = nullptr;
    QString m_layoutName; ///< of the keyboard when the window was loaded
    bool m_macrosAreOld = false;
};

} // namespace zeph
