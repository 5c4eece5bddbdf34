// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/picture_plan.h"

#include <algorithm>

namespace zeph {

namespace {

/// A place across the picture at scale 1, and how much of the width that is left over is to the
/// left of it.
struct Across {
    qreal at;
    qreal share;
};

/// A rectangle between two places across and two down.
struct Area {
    Across left;
    Across right;
    qreal top;
    qreal bottom;
};

constexpr Across leftEdge{ 0, 0 };
constexpr Across rightEdge{ 924, 1 };

constexpr Area titleArea{ leftEdge, { 330, .25 }, 4, 34 };
constexpr Area throttleArea{ { 172, .25 }, { 377, .25 }, 44, 270 };
constexpr Area stickArea{ { 412, .5 }, { 650, .5 }, 280, 592 };

/// Labels below each other in one column.
struct Stack {
    Area area;
    /// Where the lines leave the column.
    bool toTheRight;
    std::array<int, 7> rows; ///< from top to bottom; 0 after the last
};

constexpr qreal gap = 4;
/// The rows have the order in which the controls are on the drawings, so that no two lines cross.
constexpr std::array stacks = {
    Stack{ { leftEdge, { 160, .25 }, 44, 270 }, true, { 57, 6, 58, 3, 4, 5, 2 } },
    Stack{ { { 390, .25 }, { 600, .5 }, 44, 270 }, false, { 7, 8, 1, 9, 10 } },
    Stack{ { { 215, .25 }, { 404, .5 }, 280, 340 }, true, { 16, 15 } },
    Stack{ { { 215, .25 }, { 404, .5 }, 362, 562 }, true, { 19, 20, 17, 18 } },
};

constexpr int microstickRow = 1;
constexpr qreal captionHeight = 15;

/// A hat's frame, and where its line leaves it.
struct HatFrame {
    Area area;
    bool toTheRight;
    qreal lineTop; ///< how far down the frame, at scale 1
};

constexpr std::array<HatFrame, hatCount> hatFrames = {
    HatFrame{ { { 664, .5 }, rightEdge, 0, 194 }, false, 186 },
    HatFrame{ { { 664, .5 }, rightEdge, 200, 394 }, false, 120 },
    HatFrame{ { { 664, .5 }, rightEdge, 400, 594 }, false, 70 },
    HatFrame{ { leftEdge, { 203, .25 }, 341, 535 }, true, 10 },
};
constexpr qreal hatNameHeight = 18;
constexpr qreal framePadding = 3;

constexpr qreal positionTop = 3;
constexpr qreal positionHeight = 32;
constexpr qreal positionWidth = 40;
/// The boxes' places across, S3's apart from the dogfight switch's.
constexpr std::array<qreal, positionCount> positionLefts = { 352, 396, 440, 500, 544 };

/// Turns places of the tables into pixels.
class Grid
{
public:
    explicit Grid(const QSizeF &widget)
    {
        const QSizeF room(widget.width() - 2 * pictureMargin, widget.height() - 2 * pictureMargin);
        m_scale = std::max(
            1.0,
            std::min(room.width() / pictureSize.width(), room.height() / pictureSize.height()));
        m_size = QSizeF(std::max<qreal>(pictureSize.width(), room.width() / m_scale),
                        std::max<qreal>(pictureSize.height(), room.height() / m_scale));
        m_corner = QPointF(
            std::max<qreal>(pictureMargin, (widget.width() - m_size.width() * m_scale) / 2),
            std::max<qreal>(pictureMargin, (widget.height() - m_size.height() * m_scale) / 2));
    }

