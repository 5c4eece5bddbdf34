// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/text_looks.h"

#include "documents/coloured_insert.h"
#include "documents/document_settings.h"
#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "documents/highlighting.h"
#include "documents/styleeditor.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/settings_files.h"

#include <QAction>

#include <QKeyEvent>
#include <algorithm>

namespace zeph {

namespace {

using Flag = bool CharFormat::*;

constexpr std::array<Flag, 3> formatArray1 = { &CharFormat::bold, &CharFormat::italic,
                                               &CharFormat::underline };

} // namespace

TextLooks::TextLooks(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts), m_documents(parts.view.documents())
{
    MenuActions &on = parts.actions;
    on.connectArray(u"mnuFormatArray1"_s, [this](int i) { mnuFormatArray1_Click(i); });
    on.connectArray(u"mnuStyleArray"_s, [this](int i) { mnuStyleArray_Click(i); });
    on.connectTo(u"mnuFormatStyleEditor", [this] { mnuFormatStyleEditor_Click(); });
    on.connectTo(u"mnuFormatFont", [this] { mnuFormatFont_Click(); });
}

TextLooks::~TextLooks()
{
    delete m_editor;
}

void TextLooks::change(const std::function<void(CharFormat &)> &change)
{
    if (m_documents.refuseProtected()) {
        return;
    }
    Document &document = m_documents.selected();
    const int length = document.selLength();
    if (length == 0) {
        CharFormat typing = document.typingLook();
        change(typing);
        document.setTypingLook(typing);
        return;
    }
    m_parts.insert.BeginColInsert();
    document.changeLooks(document.selStart(), length, change);
    m_parts.insert.EndColInsert();
}

void TextLooks::mnuFormatArray1_Click(int Index)
{
    const Flag flag = formatArray1.at(size_t(Index));
    const Document &document = m_documents.selected();
    const auto runs = document.richText(document.selStart(), document.selLength()).characters;
    const bool isOn = runs.empty()
        ? document.typingLook().*flag
        : std::all_of(runs.begin(), runs.end(),
                      [flag](const CharRun &run) { return run.format.*flag; });
    change([flag, isOn](CharFormat &format) { format.*flag = !isOn; });
}

void TextLooks::mnuStyleArray_Click(int Index)
{
    const TextStyles styles = readTextStyles(ProfileFile(m_context.paths.iniPath));
    const CharFormat &style = styles.at(size_t(Index)).format;
    change([&style](CharFormat &format) { format = style; });
}

void TextLooks::mnuFormatStyleEditor_Click()
{
    if (m_editor) {
        m_editor->raise();
        return;
    }
    m_editor = new StyleEditor(readTextStyles(ProfileFile(m_context.paths.iniPath)),
                               m_context.settings.of<ColourSettings>().BackgroundColour,
                               m_context.dialogs, m_parts.view.window());
    m_editor->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(m_editor, &QDialog::accepted, m_editor,
                     [this] { keepStyles(m_editor->styles()); });
    m_editor->open();
}

void TextLooks::keepStyles(const TextStyles &styles)
{
    if (const auto written = writeTextStyles(ProfileFile(m_context.paths.iniPath), styles);
        !written) {
        tellNotKept(m_context.status, written.error());
    }
    UpdateStyleCaptions();
}

void TextLooks::UpdateStyleCaptions()
{
    const TextStyles styles = readTextStyles(ProfileFile(m_context.paths.iniPath));
    for (size_t i = 0; i < styles.size(); ++i) {
        m_parts.actions.action(u"mnuStyleArray_"_s + QString::number(i))
            ->setText(captionOf(styles[i].name));
    }
}

void TextLooks::mnuFormatFont_Click()
{
    auto &settings = m_context.settings.of<ColourSettings>();
    CharFormat font = m_documents.plainFormat(m_documents.selected().kind());
    const auto chosen = m_context.dialogs.chooseFont(font);
    if (!chosen) {
        return;
    }
    settings.TextFontName = chosen->family;
    settings.TextFontSize = chosen->pointSize;
    settings.TextFontBold = chosen->bold;
    const auto written =
        saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                     { &ColourSettings::TextFontName, &ColourSettings::TextFontSize,
                       &ColourSettings::TextFontBold });
    if (!written) {
        tellNotKept(m_context.status, written.error());
    }
    DoTheFonts();
}

void TextLooks::DoTheFonts()
{
    // Text in the plain font changes with the setting, in the states kept for undo too.
    m_parts.view.applyLook();
}

TypingColour::TypingColour(EditorView &view, Highlighting &highlighting,
                           const DocumentSettings &settings)
    : m_documents(view.documents()), m_highlighting(highlighting), m_settings(settings)
{
    view.watch(*this);
}

bool TypingColour::eventFilter(QObject *, QEvent *event)
{
    if (m_settings.ColourWithTyping && endsLine(*event)) {
        const bool isProtected =
            m_documents.isProtected() && m_documents.selected().kind() == DocumentKind::Macro;
        if (!isProtected) {
            m_highlighting.BlockColour();
        }
    }
    return false;
}

bool TypingColour::endsLine(const QEvent &event) const
{
    const auto keyOf = [&event] {
        return static_cast<const QKeyEvent &>(event).key();
    };
    switch (event.type()) {
    case QEvent::KeyPress:
        return keyOf() == Qt::Key_Space || keyOf() == Qt::Key_Return || keyOf() == Qt::Key_Enter;
    case QEvent::KeyRelease:
        return keyOf() == Qt::Key_Backspace || keyOf() == Qt::Key_Right;
    case QEvent::MouseButtonRelease:
        return m_documents.selected().selLength() > 0;
    default:
        return false;
    }
}

} // namespace zeph
