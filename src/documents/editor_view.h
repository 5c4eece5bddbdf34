// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/editor_document.h"
#include "platform/context.h"

#include <QWidget>

#include <array>

class QTabBar;

namespace zeph {

/// The room of the Editor window that shows the texts: the tab strip and the two controls. Owns
/// both documents and knows which one is selected.
class EditorView : public QWidget
{
    Q_OBJECT
public:
    explicit EditorView(const Context &context, QWidget *parent = nullptr);

    EditorDocument &document(DocumentKind kind) { return m_documents[size_t(kind)]; }
    EditorDocument &selected() { return document(m_selected); }

    /// Selects a tab, as a click on it does.
    void select(DocumentKind kind);
    void ResetFocusToEditor();

    /// Shows both texts side by side, or the selected one over the whole space.
    void setTiled(bool tiled);
    bool isTiled() const { return m_tiled; }
    void ShowBothFiles();
    void PositionControls();

    /// Guards the macro text against the user.
    void setProtected(bool on);
    bool isProtected() const { return m_protected; }
    /// Whether the selected text takes no changes; tells the refusal when it is the protected one.
    bool refuseProtected();

    /// Shows the documents' names on the tabs.
    void updateCaptions();
    /// Shows the selected document's state on the status bar.
    void UpdateSavedIcon();
    void setState(EditorDocument &document, qint16 state);
    /// Gives a document a fresh name and path, without touching its text.
    void rename(EditorDocument &document, const QString &path);
    void renameFresh(DocumentKind kind);

    /// Colours and fonts from the settings, for text to come; text that is there keeps its looks.
    void applyLook();
    CharFormat plainFormat(DocumentKind kind) const;

    /// While more than 0, changes are the program's own and count as no edits.
    int ColouringBusy = 0;

Q_SIGNALS:
    void tabSelected(DocumentKind kind);
    void edited(DocumentKind kind);
    void selectionChanged();

private:
    void makeControl(DocumentKind kind, const QString &name);
    void onTextChanged(DocumentKind kind);
    void onTabChanged(int index);
    void storeCaret(EditorDocument &document);

    Context m_context;
    std::array<EditorDocument, 2> m_documents;
    QTabBar *m_tabs = nullptr;
    DocumentKind m_selected = DocumentKind::Joystick;
    bool m_tiled = false;
    bool m_protected = false;
};

/// Raises ColouringBusy for a scope.
class BusyGuard
{
public:
    explicit BusyGuard(EditorView &view) : m_view(view) { ++m_view.ColouringBusy; }
    ~BusyGuard() { --m_view.ColouringBusy; }
    BusyGuard(const BusyGuard &) = delete;
    BusyGuard &operator=(const BusyGuard &) = delete;

private:
    EditorView &m_view;
};

} // namespace zeph