    qreal scale() const { return m_scale; }
    qreal across(Across place) const
    {
        return m_corner.x()
            + m_scale * (place.at + place.share * (m_size.width() - pictureSize.width()));
    }
    qreal down(qreal place) const
    {
        return m_corner.y() + m_scale * place * m_size.height() / pictureSize.height();
    }
    QRectF area(const Area &area) const
    {
        return { QPointF(across(area.left), down(area.top)),
                 QPointF(across(area.right), down(area.bottom)) };
    }

private:
    qreal m_scale;
    QSizeF m_size; ///< at scale 1
    QPointF m_corner;
};

int countOf(const Stack &stack)
{
    return int(std::ranges::find(stack.rows, 0) - stack.rows.begin());
}

void placeStack(PicturePlan &plan, const Grid &grid, const Stack &stack)
{
    const QRectF area = grid.area(stack.area);
    const bool hasCaption = std::ranges::find(stack.rows, microstickRow) != stack.rows.end();
    const qreal caption = hasCaption ? captionHeight * grid.scale() : 0;
    const int count = countOf(stack);
    const qreal height = (area.height() - caption) / count;
    qreal top = area.top();
    for (int at = 0; at < count; ++at) {
        const int row = stack.rows[size_t(at)];
        if (row == microstickRow) {
            plan.microstick = QRectF(area.left(), top, area.width(), caption);
            top += caption;
        }
        plan.labels[size_t(row - 1)] =
            QRectF(area.left(), top, area.width(), height - gap * grid.scale());
        top += height;
    }
}

void placeHat(PicturePlan &plan, const Grid &grid, int hat)
{
    const QRectF frame = grid.area(hatFrames[size_t(hat)].area);
    const qreal name = hatNameHeight * grid.scale();
    const qreal padding = framePadding * grid.scale();
    plan.hats[size_t(hat)] = frame;
    plan.hatNames[size_t(hat)] = name;
    const qreal height = (frame.height() - name - padding) / hatRowCount;
    for (int at = 0; at < hatRowCount; ++at) {
        plan.labels[size_t(firstHatRow + hat * hatRowCount + at - 1)] =
            QRectF(frame.left() + padding, frame.top() + name + at * height,
                   frame.width() - 2 * padding, height);
    }
}

const Stack *stackOf(int row)
{
    const auto found = std::ranges::find_if(stacks, [row](const Stack &stack) {
        return std::ranges::find(stack.rows, row) != stack.rows.end();
    });
    return found == stacks.end() ? nullptr : &*found;
}

} // namespace

PicturePlan picturePlan(const QSizeF &widget)
{
    const Grid grid(widget);
    PicturePlan plan;
    plan.scale = grid.scale();
    plan.picture = grid.area({ leftEdge, rightEdge, 0, qreal(pictureSize.height()) });
    plan.throttle = grid.area(throttleArea);
    plan.stick = grid.area(stickArea);
    plan.title = grid.area(titleArea);
    for (size_t at = 0; at < positionLefts.size(); ++at) {
        plan.positions[at] =
            QRectF(grid.across({ positionLefts[at], .375 }), grid.down(positionTop),
                   positionWidth * grid.scale(), positionHeight * grid.scale());
    }
    for (const Stack &stack : stacks) {
        placeStack(plan, grid, stack);
    }
    for (int hat = 0; hat < hatCount; ++hat) {
        placeHat(plan, grid, hat);
    }
    return plan;
}

std::vector<QPointF> joiningLine(const PicturePlan &plan, int row, const QPointF &control)
{
    if (const int hat = hatOfRow(row); hat >= 0) {
        const HatFrame &kind = hatFrames[size_t(hat)];
        const QRectF &frame = plan.hats[size_t(hat)];
        const qreal down =
            frame.top() + kind.lineTop / (kind.area.bottom - kind.area.top) * frame.height();
        if (hat == 0) {
            // The line goes round the column beside the frame, below its last label.
            const QRectF &last = plan.label(stacks[1].rows[4]);
            return { QPointF(frame.left(), down),
                     QPointF((last.right() + frame.left()) / 2, plan.stick.top()), control };
        }
        if (!kind.toTheRight) {
            return { QPointF(frame.left(), down), control };
        }
        // The line goes between two labels of the column beside the frame.
        return { QPointF(frame.right(), down), QPointF(plan.label(stacks[3].rows[0]).right(), down),
                 control };
    }
    const Stack *stack = stackOf(row);
    if (!stack) {
        return {};
    }
    const QRectF &label = plan.label(row);
    return { QPointF(stack->toTheRight ? label.right() : label.left(), label.center().y()),
             control };
}

} // namespace zeph
