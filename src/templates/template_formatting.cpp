// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/template_formatting.h"

#include "menus/menu_actions.h"
#include "platform/colours.h"
#include "platform/dialogs.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/swatch.h"
#include "text/text_styles.h"

#include <QAction>
#include <QFontComboBox>
#include <QLineEdit>
#include <QTextBlock>
#include <QTextList>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace zeph {

namespace {

using Flag = bool CharFormat::*;

constexpr std::array<Flag, 4> formatArray1 = { &CharFormat::bold, &CharFormat::italic,
                                               &CharFormat::underline, &CharFormat::strike };
constexpr std::array<bool CommonLook::*, 4> commonArray1 = { &CommonLook::bold, &CommonLook::italic,
                                                             &CommonLook::underline,
                                                             &CommonLook::strike };

constexpr std::array alignments = { Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight };

constexpr std::array sizes = { 8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36, 48, 72 };

constexpr int swatchSize = 16;
constexpr int fontsWidth = 170;

// An empty name is a separator, "fonts" means the two boxes for font and size, and "colour" the
// swatch.
constexpr std::array<QStringView, 24> toolbar = {
    u"mnuFileNew",
    u"mnuFileOpen",
    u"mnuFileSave",
    u"mnuFilePrint",
    u"",
    u"mnuEditCut",
    u"mnuEditCopy",
    u"mnuEditPaste",
    u"",
    u"mnuEditUndo",
    u"mnuEditRedo",
    u"",
    u"fonts",
    u"mnuFormatArray1_0",
    u"mnuFormatArray1_1",
    u"mnuFormatArray1_2",
    u"colour",
    u"",
    u"mnuFormatBullets",
    u"mnuFormatAlign_0",
    u"mnuFormatAlign_1",
    u"mnuFormatAlign_2",
    u"",
    u"mnuViewColour",
};

} // namespace

TemplateFormatting::TemplateFormatting(const Context &context, const Parts &parts, CharFormat plain)
    : QObject(&parts.text), m_context(context), m_parts(parts), m_plain(std::move(plain))
{
    fillToolbar();
    connectEntries();
    connect(&m_parts.text, &RichTextBox::selectionChanged, this,
            &TemplateFormatting::UpdateToolbarButtonStates);
    connect(&m_parts.text, &RichTextBox::cursorPositionChanged, this,
            &TemplateFormatting::UpdateToolbarButtonStates);
    connect(&m_parts.text, &RichTextBox::currentCharFormatChanged, this,
            &TemplateFormatting::UpdateToolbarButtonStates);
    UpdateStyleCaptions();
    UpdateToolbarButtonStates();
}

void TemplateFormatting::fillToolbar()
{
    QToolBar &bar = m_parts.toolbar;
    m_fonts = new QFontComboBox(&bar);
    m_fonts->setObjectName(u"ComboFonts"_s);
    m_fonts->setToolTip(u"Font of the selection"_s);
    m_fonts->setAccessibleName(u"Font"_s);
    m_fonts->setMaximumWidth(fontsWidth);
    m_fonts->lineEdit()->setObjectName(u"ComboFontsEdit"_s);
    m_fonts->lineEdit()->setAccessibleName(u"Font"_s);
    m_sizes = new QComboBox(&bar);
    m_sizes->setObjectName(u"ComboFontSize"_s);
    m_sizes->setToolTip(u"Size of the selection, in points"_s);
    m_sizes->setAccessibleName(u"Size"_s);
    m_sizes->setEditable(true);
    m_sizes->setInsertPolicy(QComboBox::NoInsert);
    m_sizes->lineEdit()->setObjectName(u"ComboFontSizeEdit"_s);
    m_sizes->lineEdit()->setAccessibleName(u"Size"_s);
    for (const int size : sizes) {
        m_sizes->addItem(QString::number(size));
    }
    m_colour = new QToolButton(&bar);
    m_colour->setObjectName(u"ColourLabel1"_s);
    m_colour->setToolTip(u"Colour of the selection"_s);
    m_colour->setAccessibleName(u"Colour"_s);
    for (const QStringView name : toolbar) {
        if (name.isEmpty()) {
            bar.addSeparator();
        } else if (name == u"fonts") {
            bar.addWidget(m_fonts);
            bar.addWidget(m_sizes);
        } else if (name == u"colour") {
            bar.addWidget(m_colour);
        } else {
            bar.addAction(m_parts.actions.action(name));
            QWidget *button = bar.widgetForAction(m_parts.actions.action(name));
            button->setObjectName(u"button"_s + name.toString());
            button->setAccessibleName(m_parts.actions.action(name)->text().remove(u'&'));
        }
    }
}

