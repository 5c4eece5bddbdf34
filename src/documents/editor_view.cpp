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
#include <QPainter>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

#include <cmath>

namespace zeph {

namespace {

constexpr double zoomStep = 1.1;
constexpr int smallestZoom = -7;
constexpr int largestZoom = 20;

/// A tab's picture with a dot in its corner, which says that the document has changed.
QIcon withDot(const QIcon &icon, const QTabBar &tabs)
{
    const QSize size = tabs.iconSize();
    QIcon dotted;
    for (const qreal scale : { 1.0, 1.5, 2.0, 3.0 }) {
        QPixmap picture = icon.pixmap(size, scale);
        if (picture.isNull()) {
            picture = QPixmap(size * scale);
            picture.fill(Qt::transparent);
            picture.setDevicePixelRatio(scale);
        }
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        // Seen on light and dark tabs alike.
        painter.setPen(QPen(Qt::white, 1));
        painter.setBrush(QColor(214, 40, 40));
        const double side = size.width() * 0.44;
        painter.drawEllipse(QRectF(size.width() - side - 0.5, 0.5, side, side));
        painter.end();
        dotted.addPixmap(picture);
    }
    return dotted;
}

} // namespace

EditorView::EditorView(const Context &context, Documents &documents, QWidget *parent)
    : QWidget(parent), m_context(context), m_documents(documents)
{
    m_tabs = new QTabBar;
    m_tabs->setObjectName(u"TabStrip1"_s);
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    m_tabs->addTab(QString());
    m_tabs->addTab(QString());
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
    showTabIcons();
    applyLook();
    PositionControls();
    UpdateSavedIcon();
    connect(m_tabs, &QTabBar::currentChanged, this,
            [this](int index) { m_documents.select(DocumentKind(index)); });
    connect(&documents, &Documents::selectedChanged, this, &EditorView::showSelected);
    connect(&documents, &Documents::protectedChanged, this, &EditorView::showTabIcons);
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
    control->setPlaceholderText(firstThings(kind));
    connect(control, &TextControl::zoomWanted, this, &EditorView::zoom);
    connect(control, &TextControl::focused, this, [this, kind] { m_documents.select(kind); });
    connectDocument(document);
}

void EditorView::connectDocument(Document &document)
{
    connect(&document, &Document::renamed, this, &EditorView::updateCaptions);
    connect(&document, &Document::stateChanged, this, &EditorView::UpdateSavedIcon);
    connect(&document, &Document::stateChanged, this, &EditorView::showTabIcons);
    connect(&document, &Document::caretMoved, this, [this, &document] {
        if (&document == &m_documents.selected()) {
            m_context.status.setLine(document.caretLine());
        }
    });
}

void EditorView::showSelected()
{
    const Document &now = m_documents.selected();
    const QSignalBlocker isSelectedAlready(m_tabs);
    m_tabs->setCurrentIndex(int(now.kind()));
    // Before the other text is hidden: the toolkit would look for the next place of the focus.
    selectedControl().show();
    ResetFocusToEditor();
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
    m_context.status.setLine(now.caretLine());
}

void EditorView::centreCaret(DocumentKind kind)
{
    control(kind).centerCursor();
}

bool EditorView::shows(DocumentKind kind, int position) const
{
    const TextControl &text = control(kind);
    QTextCursor cursor(text.document());
    cursor.setPosition(position);
    const QRect caret = text.cursorRect(cursor);
    return caret.top() >= 0 && caret.bottom() < text.viewport()->height();
}

EditorView::KeptPlace::KeptPlace(EditorView &view, const Document &document)
    : m_control(view.control(document.kind())), m_scroll(m_control.scroll())
{
}

EditorView::KeptPlace::~KeptPlace()
{
    m_control.setScroll(m_scroll);
}

EditorView::KeptTab::KeptTab(EditorView &view)
    : m_view(view), m_selected(view.documents().selected().kind()),
      m_focus(view.window()->focusWidget())
{
}

EditorView::KeptTab::~KeptTab()
{
    StatusLine &status = m_view.m_context.status;
    const QString told = status.text();
    m_view.documents().select(m_selected);
    if (m_focus) {
        m_focus->setFocus();
    }
    status.setText(told);
}

void EditorView::markWord(DocumentKind kind, const QString &word, int options)
{
    control(kind).markWord(word, options);
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
    selectedControl().takeFocus();
}

void EditorView::zoom(int steps)
{
    m_zoom = steps == 0 ? 0 : std::clamp(m_zoom + steps, smallestZoom, largestZoom);
    const double factor = std::pow(zoomStep, m_zoom);
    for (TextControl *control : m_controls) {
        control->setZoom(factor);
    }
    m_context.status.setText(u"Both files are shown at %1 %"_s.arg(qRound(factor * 100)));
}

void EditorView::setTiled(bool tiled)
{
    m_tiled = tiled;
    UpdateSavedIcon();
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

void EditorView::showTabIcons()
{
    m_documents.forEach([this](const Document &each) {
        const bool isMacro = each.kind() == DocumentKind::Macro;
        const QStringView name = !isMacro ? u"icons/tab-joystick.svg"
            : m_documents.isProtected()   ? u"icons/tab-protected.svg"
                                          : u"icons/tab-macro.svg";
        const QIcon icon = iconFromFile(m_context.paths.inApp(name));
        m_tabs->setTabIcon(int(each.kind()), each.isModified() ? withDot(icon, *m_tabs) : icon);
    });
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
    const Document &other = m_documents.other(selected);
    m_context.status.setOtherSaved(m_tiled ? other.state() + 2 : 0,
                                   m_tiled ? savedTooltip(other) : QString());
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
