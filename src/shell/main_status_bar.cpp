// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/main_status_bar.h"

#include "platform/core/units.h"
#include "platform/icons.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <array>

namespace zeph {

namespace {

constexpr int pictureSize = 16;
constexpr int textIndent = 6;
constexpr int selectorOff = 1;
constexpr std::array modeIcons = { u"mode-off", u"mode-windows", u"mode-programmed",
                                   u"mode-unknown" };
constexpr std::array savedIcons = { u"saved-empty", u"saved-saved", u"saved-modified" };

/// The message line: a message that is too long ends in dots instead of widening the window.
class MessageLabel : public QLabel
{
public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override { return { 0, QLabel::minimumSizeHint().height() }; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QString shown =
            fontMetrics().elidedText(text(), Qt::ElideRight, width() - textIndent);
        style()->drawItemText(&painter, rect().adjusted(textIndent, 0, 0, 0),
                              Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                              foregroundRole());
    }
};

template <size_t Count>
QString iconOf(const std::array<const char16_t *, Count> &names, int picture)
{
    return QString::fromUtf16(names[size_t(std::clamp(picture, 1, int(Count)) - 1)]);
}

} // namespace

MainStatusBar::MainStatusBar(const Context &context, QWidget *parent)
    : QStatusBar(parent), m_context(context), m_message(new MessageLabel(this))
{
    setObjectName(u"StatusBar"_s);
    setMouseTracking(true);
    setContentsMargins(0, 0, textIndent, 0);
    m_message->setObjectName(u"Panel_1"_s);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_message->setAttribute(Qt::WA_TransparentForMouseEvents);
    addWidget(m_message, 1);
    m_standIns = makePanel(u"Panel_StandIns"_s, {});
    m_standIns->setText(u"Stand-in tools"_s);
    m_standIns->setToolTip(u"The tools in use are the stand-ins that come with Zeph: they check "
                           "files, and nothing reaches a stick."_s);
    m_mode = makePanel(u"Panel_2"_s, u"Cougar mode"_s);
    m_line = makePanel(u"Panel_3"_s, {});
    m_saved = makePanel(u"Panel_4"_s, u"Saved state"_s);
    m_line->setMinimumWidth(fontMetrics().horizontalAdvance(u"Line no: 99999"_s));

    const StatusLine &status = context.status;
    connect(&status, &StatusLine::textChanged, m_message, [this](const QString &text) {
        m_message->setText(text);
        m_message->update();
    });
    connect(&status, &StatusLine::repaintWanted, m_message, [this] { m_message->repaint(); });
    connect(&status, &StatusLine::textTooltipChanged, m_message, &QLabel::setToolTip);
    connect(&status, &StatusLine::lineTextChanged, m_line, &QLabel::setText);
    connect(&status, &StatusLine::modePictureChanged, this, &MainStatusBar::showMode);
    connect(&status, &StatusLine::savedChanged, this, &MainStatusBar::showSaved);
    connect(&status, &StatusLine::standInsChanged, m_standIns, &QLabel::setVisible);
    m_standIns->setVisible(status.standIns());
    m_message->setText(status.text());
    m_message->setToolTip(status.textTooltip());
    m_line->setText(status.lineText());
    setModeTooltip(u"Cougar mode selector is off"_s);
    showMode(status.modePicture());
    showSaved(status.savedPicture(), status.savedTooltip());
}

QLabel *MainStatusBar::makePanel(const QString &name, const QString &accessibleName)
{
    auto *panel = new QLabel(this);
    panel->setObjectName(name);
    panel->setAccessibleName(accessibleName);
    // The bar itself sees the mouse, so that one rule decides by the distance from its left end.
    panel->setAttribute(Qt::WA_TransparentForMouseEvents);
    addPermanentWidget(panel);
    return panel;
}

StatusPanelEdges MainStatusBar::edges() const
{
    return { twipsFromPixels(m_mode->x()), twipsFromPixels(m_line->x()) };
}

QString MainStatusBar::modeTooltip() const
{
    return m_mode->toolTip();
}

void MainStatusBar::setModeTooltip(const QString &tooltip)
{
    m_mode->setToolTip(tooltip);
}

void MainStatusBar::showMode(int picture)
{
    m_mode->setPixmap(iconNamed(m_context.paths, iconOf(modeIcons, picture))
                          .pixmap({ pictureSize, pictureSize }, devicePixelRatioF()));
}

void MainStatusBar::showSaved(int picture, const QString &tooltip)
{
    m_saved->setPixmap(iconNamed(m_context.paths, iconOf(savedIcons, picture))
                           .pixmap({ pictureSize, pictureSize }, devicePixelRatioF()));
    m_saved->setToolTip(tooltip);
}

bool MainStatusBar::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        for (const QLabel *panel : { m_message, m_standIns, m_mode, m_saved }) {
            if (panel->isVisible() && panel->geometry().contains(help->pos())) {
                QToolTip::showText(help->globalPos(), panel->toolTip(), this);
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
    if (x >= m_mode->x() && x < m_line->x()) {
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