void TemplateFormatting::connectEntries()
{
    MenuActions &on = m_parts.actions;
    on.connectArray(u"mnuFormatArray1"_s, [this](int i) { mnuFormatArray1_Click(i); });
    on.connectArray(u"mnuFormatAlign"_s, [this](int i) { mnuFormatAlign_Click(i); });
    on.connectArray(u"mnuStyleArray"_s, [this](int i) { mnuStyleArray_Click(i); });
    on.connectTo(u"mnuFormatBullets", [this] { mnuFormatBullets_Click(); });
    on.connectTo(u"mnuFormatFont", [this] { mnuFormatFont_Click(); });
    on.connectTo(u"mnuFormatColour", [this] { mnuFormatColour_Click(); });
    connect(m_colour, &QToolButton::clicked, this,
            guarded(m_context.dialogs, [this](bool) { mnuFormatColour_Click(); }));
    connect(m_fonts, &QComboBox::textActivated, this, [this](const QString &family) {
        change([&family](CharFormat &format) { format.family = family; });
        m_parts.text.setFocus();
    });
    connect(m_sizes, &QComboBox::textActivated, this, &TemplateFormatting::setSize);
    connect(m_sizes->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { setSize(m_sizes->currentText()); });
}

void TemplateFormatting::setSize(const QString &text)
{
    const double size = leadingNumber(text);
    if (size > 0) {
        const double kept = std::clamp(size, double(smallestStyleSize), double(largestStyleSize));
        change([kept](CharFormat &format) { format.pointSize = kept; });
    }
    m_parts.text.setFocus();
    UpdateToolbarButtonStates();
}

void TemplateFormatting::change(const std::function<void(CharFormat &)> &change)
{
    RichTextBox &box = m_parts.text;
    const int length = box.selLength();
    if (length == 0) {
        CharFormat typing = fromTextFormat(box.currentCharFormat());
        change(typing);
        box.setCurrentCharFormat(toTextFormat(typing));
        return;
    }
    std::vector<CharRun> runs = characterRunsOf(*box.document(), box.selStart(), length);
    for (CharRun &run : runs) {
        change(run.format);
    }
    applyCharacterRuns(*box.document(), runs, box.selStart());
    UpdateToolbarButtonStates();
}

CommonLook TemplateFormatting::look() const
{
    const RichTextBox &box = m_parts.text;
    if (box.selLength() > 0) {
        return commonLook(richTextOf(*box.document(), box.selStart(), box.selLength()));
    }
    const RichText paragraph = richTextOf(*box.document(), box.selStart(), 0);
    return commonLook(fromTextFormat(box.currentCharFormat()),
                      paragraph.paragraphs.empty() ? ParagraphFormat()
                                                   : paragraph.paragraphs.front().format);
}

void TemplateFormatting::mnuFormatArray1_Click(int Index)
{
    const bool isOn = look().*commonArray1.at(size_t(Index));
    const Flag flag = formatArray1.at(size_t(Index));
    change([flag, isOn](CharFormat &format) { format.*flag = !isOn; });
}

void TemplateFormatting::mnuFormatBullets_Click()
{
    const bool isOn = look().bullets;
    QTextCursor cursor = m_parts.text.textCursor();
    cursor.beginEditBlock();
    if (isOn) {
        const int last = cursor.document()->findBlock(cursor.selectionEnd()).blockNumber();
        QTextBlock block = cursor.document()->findBlock(cursor.selectionStart());
        for (; block.isValid() && block.blockNumber() <= last; block = block.next()) {
            QTextBlockFormat format = block.blockFormat();
            format.setObjectIndex(-1);
            format.setIndent(0);
            QTextCursor(block).setBlockFormat(format);
        }
    } else {
        cursor.createList(QTextListFormat::ListDisc);
    }
    cursor.endEditBlock();
    UpdateToolbarButtonStates();
}

void TemplateFormatting::mnuFormatAlign_Click(int Index)
{
    QTextBlockFormat format;
    format.setAlignment(alignments.at(size_t(Index)));
    m_parts.text.textCursor().mergeBlockFormat(format);
    UpdateToolbarButtonStates();
}

void TemplateFormatting::mnuStyleArray_Click(int Index)
{
    const TextStyles styles = readTextStyles(ProfileFile(m_context.paths.iniPath));
    const CharFormat &style = styles.at(size_t(Index)).format;
    change([&style](CharFormat &format) {
        const QString link = format.link;
        format = style;
        format.link = link;
    });
}

void TemplateFormatting::UpdateStyleCaptions()
{
    const TextStyles styles = readTextStyles(ProfileFile(m_context.paths.iniPath));
    for (size_t i = 0; i < styles.size(); ++i) {
        m_parts.actions.action(u"mnuStyleArray_"_s + QString::number(i))
            ->setText(captionOf(styles[i].name));
    }
}

