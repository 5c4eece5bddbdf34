// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"
#include "platform/context.h"

#include <QDialog>

#include <array>
#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace zeph {

class EditorView;

namespace Ui {
class FindAndReplace;
}

/// Finds and replaces in either document and goes to lines. The window does not block the texts and
/// stays above the main window. While it is open all hits are marked in the text, and Enter in the
/// text goes from hit to hit as long as the last one is selected; with Shift it goes back.
class FindAndReplace : public QDialog
{
    Q_OBJECT
public:
    enum class Tab { Find, Replace, GoToLine };

    struct Parts {
        EditorView &view;
    };
    FindAndReplace(const Context &context, const Parts &parts, QWidget *parent = nullptr);
    ~FindAndReplace() override;

    /// Brings the window to the front on a tab, set to the selected document, with its selection as
    /// the text to search for.
    void showTab(Tab tab);

    /// The SearchOption bits and the text of the last search.
    qint16 SearchOptions = 0;
    QString LastFindText;

Q_SIGNALS:
    /// The help about this word is wanted.
    void helpOn(const QString &word);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    /// The controls that both of the first two tabs have.
    struct Page {
        QComboBox *what = nullptr;
        QCheckBox *matchCase = nullptr;
        QCheckBox *wholeWord = nullptr;
        QRadioButton *joystick = nullptr;
        QRadioButton *macro = nullptr;
        QPushButton *find = nullptr;
        QPushButton *previous = nullptr;
        QLabel *hits = nullptr;
        bool first = true; ///< the next press searches from the start
    };

    /// What the last search selected.
    struct Hit {
        Page *page = nullptr; ///< the page that was searched by; null before the first hit
        DocumentKind kind = DocumentKind::Joystick;
        int start = 0;
        int length = 0;
    };

    void connectPage(Page &page);
    void connectButtons();
    void showDefault(Tab tab);
    void preset(Page &page);
    void setFirst(Page &page, bool first);
    /// Makes the next search begin at the start, because text or options changed.
    void startOver(Page &page);
    void enableReplacing(bool on);
    int optionsOf(const Page &page) const;
    Document &documentOf(const Page &page) const;
    bool refuses(const Document &document);
    bool tellNothingToSearch(const QString &word, const Document &document);

    /// Searches on from the caret, or from the start when the page begins anew.
    void find(Page &page);
    void findPrevious(Page &page);
    bool isOnLastHit(DocumentKind kind) const;
    /// The page of the tab in front; null on the tab that goes to lines.
    Page *shownPage();
    /// Takes the numbers of hits away, which no longer fit the text.
    void clearCounts();
    /// Marks all hits of the tab in front, or none while the window is closed.
    void markHits();
    void tellNoHit(Page &page, const QString &word, const Document &document);
    void showHit(Page &page, Document &document, int start, int length);
    void returnToTexts();
    void ReplaceText();
    void ReplaceAll();
    void goToLine();
    void tellLines(const Document &document);

    Context m_context;
    Parts m_parts;
    std::unique_ptr<Ui::FindAndReplace> m_ui;
    Page m_findPage;
    Page m_replacePage;
    Hit m_hit;
};

} // namespace zeph
