// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/editor_view.h"

#include "documents/document_look.h"
#include "documents/document_settings.h"
#include "documents/editor_texts.h"
#include "documents/text_control.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include "platform/icon_file.h"
#include <QHBoxLayout>
#include <QTabBar>
#include <QVBoxLayout>

namespace zeph {

EditorView::EditorView(const Context &context, QWidget *parent)
    : QWidget(parent), m_context(context)
{
    m_tabs = new QTabBar;
    m_tabs->setObjectName(u"TabStrip1"_s);
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    m_tabs->addTab(QString());
    m_tabs->addTab(QString());
    m_tabs->setTabIcon(0, iconFromFile(context.paths.inApp(u"icons/tab-joystick.svg")));
    m_tabs->setTabIcon(1, iconFromFile(context.paths.inApp(u"icons/tab-macro.svg")));
    makeControl(DocumentKind::Joystick, u"JoystickText"_s);
    makeControl(DocumentKind::Macro, u"MacroText"_s);

    auto *texts = new QHBoxLayout;
    texts->setSpacing(4);
    for (const EditorDocument &each : m_documents) {
        texts->addWidget(each.control, 1);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(0);
    layout->addWidget(m_tabs);
    layout->addLayout(texts, 1);

    renameFresh(DocumentKind::Joystick);
    renameFresh(DocumentKind::Macro);
    applyLook();
    PositionControls();
    UpdateSavedIcon();
    connect(m_tabs, &QTabBar::currentChanged, this, &EditorView::onTabChanged);
}

void EditorView::makeControl(DocumentKind kind, const QString &name)
{
    auto *control = new TextControl(this);
    control->setObjectName(name);
    control->setAccessibleName(kind == DocumentKind::Joystick ? u"Joystick file"_s
                                                              : u"Macro file"_s);
    EditorDocument &each = document(kind);
    each.kind = kind;
    each.control = control;
    connect(control, &TextControl::focused, this, [this, kind] { select(kind); });
    connect(control, &TextControl::textChanged, this, [this, kind] { onTextChanged(kind); });
    connect(control, &TextControl::cursorPositionChanged, this,
            [this, kind] { storeCaret(document(kind)); });
    connect(control, &TextControl::selectionChanged, this, [this, kind] {
        storeCaret(document(kind));
        Q_EMIT selectionChanged();
    });
}

void EditorView::onTextChanged(DocumentKind kind)
{
    if (ColouringBusy > 0) {
        return;
    }
    EditorDocument &each = document(kind);
    if (each.control->end() == 0) {
        // What goes into the emptied text has the document's margin, whatever stood there before.
        const BusyGuard busy(*this);
        setParagraphFormat(*each.control->document(), documentParagraph);
    }
    setState(each, EditorDocument::Modified);
    Q_EMIT edited(kind);
}

void EditorView::storeCaret(EditorDocument &each)
{
    each.caret = each.control->selStart();
    each.selLength = each.control->selLength();
    if (&each == &selected()) {
        m_context.status.setLine(each.control->caretLine());
    }
}

void EditorView::select(DocumentKind kind)
{
    m_tabs->setCurrentIndex(int(kind));
}

void EditorView::onTabChanged(int index)
{
    m_selected = DocumentKind(index);
    EditorDocument &now = selected();
    if (m_tiled) {
        ShowBothFiles();
    } else {
        PositionControls();
    }
    const bool isProtected = m_selected == DocumentKind::Macro && m_protected;
    m_context.status.setText(tabStatus(m_context.status.text(), now.caption(), isProtected));
    UpdateSavedIcon();
    now.control->setFocus();
    if (now.caret != now.control->selStart() || now.selLength != now.control->selLength()) {
        // Only then: selecting scrolls, and a click into the other of two tiled texts has to hit
        // what the user sees.
        now.control->select(now.caret, now.selLength);
    }
    m_context.status.setLine(now.control->caretLine());
    Q_EMIT tabSelected(m_selected);
    Q_EMIT selectionChanged();
}

void EditorView::ResetFocusToEditor()
{
    selected().control->setFocus();
}

void EditorView::setTiled(bool tiled)
{
    m_tiled = tiled;
    if (tiled) {
        ShowBothFiles();
    } else {
        PositionControls();
    }
}

void EditorView::ShowBothFiles()
{
    for (const EditorDocument &each : m_documents) {
        each.control->show();
    }
}

void EditorView::PositionControls()
{
    // Shown first: the focus never falls to another window's control in between.
    selected().control->show();
    for (const EditorDocument &each : m_documents) {
        each.control->setVisible(each.kind == m_selected);
    }
}

void EditorView::setProtected(bool on)
{
    m_protected = on;
    document(DocumentKind::Macro).control->setLocked(on);
    m_tabs->setTabIcon(1,
                       iconFromFile(m_context.paths.inApp(on ? u"icons/tab-protected.svg"
                                                             : u"icons/tab-macro.svg")));
}

bool EditorView::refuseProtected()
{
    if (m_selected == DocumentKind::Macro && m_protected) {
        m_context.dialogs.box(fileProtectedBox());
        return true;
    }
    // A text that is on its way to the Cougar is locked for seconds only, and the status bar says
    // so: no box.
    return selected().control->isReadOnly();
}

void EditorView::updateCaptions()
{
    for (const EditorDocument &each : m_documents) {
        QString caption = each.caption();
        caption.replace(u'&', u"&&"_s);
        m_tabs->setTabText(int(each.kind), caption);
        m_tabs->setTabToolTip(int(each.kind), each.path);
    }
}

void EditorView::UpdateSavedIcon()
{
    m_context.status.setSaved(selected().state + 2, savedTooltip(selected()));
}

void EditorView::setState(EditorDocument &each, qint16 state)
{
    if (each.state != state) {
        each.state = state;
        UpdateSavedIcon();
    }
}

void EditorView::rename(EditorDocument &each, const QString &path)
{
    each.path = path;
    each.name = nameOf(path);
    updateCaptions();
}

void EditorView::renameFresh(DocumentKind kind)
{
    rename(document(kind), m_context.paths.filesFolder() + freshName(kind));
}

CharFormat EditorView::plainFormat(DocumentKind kind) const
{
    return zeph::plainFormat(m_context.settings.of<ColourSettings>(), kind);
}

void EditorView::applyLook()
{
    const BusyGuard busy(*this);
    const auto &colours = m_context.settings.of<ColourSettings>();
    const auto &settings = m_context.settings.of<DocumentSettings>();
    for (const EditorDocument &each : m_documents) {
        each.control->setLook(documentBackground(colours, each.kind), plainFormat(each.kind));
        each.control->showLineNumbers(settings.LineNumbers);
        each.control->showCurrentLine(settings.CurrentLineMark);
    }
}

} // namespace zeph
