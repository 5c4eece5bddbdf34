// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/documents.h"
#include "documents/text_control.h"
#include "platform/context.h"

#include <QWidget>

#include <array>

class QTabBar;

namespace zeph {

/// The room of the Editor window that shows the documents: the tab strip and two controls.
class EditorView : public QWidget
{
    Q_OBJECT
public:
    /// The documents outlive the view.
    EditorView(const Context &context, Documents &documents, QWidget *parent = nullptr);

    Documents &documents() { return m_documents; }
    /// The view of one document; only this folder and tests operate it.
    TextControl &control(DocumentKind kind) const { return *m_controls[size_t(kind)]; }

    /// Gives the keyboard to the selected document's control.
    void ResetFocusToEditor();
    /// What the user sees of a document when this is made is what he sees again when it goes,
    /// however the caret moves meanwhile.
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
    /// The same for a text that is changed line by line: it is seen from its left edge then.
    class KeptLine
    {
    public:
        KeptLine(EditorView &view, const Document &document);
        ~KeptLine();
        KeptLine(const KeptLine &) = delete;
        KeptLine &operator=(const KeptLine &) = delete;

    private:
        TextControl &m_control;
        int m_down;
    };
    /// Scrolls so that a document's caret is in the middle.
    void centreCaret(DocumentKind kind);
    /// Lets an event filter see what comes to the controls and to their viewports.
    void watch(QObject &filter);
    /// Lets an event filter see the mouse over a text, pressed or not: in its viewport's pixels.
    void watchMouse(DocumentKind kind, QObject &filter);
    /// Whose control an event filter has been shown; nothing for other objects, viewports too.
    std::optional<DocumentKind> kindOf(const QObject *watched) const;
    /// The character under a point of a text's viewport; -1 above and below the text.
    int characterAt(DocumentKind kind, const QPoint &at) const;
    /// Where on the screen a pop-up at the selected document's caret belongs.
    QPoint belowCaret() const;

    /// Distance of the selected control's tab stops, in device-independent pixels.
    double tabStop() const { return selectedControl().tabStopDistance(); }
    void selectAll();
    /// Puts the selection on the clipboard.
    void copy();

    /// Shows both texts side by side, or the selected one over the whole space.
    void setTiled(bool tiled);
    bool isTiled() const { return m_tiled; }
    void ShowBothFiles();
    void PositionControls();

    /// Shows the documents' names on the tabs.
    void updateCaptions();
    /// Shows the selected document's state on the status bar.
    void UpdateSavedIcon();
    /// Colours and fonts from the settings, for text to come; text that is there keeps its looks.
    void applyLook();

Q_SIGNALS:
    /// The right-hand menu is wanted over a document, at a point of the screen.
    void popUpWanted(DocumentKind kind, const QPoint &at);

private:
    TextControl &selectedControl() const { return control(m_documents.selected().kind()); }
    void makeControl(Document &document, const QString &name);
    void connectDocument(Document &document);
    void showSelected();
    void showProtected(bool on);

    Context m_context;
    Documents &m_documents;
    std::array<TextControl *, 2> m_controls{};
    QTabBar *m_tabs = nullptr;
    bool m_tiled = false;
};

} // namespace zeph
