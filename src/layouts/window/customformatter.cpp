// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/customformatter.h"

#include "platform/dialogs.h"
#include "platform/swatch.h"

#include <QContextMenuEvent>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zeph {

namespace {

constexpr int swatchSize = 20;
constexpr int coloursInARow = 8;
constexpr std::array sizes = { 5, 6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 24 };
constexpr int usualSize = 8;

QString numbered(const QString &name, size_t index)
{
    return name + u'_' + QString::number(index);
}

} // namespace

CustomFormatter::CustomFormatter(const ProfileFile &layoutsIni, Dialogs &dialogs, QWidget *parent)
    : QDialog(parent), m_layoutsIni(layoutsIni), m_dialogs(dialogs),
      m_colours(readFormatterColours(layoutsIni))
{
    setObjectName(u"CustomFormatter"_s);
    setWindowTitle(u"Fonts and colours"_s);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeFonts());
    layout->addWidget(makeColours());
    layout->addStretch();
    showColours();
}

QWidget *CustomFormatter::makeFonts()
{
    auto *frame = new QWidget(this);
    auto *form = new QFormLayout(frame);
    form->setContentsMargins(0, 0, 0, 0);
    auto *fonts = new QFontComboBox(frame);
    fonts->setObjectName(u"ComboFonts"_s);
    fonts->setAccessibleName(u"Selected font"_s);
    fonts->setToolTip(u"Gives the selected text this font"_s);
    fonts->lineEdit()->setObjectName(u"ComboFontsEdit"_s);
    fonts->lineEdit()->setAccessibleName(u"Selected font"_s);
    // The combo box shows another font where this one is not installed.
    fonts->setEditText(u"Arial"_s);
    m_sizes = new QComboBox(frame);
    m_sizes->setObjectName(u"ComboFontSize"_s);
    m_sizes->setAccessibleName(u"Selected font size"_s);
    m_sizes->setToolTip(u"Gives the selected text this size, in points"_s);
    m_sizes->setEditable(true);
    m_sizes->setInsertPolicy(QComboBox::NoInsert);
    m_sizes->lineEdit()->setObjectName(u"ComboFontSizeEdit"_s);
    m_sizes->lineEdit()->setAccessibleName(u"Selected font size"_s);
    for (const int size : sizes) {
        m_sizes->addItem(QString::number(size));
    }
    m_sizes->setCurrentText(QString::number(usualSize));
    const auto addRow = [&](const QString &caption, QWidget *field) {
        auto *label = new QLabel(caption, frame);
        label->setBuddy(field);
        form->addRow(label, field);
    };
    addRow(u"Selected &font"_s, fonts);
    addRow(u"Selected font &size"_s, m_sizes);
    connect(fonts, &QComboBox::textActivated, this, &CustomFormatter::familyChosen);
    connect(m_sizes, &QComboBox::textActivated, this, &CustomFormatter::tellSize);
    connect(m_sizes->lineEdit(), &QLineEdit::returnPressed, this, &CustomFormatter::tellSize);
    return frame;
}

void CustomFormatter::tellSize()
{
    const double size = leadingNumber(m_sizes->currentText());
    if (size > 0) {
        Q_EMIT sizeChosen(std::clamp(size, double(smallestStyleSize), double(largestStyleSize)));
    }
}

QToolButton *CustomFormatter::makeColour(const QString &name, const QString &words)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setAccessibleName(words);
    button->setAutoRaise(true);
    button->setIconSize({ swatchSize, swatchSize });
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QWidget *CustomFormatter::makeColours()
{
    auto *frame = new QWidget(this);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto addGroup = [&](const QString &title) {
        auto *group = new QGroupBox(title, frame);
        layout->addWidget(group);
        return new QGridLayout(group);
    };
    QGridLayout *palette = addGroup(u"Colours"_s);
    for (size_t i = 0; i < m_colours.palette.size(); ++i) {
        QToolButton *button = makeColour(numbered(u"LabelColour"_s, i), u"Colour %1"_s.arg(i + 1));
        button->setToolTip(u"Right click to customise colours"_s);
        button->installEventFilter(this);
        palette->addWidget(button, int(i) / coloursInARow, int(i) % coloursInARow);
        connect(button, &QToolButton::clicked, this, [this, i] { apply(m_colours.palette[i]); });
        m_palette.push_back(button);
    }
    QGridLayout *recent = addGroup(u"Used last"_s);
    for (size_t i = 0; i < m_colours.recent.size(); ++i) {
        QToolButton *button =
            makeColour(numbered(u"LabelColourLast"_s, i), u"Colour used last, %1"_s.arg(i + 1));
        button->setToolTip(u"A colour used before"_s);
        recent->addWidget(button, 0, int(i));
        connect(button, &QToolButton::clicked, this, [this, i] { apply(m_colours.recent[i]); });
        m_recent.push_back(button);
    }
    return frame;
}

void CustomFormatter::showColours()
{
    const auto paint = [this](const std::vector<QToolButton *> &buttons, auto colours) {
        for (size_t i = 0; i < buttons.size(); ++i) {
            buttons[i]->setIcon(
                swatchOf(colours[i], { swatchSize, swatchSize }, devicePixelRatioF()));
        }
    };
    paint(m_palette, m_colours.palette);
    paint(m_recent, m_colours.recent);
}

void CustomFormatter::apply(ColorRef colour)
{
    auto &recent = m_colours.recent;
    // The colour comes to the front, and what was before it moves on by one.
    const auto found = std::ranges::find(recent, colour);
    const auto last = found == recent.end() ? std::prev(recent.end()) : found;
    std::move_backward(recent.begin(), last, std::next(last));
    recent.front() = colour;
    keep();
    Q_EMIT colourChosen(colour);
}

void CustomFormatter::customise(size_t index)
{
    if (const auto colour = m_dialogs.chooseColour(m_colours.palette[index])) {
        m_colours.palette[index] = *colour;
        keep();
    }
}

void CustomFormatter::keep()
{
    showColours();
    if (const auto written = writeFormatterColours(m_layoutsIni, m_colours); !written) {
        tellNotSaved(m_dialogs, written.error());
    }
}

bool CustomFormatter::eventFilter(QObject *watched, QEvent *event)
{
    const auto found = std::ranges::find(m_palette, watched);
    if (event->type() == QEvent::ContextMenu && found != m_palette.end()) {
        customise(size_t(found - m_palette.begin()));
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace zeph
