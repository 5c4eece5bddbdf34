// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/styleeditor.h"

#include "platform/colours.h"
#include "platform/dialogs.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/swatch.h"
#include "ui_styleeditor.h"

#include <QLineEdit>

namespace zeph {

namespace {

constexpr int swatchSize = 16;

} // namespace

StyleEditor::StyleEditor(const TextStyles &styles, ColorRef background, Dialogs &dialogs,
                         QWidget *parent)
    : QDialog(parent), m_styles(styles), m_background(background), m_dialogs(dialogs),
      m_ui(std::make_unique<Ui::StyleEditor>())
{
    m_ui->setupUi(this);
    // The toolkit makes the font's field itself, and gives it no name.
    for (QLineEdit *field : m_ui->ComboFont->findChildren<QLineEdit *>()) {
        field->setObjectName(u"ComboFontEdit"_s);
        field->setAccessibleName(u"Font"_s);
    }
    m_ui->SpinSize->setRange(smallestStyleSize, largestStyleSize);
    for (const TextStyle &style : m_styles) {
        m_ui->ListStyles->addItem(style.name);
    }
    connectFields();
    m_ui->ListStyles->setCurrentRow(0);
}

StyleEditor::~StyleEditor() = default;

void StyleEditor::connectFields()
{
    connect(m_ui->ListStyles, &QListWidget::currentRowChanged, this, &StyleEditor::choose);
    connect(m_ui->TextName, &QLineEdit::textEdited, this, &StyleEditor::read);
    connect(m_ui->ComboFont, &QFontComboBox::currentFontChanged, this, &StyleEditor::read);
    connect(m_ui->SpinSize, &QSpinBox::valueChanged, this, &StyleEditor::read);
    for (const QCheckBox *box : { m_ui->CheckBold, m_ui->CheckItalic, m_ui->CheckUnderline }) {
        connect(box, &QCheckBox::toggled, this, &StyleEditor::read);
    }
    connect(m_ui->CommandColour, &QPushButton::clicked, this, &StyleEditor::chooseColour);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &StyleEditor::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &StyleEditor::reject);
}

TextStyles StyleEditor::styles() const
{
    TextStyles styles = m_styles;
    for (size_t i = 0; i < styles.size(); ++i) {
        if (styles[i].name.trimmed().isEmpty()) {
            styles[i].name = defaultTextStyles()[i].name;
        }
    }
    return styles;
}

void StyleEditor::choose(int index)
{
    if (index >= 0) {
        m_index = index;
        showStyle();
    }
}

void StyleEditor::showStyle()
{
    m_isShowing = true;
    const CharFormat &format = current().format;
    m_ui->TextName->setText(current().name);
    m_ui->ComboFont->setCurrentFont(QFont(format.family));
    // Where the font is not installed, the box would show the name of another.
    m_ui->ComboFont->setEditText(format.family);
    m_ui->SpinSize->setValue(qRound(format.pointSize));
    m_ui->CheckBold->setChecked(format.bold);
    m_ui->CheckItalic->setChecked(format.italic);
    m_ui->CheckUnderline->setChecked(format.underline);
    m_isShowing = false;
    showPreview();
}

void StyleEditor::read()
{
    if (m_isShowing) {
        return;
    }
    CharFormat &format = current().format;
    current().name = m_ui->TextName->text();
    if (sender() == m_ui->ComboFont) {
        // Taken only when the user chose it: the box shows another family where the style's own is
        // not installed.
        format.family = m_ui->ComboFont->currentFont().family();
    }
    format.pointSize = m_ui->SpinSize->value();
    format.bold = m_ui->CheckBold->isChecked();
    format.italic = m_ui->CheckItalic->isChecked();
    format.underline = m_ui->CheckUnderline->isChecked();
    m_ui->ListStyles->item(m_index)->setText(current().name);
    showPreview();
}

void StyleEditor::chooseColour()
{
    if (const auto colour = m_dialogs.chooseColour(*current().format.colour)) {
        current().format.colour = colour;
        showPreview();
    }
}

void StyleEditor::showPreview()
{
    const CharFormat &format = current().format;
    m_ui->CommandColour->setIcon(
        swatchOf(*format.colour, { swatchSize, swatchSize }, devicePixelRatioF()));
    QPalette look = m_ui->LabelPreview->palette();
    look.setColor(QPalette::Window, toColor(m_background));
    look.setColor(QPalette::WindowText, toColor(*format.colour));
    m_ui->LabelPreview->setPalette(look);
    m_ui->LabelPreview->setFont(toTextFormat(format).font());
}

} // namespace zeph
