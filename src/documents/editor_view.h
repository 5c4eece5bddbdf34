// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/documents.h"
#include "documents/text_control.h"
#include "platform/context.h"

#include <QPointer>
#include <QWidget>

#include <array>

class QTabBar;

namespace zeph {

/// The part of the Editor window that shows the documents: the tab strip and two controls.
class EditorView : public QWidget
{
    Q_OBJECT
public:
    /// The documents must outlive the view.
    EditorView(const Context &context, Documents &documents, QWidget *parent = nullptr);

    Documents &documents() { return m_documents; }
    /// The view of one document; only this folder and tests operate it.
    TextControl &control(DocumentKind kind) const { return *m_controls[size_t(kind)]; }

    /// Gives the keyboard to the selected document's control.
    void ResetFocusToEditor();
    /// Keeps what is seen of a document: the destructor scrolls back to where the view was at the
    /// constructor, however the caret has moved meanwhile.
    class KeptPlace
    {
    public:
        KeptPlace(EditorView &view, const Document &document);
        ~KeptPlace();
        KeptPlace(const KeptPlace &) = delete;
        KeptPlace &operator=(const KeptPlace &) = delete;

    private:
        TextControl &m_control;
        TextControl::Scroll m_scroll;
    };
    /// Keeps where the user works: the destructor selects the document that was selected at the
    /// constructor and gives the focus back to what had it then. The message line keeps what it
    /// says.
    class KeptTab
    {
    public:
        explicit KeptTab(EditorView &view);
        ~KeptTab();
        KeptTab(const KeptTab &) = delete;
        KeptTab &operator=(const KeptTab &) = delete;

    private:
        EditorView &m_view;
        DocumentKind m_selected;
        QPointer<QWidget> m_focus;
    };
    /// Scrolls a document's caret to the middle of its view.
    void centreCaret(DocumentKind kind);
    /// Whether the line with a 0-based character of a document is wholly in its view.
    bool shows(DocumentKind kind, int position) const;
    /// Installs an event filter on the controls and their viewports.
    void watch(QObject &filter);
    /// Installs an event filter on a text's viewport, which gets mouse moves without a button too.
    void watchMouse(DocumentKind kind, QObject &filter);
    /// The document whose control an event filter watched; none for other objects, viewports too.
    std::optional<DocumentKind> kindOf(const QObject *watched) const;
    /// The 0-based character under a point of a text's viewport; -1 above, below and left of the
    /// text.
    int characterAt(DocumentKind kind, const QPoint &at) const;
    /// The point of the screen for a pop-up below the selected document's caret.
    QPoint belowCaret() const;

    /// Distance of the selected control's tab stops, in device-independent pixels.
    double tabStop() const { return selectedControl().tabStopDistance(); }
    void selectAll();
    /// Puts the selection on the clipboard.
    void copy();

    /// Marks each place where a document has a word, as TextControl::markWord() does.
    void markWord(DocumentKind kind, const QString &word, int options);

    /// Shows both texts larger, or smaller with a negative number, for this run; 0 shows them as
    /// large as they are. Tells the size on the status bar.
    void zoom(int steps);

    /// Shows both texts side by side, or the selected one alone.
    void setTiled(bool tiled);
    bool isTiled() const { return m_tiled; }
    /// Shows both controls, whatever setTiled() said last.
    void ShowBothFiles();
    /// Shows the selected document's control alone.
    void PositionControls();

    /// Shows the documents' names on the tabs.
    void updateCaptions();
    /// Shows the selected document's state on the status bar, and the other's too while both are
    /// shown.
    void UpdateSavedIcon();
    /// Takes background, font and colours from the settings. Text that is there keeps its looks.
    void applyLook();

Q_SIGNALS:
    /// The right-hand menu is wanted over a document, at a point of the screen.
    void popUpWanted(DocumentKind kind, const QPoint &at);

private:
    TextControl &selectedControl() const { return control(m_documents.selected().kind()); }
    void makeControl(Document &document, const QString &name);
    void connectDocument(Document &document);
    void showSelected();
    void showTabIcons();

    Context m_context;
    Documents &m_documents;
    std::array<TextControl *, 2> m_controls{};
    QTabBar *m_tabs = nullptr;
    bool m_tiled = false;
    int m_zoom = 0; ///< steps up from the fonts' own sizes
};

} // namespace zeph
