// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/bandeditor.h"

#include "composer/generators/digital_axis.h"
#include "composer/pages/key_box.h"
#include "composer/pages/page_fields.h"
#include "ui_bandeditor.h"

#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>

namespace zeph {

using Side = Bands::Side;

namespace {

/// The names of the controls in the order of controlsOf().
constexpr int namedControls = 11;
using Names = std::array<QStringView, namedControls>;
constexpr Names namesOfType5 = { u"TXT_DigitalAxis_3",
                                 u"Command15_0",
                                 u"Command15_1",
                                 u"ComboBandSelect",
                                 u"OPT_Type5_0",
                                 u"OPT_Type5_1",
                                 u"TXT_DigitalAxis_4",
                                 u"TXT_DigitalAxis_5",
                                 u"SliderType5",
                                 u"LBL_Type5",
                                 u"Label7" };
constexpr Names namesOfType6 = { u"TXT_DigitalAxis_6",
                                 u"Command15_2",
                                 u"Command15_3",
                                 u"ComboType6Band",
                                 u"OptionType6LowHigh_0",
                                 u"OptionType6LowHigh_1",
                                 u"TXT_DigitalAxis_7",
                                 u"TXT_DigitalAxis_9",
                                 u"SliderType6",
                                 u"LBL_Type6",
                                 u"Label8" };

std::array<QWidget *, namedControls> controlsOf(const Ui::BandEditor &ui)
{
    return { ui.count, ui.apply, ui.reset,  ui.list, ui.low,     ui.high,
             ui.from,  ui.upTo,  ui.slider, ui.bar,  ui.barLabel };
}

void showQuietly(QLineEdit &box, const QString &text)
{
    const QSignalBlocker quiet(box);
    if (box.text() != text)
        box.setText(text);
}

} // namespace

BandEditor::BandEditor(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui::BandEditor>())
{
    m_ui->setupUi(this);
    for (QLineEdit *box : { m_ui->count, m_ui->from, m_ui->upTo })
        fitToNumber(*box);
    QSizePolicy keepsPlace = m_ui->bar->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    m_ui->bar->setSizePolicy(keepsPlace);
}

BandEditor::~BandEditor() = default;

void BandEditor::setType(int type)
{
    m_bands = Bands(type);
    nameControls();
    addKeys();
    connectControls();
    showState();
}

void BandEditor::nameControls()
{
    const Names &names = m_bands.type() == 5 ? namesOfType5 : namesOfType6;
    const auto controls = controlsOf(*m_ui);
    for (size_t index = 0; index < controls.size(); ++index)
        controls[index]->setObjectName(names[index].toString());
}

void BandEditor::addKeys()
{
    if (m_bands.type() == 5) {
        addKey(10,
               u"4.) Enter a macro or character for this band in this text area and then "
               u"select a different band, and continue the process."_s)
            ->setToolTip(u"Up and Down go to the next band"_s);
        return;
    }
    addKey(11, u"Step up character/macro"_s);
    addKey(12, u"Step down character/macro"_s);
    addKey(13, u"Centre character/macro (optional, for an odd number of bands)"_s);
}

KeyBox *BandEditor::addKey(int index, const QString &label)
{
    const int row = int(m_keys.size());
    auto *box = new KeyBox(this);
    box->setObjectName(u"RTB_digitalAxis_%1"_s.arg(index));
    auto *caption = new QLabel(label, this);
    caption->setObjectName(u"LabelKey_%1"_s.arg(index));
    caption->setBuddy(box);
    const bool isBelow = m_bands.type() == 5;
    m_ui->layoutKeys->addWidget(caption, row, 0);
    m_ui->layoutKeys->addWidget(box, isBelow ? row + 1 : row, isBelow ? 0 : 1);
    m_keys.append(box);
    m_keyLabels.append(caption);
    connect(box, &QLineEdit::textChanged, this,
            [this, row](const QString &key) { setKey(m_bands.type() == 5 ? m_band : row, key); });
    return box;
}

void BandEditor::connectControls()
{
    connect(m_ui->apply, &QPushButton::clicked, this, &BandEditor::apply);
    connect(m_ui->reset, &QPushButton::clicked, this, &BandEditor::reset);
    connect(m_ui->list, &QComboBox::currentIndexChanged, this, [this](int band) {
        if (band >= 0) {
            m_band = band;
            DisplayData();
        }
    });
    const auto chooseSide = [this](Side side) {
        select(m_band, side);
        m_ui->slider->setFocus();
    };
    connect(m_ui->low, &QRadioButton::clicked, this, [=] { chooseSide(Side::Low); });
    connect(m_ui->high, &QRadioButton::clicked, this, [=] { chooseSide(Side::High); });
    connect(m_ui->from, &QLineEdit::editingFinished, this, [this] { typeBorder(Side::Low); });
    connect(m_ui->upTo, &QLineEdit::editingFinished, this, [this] { typeBorder(Side::High); });
    m_ui->from->installEventFilter(this);
    m_ui->upTo->installEventFilter(this);
    connect(m_ui->slider, &QSlider::valueChanged, this, &BandEditor::moveTo);
    connect(m_ui->bar, &BandBar::moved, this, &BandEditor::moveTo);
    connect(m_ui->bar, &BandBar::chosen, this, &BandEditor::select);
    connect(m_ui->bar, &BandBar::clicked, m_ui->list, &QComboBox::setCurrentIndex);
}

void BandEditor::setBands(const Bands &bands)
{
    m_bands = bands;
    m_band = 0;
    m_side = Side::Low;
    showState();
    Q_EMIT changed();
}

void BandEditor::apply()
{
    if (const auto refusal = m_bands.apply(m_ui->count->text())) {
        Q_EMIT refused(*refusal);
        return;
    }
    setBands(m_bands);
    DisplayData();
}

void BandEditor::reset()
{
    setBands(Bands(m_bands.type()));
    m_ui->count->setFocus();
}

void BandEditor::select(int band, Side side)
{
    m_band = band;
    m_side = side;
    showBand();
}

void BandEditor::moveTo(double percent)
{
    if (!m_bands.isApplied())
        return;
    m_bands.moveBorder(m_band, m_side, percent);
    showBorders();
    Q_EMIT changed();
}

void BandEditor::typeBorder(Side side)
{
    if (!m_bands.isApplied())
        return;
    const Bands before = m_bands;
    m_bands.typeBorder(m_band, side, (side == Side::Low ? m_ui->from : m_ui->upTo)->text());
    showBorders();
    if (m_bands != before)
        Q_EMIT changed();
}

void BandEditor::setKey(int index, const QString &key)
{
    if (!m_bands.isApplied())
        return;
    m_bands.setMacro(index, key);
    m_ui->bar->showBands(m_bands, m_band, m_side);
    Q_EMIT changed();
}

void BandEditor::DisplayData()
{
    if (!m_bands.isApplied())
        return;
    showBand();
    if (m_bands.type() == 5) {
        m_keys.first()->setFocus();
        m_keys.first()->end(false);
    }
}

void BandEditor::showState()
{
    const bool isApplied = m_bands.isApplied();
    const int count = m_bands.count();
    m_ui->count->setText(isApplied ? QString::number(count) : QString());
    m_ui->count->setReadOnly(isApplied);
    m_ui->apply->setEnabled(!isApplied);
    m_ui->reset->setEnabled(isApplied);
    m_ui->groupBands->setEnabled(isApplied);
    m_ui->bar->setVisible(isApplied);
    m_ui->barLabel->setVisible(isApplied);
    const QSignalBlocker quiet(m_ui->list);
    m_ui->list->clear();
    for (int band = 0; band < count; ++band)
        m_ui->list->addItem(u"Band %1"_s.arg(band + 1));
    if (m_bands.type() == 6) {
        for (int index = 0; index < int(m_keys.size()); ++index)
            showQuietly(*m_keys[index], isApplied ? m_bands.macro(index) : QString());
        m_keys[Bands::centre]->setEnabled(m_bands.takesCentre());
    }
    showBand();
}

void BandEditor::showBand()
{
    const QSignalBlocker quiet(m_ui->list);
    m_ui->list->setCurrentIndex(m_bands.isApplied() ? m_band : -1);
    m_ui->low->setChecked(m_side == Side::Low);
    m_ui->high->setChecked(m_side == Side::High);
    if (m_bands.type() == 5)
        showQuietly(*m_keys.first(), m_bands.isApplied() ? m_bands.macro(m_band) : QString());
    showBorders();
}

void BandEditor::showBorders()
{
    const bool isApplied = m_bands.isApplied();
    const auto percent = [this](Side side) {
        return m_bands.shownBorder(Bands::borderOf(m_band, side));
    };
    const auto shown = [&](Side side) {
        return isApplied ? QString::number(percent(side)) : QString();
    };
    showQuietly(*m_ui->from, shown(Side::Low));
    showQuietly(*m_ui->upTo, shown(Side::High));
    const QSignalBlocker quiet(m_ui->slider);
    m_ui->slider->setValue(isApplied ? percent(m_side) : 0);
    m_ui->bar->showBands(m_bands, m_band, m_side);
}

void BandEditor::setDirections(const DirectionLabels &labels)
{
    if (m_bands.type() != 6 || labels.first.isEmpty())
        return;
    m_keyLabels[Bands::up]->setText(labels.first);
    m_keyLabels[Bands::down]->setText(labels.second);
}

bool BandEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn && m_bands.isApplied())
        select(m_band, watched == m_ui->from ? Side::Low : Side::High);
    return QWidget::eventFilter(watched, event);
}

// Enter belongs to the box that it was typed in, and inserts nothing.
void BandEditor::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool inBorder = m_ui->from->hasFocus() || m_ui->upTo->hasFocus();
    const bool inKey = m_bands.type() == 5 && m_keys.first()->hasFocus();
    const int step = event->key() == Qt::Key_Up ? -1 : event->key() == Qt::Key_Down ? 1 : 0;
    if (isEnter && m_ui->count->hasFocus() && !m_bands.isApplied())
        apply();
    else if (inKey && step != 0)
        m_ui->list->setCurrentIndex(std::clamp(m_band + step, 0, m_bands.count() - 1));
    else if (!(isEnter && inBorder))
        QWidget::keyPressEvent(event);
}

} // namespace zeph
