// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/editor_view.h"

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

EditorView::EditorView(const Context &context, Documents &documents, QWidget *parent)
    : QWidget(parent), m_context(context), m_documents(documents)
{
    m_tabs = new QTabBar;
    m_tabs->setObjectName(u"TabStrip1"_s);
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    m_tabs->addTab(QString());
    m_tabs->addTab(QString());
    m_tabs->setTabIcon(0, iconFromFile(context.paths.inApp(u"icons/tab-joystick.svg")));
    m_tabs->setTabIcon(1, iconFromFile(context.paths.inApp(u"icons/tab-macro.svg")));
    makeControl(documents.joystick(), u"JoystickText"_s);
    makeControl(documents.macro(), u"MacroText"_s);

    auto *texts = new QHBoxLayout;
    texts->setSpacing(4);
    for (TextControl *control : m_controls) {
        texts->addWidget(control, 1);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(0);
    layout->addWidget(m_tabs);
    layout->addLayout(texts, 1);

    updateCaptions();
    applyLook();
    PositionControls();
    UpdateSavedIcon();
    connect(m_tabs, &QTabBar::currentChanged, this,
            [this](int index) { m_documents.select(DocumentKind(index)); });
    connect(&documents, &Documents::selectedChanged, this, &EditorView::showSelected);
    connect(&documents, &Documents::protectedChanged, this, &EditorView::showProtected);
}

void EditorView::makeControl(Document &document, const QString &name)
{
    const DocumentKind kind = document.kind();
    auto *control = new TextControl(document, this);
    control->setObjectName(name);
    control->setAccessibleName(kind == DocumentKind::Joystick ? u"Joystick file"_s
                                                              : u"Macro file"_s);
    m_controls[size_t(kind)] = control;
    control->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(control, &QWidget::customContextMenuRequested, this,
            [this, control, kind](const QPoint &at) {
                Q_EMIT popUpWanted(kind, control->viewport()->mapToGlobal(at));
            });
    connect(control, &TextControl::focused, this, [this, kind] { m_documents.select(kind); });
    connectDocument(document);
}

void EditorView::connectDocument(Document &document)
{
    connect(&document, &Document::renamed, this, &EditorView::updateCaptions);
    connect(&document, &Document::stateChanged, this, &EditorView::UpdateSavedIcon);
    connect(&document, &Document::caretMoved, this, [this, &document] {
        if (&document == &m_documents.selected()) {
            m_context.status.setLine(document.caretLine());
        }
    });
}

void EditorView::showSelected()
{
    const Document &now = m_documents.selected();
    m_tabs->setCurrentIndex(int(now.kind()));
    if (m_tiled) {
        ShowBothFiles();
    } else {
        PositionControls();
    }
    const bool isProtected = now.kind() == DocumentKind::Macro && m_documents.isProtected();
    StatusLine &status = m_context.status;
    if (!status.showsKeys()) {
        status.setText(tabStatus(status.text(), now.caption(), isProtected));
    }
    UpdateSavedIcon();
    ResetFocusToEditor();
    m_context.status.setLine(now.caretLine());
}

void EditorView::centreCaret(DocumentKind kind)
{
    control(kind).centerCursor();
}

EditorView::KeptPlace::KeptPlace(EditorView &view, const Document &document)
    : m_control(view.control(document.kind())), m_scroll(m_control.scroll())
{
}

EditorView::KeptPlace::~KeptPlace()
{
    m_control.setScroll(m_scroll);
}

EditorView::KeptLine::KeptLine(EditorView &view, const Document &document)
    : m_control(view.control(document.kind())), m_down(m_control.scroll().down)
{
}

EditorView::KeptLine::~KeptLine()
{
    m_control.setScroll({ 0, m_down });
}

void EditorView::watchMouse(DocumentKind kind, QObject &filter)
{
    QWidget *viewport = control(kind).viewport();
    viewport->setMouseTracking(true);
    viewport->installEventFilter(&filter);
}

std::optional<DocumentKind> EditorView::kindOf(const QObject *watched) const
{
    const auto found = std::ranges::find(m_controls, watched);
    return found == m_controls.end() ? std::nullopt
                                     : std::optional(DocumentKind(found - m_controls.begin()));
}

int EditorView::characterAt(DocumentKind kind, const QPoint &at) const
{
    const TextControl &control = this->control(kind);
    const QTextCursor nearest = control.cursorForPosition(at);
    const QRect place = control.cursorRect(nearest);
    if (at.y() < place.top() || at.y() > place.bottom()) {
        return -1;
    }
    // The position nearest to the point may be the one after the character under it.
    if (at.x() >= place.left()) {
        return nearest.position();
    }
    return nearest.atBlockStart() ? -1 : nearest.position() - 1;
}

QPoint EditorView::belowCaret() const
{
    const TextControl &control = selectedControl();
    return control.viewport()->mapToGlobal(control.cursorRect().bottomLeft());
}

void EditorView::selectAll()
{
    selectedControl().selectAll();
}

void EditorView::copy()
{
    selectedControl().copy();
}

void EditorView::watch(QObject &filter)
{
    for (TextControl *control : m_controls) {
        control->installEventFilter(&filter);
        // Mouse events go to the viewport.
        control->viewport()->installEventFilter(&filter);
    }
}

void EditorView::ResetFocusToEditor()
{
    selectedControl().setFocus();
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
    for (TextControl *control : m_controls) {
        control->show();
    }
}

void EditorView::PositionControls()
{
    // Shown before the other is hidden, so that the focus does not leave the texts in between.
    TextControl &selected = selectedControl();
    selected.show();
    for (TextControl *control : m_controls) {
        control->setVisible(control == &selected);
    }
}

void EditorView::showProtected(bool on)
{
    m_tabs->setTabIcon(1,
                       iconFromFile(m_context.paths.inApp(on ? u"icons/tab-protected.svg"
                                                             : u"icons/tab-macro.svg")));
}

void EditorView::updateCaptions()
{
    m_documents.forEach([this](const Document &each) {
        QString caption = each.caption();
        caption.replace(u'&', u"&&"_s);
        m_tabs->setTabText(int(each.kind()), caption);
        m_tabs->setTabToolTip(int(each.kind()), each.path());
    });
}

void EditorView::UpdateSavedIcon()
{
    const Document &selected = m_documents.selected();
    m_context.status.setSaved(selected.state() + 2, savedTooltip(selected));
}

void EditorView::applyLook()
{
    const auto &colours = m_context.settings.of<ColourSettings>();
    const auto &settings = m_context.settings.of<DocumentSettings>();
    m_documents.forEach([this, &colours, &settings](const Document &each) {
        TextControl &control = this->control(each.kind());
        control.setLook(documentBackground(colours, each.kind()),
                        m_documents.plainFormat(each.kind()));
        control.showLineNumbers(settings.LineNumbers);
        control.showCurrentLine(settings.CurrentLineMark);
    });
}

} // namespace zeph
