// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/coverage_window.h"

#include "livetools/quickview/coverage_model.h"
#include "livetools/quickview/coverage_settings.h"
#include "platform/colours.h"
#include "platform/control_array.h"
#include "platform/dialogs.h"
#include "platform/swatch.h"
#include "platform/window_places.h"
#include "settings/settings.h"
#include "ui_coverage_window.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QRadioButton>
#include <QStyledItemDelegate>

namespace zeph {

namespace {

constexpr QColor usedColour(0x00, 0xA0, 0x40);
constexpr QColor sameColour(0x20, 0x70, 0xFF);
constexpr double colourShare = 0.3;
constexpr QSize swatchSize(12, 12);

/// The ground of a cell, which its text is read on in light and dark windows.
QColor colourOf(CellUse use, const QPalette &palette)
{
    const QColor ground = palette.color(QPalette::Base);
    switch (use) {
    case CellUse::Used:
        return mixed(ground, usedColour, colourShare);
    case CellUse::SameAsOtherMode:
        return mixed(ground, sameColour, colourShare);
    case CellUse::Empty:
        break;
    }
    return ground;
}

class CoverageCells : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (const QVariant use = index.data(CoverageModel::UseRole); use.isValid()) {
            option->backgroundBrush = colourOf(CellUse(use.toInt()), option->palette);
        }
    }
};

} // namespace

CoverageWindow::CoverageWindow(const Context &context, QWidget *parent)
    : QWidget(parent, Qt::Window), m_context(context), m_ui(std::make_unique<Ui::CoverageWindow>()),
      m_model(new CoverageModel(this))
{
    m_ui->setupUi(this);
    setUpTable();
    setUpFilter();
    showColours();
    showCount();
    m_ui->TableCoverage->setCurrentIndex(m_model->firstShown());
    m_ui->TableCoverage->setFocus();
    GetCoveragePosition();
}

CoverageWindow::~CoverageWindow()
{
    // It goes with its owner, which may be closed first.
    if (isVisible()) {
        SaveCoveragePosition();
    }
}

void CoverageWindow::setUpTable()
{
    QTableView *table = m_ui->TableCoverage;
    table->setModel(m_model);
    table->setItemDelegate(new CoverageCells(table));
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setObjectName(u"HeaderPositions"_s);
    table->verticalHeader()->setObjectName(u"HeaderControls"_s);
    if (auto *corner = table->findChild<QAbstractButton *>()) {
        corner->setObjectName(u"ButtonSelectAll"_s);
        corner->setAccessibleName(u"Select all"_s);
    }
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid()) {
                    m_chosen = m_model->placeOf(current);
                }
            });
    connect(table, &QTableView::clicked, this,
            guarded(m_context.dialogs, [this](const QModelIndex &index) {
                // With Shift or Ctrl a click only selects.
                if (QGuiApplication::keyboardModifiers() == Qt::NoModifier) {
                    jumpFrom(index);
                }
            }));
    auto *entry = new QAction(u"&Copy"_s, table);
    entry->setObjectName(u"mnuCopyCoverage"_s);
    entry->setShortcut(QKeySequence::Copy);
    entry->setShortcutContext(Qt::WidgetShortcut);
    connect(entry, &QAction::triggered, this, [this] { copy(); });
    table->addAction(entry);
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CoverageWindow::setUpFilter()
{
    ControlArray<QRadioButton>(this, u"OptionShow"_s)
        .connect(this, &QRadioButton::clicked, [this](int filter) {
            keepingChosen([this, filter] { m_model->setFilter(CoverageFilter(filter)); });
        });
}

void CoverageWindow::showColours()
{
    const auto show = [this](QRadioButton *option, CellUse use) {
        option->setIcon(
            swatchOf(fromColor(colourOf(use, palette())), swatchSize, devicePixelRatioF()));
    };
    show(m_ui->OptionShow_1, CellUse::Empty);
    show(m_ui->OptionShow_2, CellUse::Used);
    show(m_ui->OptionShow_3, CellUse::SameAsOtherMode);
}

void CoverageWindow::showCount()
{
    m_ui->LabelCount->setText(inWords(m_model->count()));
}

void CoverageWindow::show(const Assignments &table, const MacroKeys &keys)
{
    keepingChosen([&] { m_model->setTable(table, keys); });
    showCount();
}

void CoverageWindow::keepingChosen(const std::function<void()> &change)
{
    const CellPlace kept = m_chosen;
    change();
    const QModelIndex wanted = m_model->indexOf(kept);
    if (wanted.isValid() ? chosen() != kept : chosen() == CellPlace()) {
        m_ui->TableCoverage->setCurrentIndex(wanted.isValid() ? wanted : m_model->firstShown());
    }
    m_chosen = kept;
}

CellPlace CoverageWindow::chosen() const
{
    return m_model->placeOf(m_ui->TableCoverage->currentIndex());
}

void CoverageWindow::jumpFrom(const QModelIndex &index)
{
    if (const CellPlace place = m_model->placeOf(index); place.row > 0) {
        Q_EMIT jumpTo(place);
    }
}

void CoverageWindow::copy() const
{
    QGuiApplication::clipboard()->setText(
        m_model->copied(m_ui->TableCoverage->selectionModel()->selectedIndexes()));
}

void CoverageWindow::GetCoveragePosition()
{
    const auto &settings = m_context.settings.of<CoverageSettings>();
    const SettingsFiles files = settingsFilesOf(m_context.paths);
    tellProblems(m_context.dialogs, readGroup(m_context.settings.group<CoverageSettings>(), files));
    const QSize size(pixelsFromTwips(settings.CoverageWidth),
                     pixelsFromTwips(settings.CoverageHeight));
    const SettingKey &key = rowOf(&CoverageSettings::CoverageLeft);
    if (files.store.text(key.section, key.key).isEmpty() && parentWidget()) {
        resize(size);
        openBeside(*this, *parentWidget()->window());
        return;
    }
    restorePlace(
        *this,
        { QPoint(pixelsFromTwips(settings.CoverageLeft), pixelsFromTwips(settings.CoverageTop)),
          size });
}

void CoverageWindow::SaveCoveragePosition()
{
    auto &settings = m_context.settings.of<CoverageSettings>();
    const QRect place = normalPlace(*this);
    settings.CoverageTop = twipsFromPixels(place.y());
    settings.CoverageLeft = twipsFromPixels(place.x());
    settings.CoverageWidth = twipsFromPixels(place.width());
    settings.CoverageHeight = twipsFromPixels(place.height());
    // A store that cannot be written is not told: the window then opens as it did before.
    (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                       { &CoverageSettings::CoverageTop, &CoverageSettings::CoverageLeft,
                         &CoverageSettings::CoverageWidth, &CoverageSettings::CoverageHeight });
}

void CoverageWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        showColours();
    }
}

void CoverageWindow::closeEvent(QCloseEvent *event)
{
    SaveCoveragePosition();
    QWidget::closeEvent(event);
}

void CoverageWindow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        guarded(m_context.dialogs, [this] { jumpFrom(m_ui->TableCoverage->currentIndex()); })();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace zeph