void TemplateFormatting::mnuFormatFont_Click()
{
    const CommonLook common = look();
    CharFormat start = m_plain;
    start.family = common.family.value_or(m_plain.family);
    start.pointSize = common.pointSize.value_or(m_plain.pointSize);
    start.bold = common.bold;
    start.italic = common.italic;
    start.underline = common.underline;
    start.strike = common.strike;
    if (const auto chosen = m_context.dialogs.chooseFont(start)) {
        change([&chosen](CharFormat &format) {
            const auto colour = format.colour;
            const QString link = format.link;
            format = *chosen;
            format.colour = colour;
            format.link = link;
        });
    }
}

void TemplateFormatting::mnuFormatColour_Click()
{
    if (const auto colour = m_context.dialogs.chooseColour(look().colour.value_or(0))) {
        change([&colour](CharFormat &format) { format.colour = *colour; });
    }
}

void TemplateFormatting::UpdateToolbarButtonStates()
{
    const CommonLook common = look();
    UpdateComboFonts(common);
    UpdateComboFontSize(common);
    UpdateBoldButton(common);
    UpdateItalicsButton(common);
    UpdateUnderlineButton(common);
    updateStrike(common);
    UpdateBulletedButton(common);
    UpdateAlignmentButtons(common);
    updateColour(common);
}

void TemplateFormatting::UpdateComboFonts(const CommonLook &look)
{
    // Silent, since the box may choose another family when this one is not installed, and the text
    // must not take that.
    const QSignalBlocker silence(m_fonts);
    const QString family = !look.family ? QString()
        : look.family->isEmpty()        ? m_plain.family
                                        : *look.family;
    m_fonts->setCurrentIndex(m_fonts->findText(family, Qt::MatchFixedString));
    m_fonts->setEditText(family);
}

void TemplateFormatting::UpdateComboFontSize(const CommonLook &look)
{
    const QSignalBlocker silence(m_sizes);
    const double size = look.pointSize.value_or(0);
    const QString text =
        !look.pointSize ? QString() : QString::number(size > 0 ? size : m_plain.pointSize);
    m_sizes->setCurrentIndex(m_sizes->findText(text));
    m_sizes->setEditText(text);
}

void TemplateFormatting::UpdateBoldButton(const CommonLook &look)
{
    m_parts.actions.action(u"mnuFormatArray1_0")->setChecked(look.bold);
}

void TemplateFormatting::UpdateItalicsButton(const CommonLook &look)
{
    m_parts.actions.action(u"mnuFormatArray1_1")->setChecked(look.italic);
}

void TemplateFormatting::UpdateUnderlineButton(const CommonLook &look)
{
    m_parts.actions.action(u"mnuFormatArray1_2")->setChecked(look.underline);
}

void TemplateFormatting::updateStrike(const CommonLook &look)
{
    m_parts.actions.action(u"mnuFormatArray1_3")->setChecked(look.strike);
}

void TemplateFormatting::UpdateBulletedButton(const CommonLook &look)
{
    m_parts.actions.action(u"mnuFormatBullets")->setChecked(look.bullets);
}

void TemplateFormatting::UpdateAlignmentButtons(const CommonLook &look)
{
    for (int i = 0; i < int(alignments.size()); ++i) {
        m_parts.actions.action(u"mnuFormatAlign_"_s + QString::number(i))
            ->setChecked(look.alignment == ParagraphAlignment(i));
    }
}

void TemplateFormatting::updateColour(const CommonLook &look)
{
    m_colour->setIcon(swatchOf(look.colour.value_or(0), { swatchSize, swatchSize },
                               m_parts.text.devicePixelRatioF()));
}

namespace {

/// Clears a value unless another one is the same.
template <class T> void keepIfSame(std::optional<T> &common, const std::optional<T> &other)
{
    if (common != other) {
        common.reset();
    }
}

} // namespace

CommonLook commonLook(const CharFormat &format, const ParagraphFormat &paragraph)
{
    return { .family = format.family,
             .pointSize = format.pointSize,
             .colour = format.colour,
             .bold = format.bold,
             .italic = format.italic,
             .underline = format.underline,
             .strike = format.strike,
             .bullets = paragraph.bullet,
             .alignment = paragraph.alignment };
}

CommonLook commonLook(const RichText &selection)
{
    const ParagraphFormat paragraph =
        selection.paragraphs.empty() ? ParagraphFormat() : selection.paragraphs.front().format;
    CommonLook common = commonLook(selection.formatAt(0), paragraph);
    for (const CharRun &run : selection.characters) {
        keepIfSame(common.family, std::optional(run.format.family));
        keepIfSame(common.pointSize, std::optional(run.format.pointSize));
        keepIfSame(common.colour, run.format.colour);
        common.bold &= run.format.bold;
        common.italic &= run.format.italic;
        common.underline &= run.format.underline;
        common.strike &= run.format.strike;
    }
    for (const ParagraphRun &run : selection.paragraphs) {
        common.bullets &= run.format.bullet;
        keepIfSame(common.alignment, std::optional(run.format.alignment));
    }
    return common;
}

} // namespace zeph
