// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/main_status_bar.h"

#include "platform/core/units.h"
#include "platform/elided_label.h"
#include "platform/icons.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <span>

namespace zeph {

namespace {

constexpr int pictureSize = 16;
constexpr int textIndent = 6;
constexpr int selectorOff = 1;
constexpr std::array modeIcons = { u"mode-off", u"mode-windows", u"mode-programmed",
                                   u"mode-unknown" };
constexpr std::array savedIcons = { u"saved-empty", u"saved-saved", u"saved-modified" };

/// A panel at the right end of the bar.
struct PanelRow {
    StatusPanel panel;
    const char16_t *accessibleName;
    const char16_t *widestText; ///< of a panel with a text; other panels are as wide as a picture
    std::span<const char16_t *const> pictures;
};

const PanelRow panelRows[] = {
    { StatusPanel::Mode, u"Cougar mode", u"", modeIcons },
    { StatusPanel::Line, u"", u"Line no: 99999", {} },
    { StatusPanel::Saved, u"Saved state", u"", savedIcons },
    { StatusPanel::OtherSaved, u"Saved state of the other file", u"", savedIcons },
    { StatusPanel::StandIns, u"", u"", {} },
};

static_assert(std::size(panelRows) + 1 == statusPanels, "each panel but the message has a row");

} // namespace

MainStatusBar::MainStatusBar(const Context &context, QWidget *parent)
    : QStatusBar(parent), m_context(context), m_message(new ElidedLabel(this))
{
    setObjectName(u"StatusBar"_s);
    setMouseTracking(true);
    setContentsMargins(0, 0, textIndent, 0);
    m_message->setObjectName(u"Panel_1"_s);
    m_message->setIndent(textIndent);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_message->setAttribute(Qt::WA_TransparentForMouseEvents);
    addWidget(m_message, 1);
    m_panels.append(m_message);
    for (const PanelRow &row : panelRows) {
        QLabel *panel = makePanel(row.panel);
        panel->setAccessibleName(QString::fromUtf16(row.accessibleName));
        panel->setMinimumWidth(fontMetrics().horizontalAdvance(QString::fromUtf16(row.widestText)));
        showPanel(row.panel);
    }
    showPanel(StatusPanel::Message);
    connect(&context.status, &StatusLine::changed, this, &MainStatusBar::showPanel);
    connect(&context.status, &StatusLine::repaintWanted, m_message,
            [this] { m_message->repaint(); });
}

QLabel *MainStatusBar::makePanel(StatusPanel panel)
{
    auto *label = new QLabel(this);
    label->setObjectName(u"Panel_"_s + QString::number(int(panel) + 1));
    // The bar itself sees the mouse, so that one rule decides by the distance from its left end.
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    addPermanentWidget(label);
    m_panels.append(label);
    return label;
}

StatusPanelEdges MainStatusBar::edges() const
{
    return { twipsFromPixels(panel(StatusPanel::Mode).x()),
             twipsFromPixels(panel(StatusPanel::Line).x()) };
}

QString MainStatusBar::modeTooltip() const
{
    return panel(StatusPanel::Mode).toolTip();
}

void MainStatusBar::showPanel(StatusPanel shown)
{
    const StatusContents &contents = m_context.status.contents(shown);
    QLabel &label = panel(shown);
    label.setToolTip(contents.tooltip);
    const auto *row = std::ranges::find(panelRows, shown, &PanelRow::panel);
    if (row == std::end(panelRows) || row->pictures.empty()) {
        label.setText(contents.text);
        // The message line paints its text itself, so a label cannot know what has changed in it.
        label.update();
        return;
    }
    label.setVisible(contents.picture > 0);
    const int picture = std::clamp(contents.picture, 1, int(row->pictures.size()));
    const QString icon = QString::fromUtf16(row->pictures[size_t(picture) - 1]);
    label.setPixmap(
        iconNamed(m_context.paths, icon).pixmap({ pictureSize, pictureSize }, devicePixelRatioF()));
}

bool MainStatusBar::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        for (const QLabel *label : m_panels) {
            if (!label->toolTip().isEmpty() && label->geometry().contains(help->pos())) {
                QToolTip::showText(help->globalPos(), label->toolTip(), this);
                return true;
            }
        }
    }
    return QStatusBar::event(event);
}

void MainStatusBar::mouseMoveEvent(QMouseEvent *event)
{
    const StatusHover hover = statusBarHover(twipsFromPixels(event->pos().x()), edges(),
                                             m_context.status.modePicture() != selectorOff,
                                             m_context.settings.of<SharedSettings>().PilotCallsign);
    if (hover.wantsModeTooltip) {
        Q_EMIT modeTooltipWanted();
    } else {
        m_context.status.setText(hover.text);
    }
}

void MainStatusBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) {
        return;
    }
    const StatusPress press =
        statusBarPress(twipsFromPixels(event->pos().x()), event->button() == Qt::RightButton);
    if (press != StatusPress::None) {
        Q_EMIT endPressed(press);
    }
}

void MainStatusBar::mouseReleaseEvent(QMouseEvent *event)
{
    const int x = event->pos().x();
    if (x >= panel(StatusPanel::Mode).x() && x < panel(StatusPanel::Line).x()) {
        Q_EMIT modePanelClicked(event->button());
    }
}

namespace {

constexpr int beerSpotFrom = 6000;
constexpr int beerSpotTo = 6200;
constexpr int leftEnd = 320;

} // namespace

StatusHover statusBarHover(int xTwips, const StatusPanelEdges &edges, bool selectorOn,
                           const QString &callsign)
{
    if (xTwips >= beerSpotFrom && xTwips <= beerSpotTo) {
        return { u"Hey "_s + callsign
                     + u", what say you and I give up on this and go and grab a beer?"_s,
                 false };
    }
    if (xTwips >= edges.panel2 && xTwips < edges.panel3) {
        if (selectorOn) {
            return { {}, true };
        }
        return { u" Cougar mode selector is off. Left click to activate and change buttons mode"_s,
                 false };
    }
    return { u"Hi there "_s + callsign + u", I'm the status bar"_s, false };
}

StatusPress statusBarPress(int xTwips, bool rightButton)
{
    if (xTwips >= leftEnd) {
        return StatusPress::None;
    }
    return rightButton ? StatusPress::Compile : StatusPress::ColourAndSave;
}

} // namespace zeph
