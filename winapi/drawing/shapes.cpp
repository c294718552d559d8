// Lines, frames and filled shapes, pixel by pixel as the Windows calls place them.
#include "context_painter.h"

#include <cmath>
#include <cstdlib>
#include <span>

namespace winapi {

namespace {

bool isThin(const Pen& pen)
{
    return pen.width <= 1;
}

QPen toWidePen(const Pen& pen)
{
    return QPen(toColor(pen.color), pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// Wide pens run along the middle of pixels.
QPointF middle(QPoint pixel)
{
    return QPointF(pixel) + QPointF(0.5, 0.5);
}

// Calls `visit` with each pixel from `from` up to and without `to` (Bresenham, 1965).
template <class Visit>
void walkLine(QPoint from, QPoint to, Visit visit)
{
    const QPoint distance = to - from;
    const QPoint length(std::abs(distance.x()), std::abs(distance.y()));
    const QPoint step(distance.x() < 0 ? -1 : 1, distance.y() < 0 ? -1 : 1);
    int error = length.x() - length.y();
    for (QPoint pixel = from; pixel != to;) {
        visit(pixel);
        const int doubled = 2 * error;
        if (doubled > -length.y()) {
            error -= length.y();
            pixel.rx() += step.x();
        }
        if (doubled < length.x()) {
            error += length.x();
            pixel.ry() += step.y();
        }
    }
}

// The pixels of a level or upright line without its end point.
QRect straightLine(QPoint from, QPoint to)
{
    const QPoint step(from.x() == to.x() ? 0 : (to.x() > from.x() ? 1 : -1),
                      from.y() == to.y() ? 0 : (to.y() > from.y() ? 1 : -1));
    const QPoint last = to - step;
    return QRect(QPoint(std::min(from.x(), last.x()), std::min(from.y(), last.y())),
                 QPoint(std::max(from.x(), last.x()), std::max(from.y(), last.y())));
}

// The line in whole pixels of the screen, so that all lines are equally thick, even if a logical pixel is 1.5
// of them.
QRectF evenLine(const QRect& line, qreal devicePixelRatio)
{
    const qreal thickness = std::floor(devicePixelRatio) / devicePixelRatio;
    QRectF even(line);
    if (line.height() == 1)
        even.setHeight(thickness);
    if (line.width() == 1)
        even.setWidth(thickness);
    return even;
}

// On a dense screen a slanted line need not be made of squares.
void drawSmoothLine(QPainter& painter, const QColor& color, QPoint from, QPoint to)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1));
    painter.drawLine(middle(from), middle(to));
    painter.restore();
}

void drawThinLine(ContextPainter& painter, const DrawingState& state, QPoint from, QPoint to)
{
    const COLORREF color = state.pen->color;
    const qreal ratio = painter->device()->devicePixelRatioF();
    if (from.x() == to.x() || from.y() == to.y()) {
        const QRect line = straightLine(from, to);
        return ratio == std::floor(ratio) ? painter.fill(line, color)
                                          : painter->fillRect(evenLine(line, ratio), toColor(color));
    }
    if (ratio > 1)
        return drawSmoothLine(*painter, toColor(color), from, to);
    walkLine(from, to, [&](QPoint pixel) { painter.fill(QRect(pixel, QSize(1, 1)), color); });
}

void drawLine(ContextPainter& painter, const DrawingState& state, QPoint from, QPoint to)
{
    if (from == to)
        return;
    if (isThin(*state.pen.object))
        return drawThinLine(painter, state, from, to);
    painter->setPen(toWidePen(*state.pen.object));
    painter->drawLine(middle(from), middle(to));
}

// What a line or an outline may touch around the area that its points span.
QRect touchedBy(const QRect& area, const Pen& pen)
{
    const int margin = pen.width / 2 + 1;
    return area.normalized().adjusted(-margin, -margin, margin, margin);
}

QPolygon toPolygon(std::span<const POINT> points)
{
    QPolygon polygon;
    for (const POINT& point : points)
        polygon << QPoint(point.x, point.y);
    return polygon;
}

// The outline of `frame`'s outermost pixels, clockwise from the upper left.
QPolygon corners(const QRect& frame)
{
    return QPolygon(
        {frame.topLeft(), frame.topRight(), frame.bottomRight(), frame.bottomLeft(), frame.topLeft()});
}

void drawLines(ContextPainter& painter, const DrawingState& state, const QPolygon& points)
{
    for (qsizetype i = 1; i < points.size(); ++i)
        drawLine(painter, state, points[i - 1], points[i]);
}

// The pixels between edges that may come in either order.
QRect between(int left, int top, int right, int bottom)
{
    return QRect(QPoint(std::min(left, right), std::min(top, bottom)),
                 QPoint(std::max(left, right) - 1, std::max(top, bottom) - 1));
}

// What FillRect fills. It takes the lengths of an inverted rectangle as negative ones, which start at the
// pixel of the edge itself.
QRect filledArea(const RECT& rect)
{
    const QRect area = between(rect.left, rect.top, rect.right, rect.bottom);
    return area.translated(rect.right < rect.left ? 1 : 0, rect.bottom < rect.top ? 1 : 0);
}

void fillFrame(ContextPainter& painter, const QRect& rect, COLORREF color)
{
    painter.fill(QRect(rect.topLeft(), QSize(rect.width(), 1)), color);
    painter.fill(QRect(rect.bottomLeft(), QSize(rect.width(), 1)), color);
    painter.fill(QRect(rect.topLeft(), QSize(1, rect.height())), color);
    painter.fill(QRect(rect.topRight(), QSize(1, rect.height())), color);
}

void invert(QPainter& painter, const QRect& rect)
{
    painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    painter.fillRect(rect, Qt::white);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

}

}

using namespace winapi;

BOOL LineTo(HDC dc, int x, int y)
{
    const auto context = findContext(dc);
    if (!context)
        return FALSE;
    const QPoint to(x, y);
    const QPoint from = std::exchange(context->state.position, to);
    ContextPainter painter(*context, touchedBy(QRect(from, to), *context->state.pen.object));
    if (painter)
        drawLine(painter, context->state, from, to);
    return TRUE;
}

BOOL Polygon(HDC dc, const POINT* points, int count)
{
    const auto context = findContext(dc);
    if (!context || !points || count < 2)
        return FALSE;
    QPolygon polygon = toPolygon({points, static_cast<std::size_t>(count)});
    polygon << polygon.first();
    ContextPainter painter(*context, touchedBy(polygon.boundingRect(), *context->state.pen.object));
    if (!painter)
        return TRUE;
    painter->setPen(Qt::NoPen);
    painter->setBrush(toColor(context->state.brush->color));
    // The outline runs along the middle of its pixels.
    painter->drawPolygon(QPolygonF(polygon).translated(middle({})));
    drawLines(painter, context->state, polygon);
    return TRUE;
}

BOOL Rectangle(HDC dc, int left, int top, int right, int bottom)
{
    const auto context = findContext(dc);
    if (!context)
        return FALSE;
    const DrawingState& state = context->state;
    const QRect area = between(left, top, right, bottom);
    if (area.width() < 2 || area.height() < 2)
        return TRUE;
    ContextPainter painter(*context, touchedBy(area, *state.pen.object));
    if (!painter)
        return TRUE;
    painter.fill(area, state.brush->color);
    drawLines(painter, state, corners(area));
    return TRUE;
}

int FillRect(HDC dc, const RECT* rect, HBRUSH handle)
{
    const auto context = findContext(dc);
    const auto brush = findBrush(handle);
    if (!context || !rect || !brush)
        return 0;
    const QRect area = filledArea(*rect);
    ContextPainter painter(*context, area);
    if (painter)
        painter.fill(area, brush->color);
    return 1;
}

int FrameRect(HDC dc, const RECT* rect, HBRUSH handle)
{
    const auto context = findContext(dc);
    const auto brush = findObject<Brush>(handle);
    if (!context || !rect || !brush || isEmpty(*rect))
        return 0;
    const QRect area = toQRect(*rect);
    ContextPainter painter(*context, area);
    if (painter)
        fillFrame(painter, area, brush->color);
    return 1;
}

BOOL DrawFocusRect(HDC dc, const RECT* rect)
{
    const auto context = findContext(dc);
    if (!context || !rect || isEmpty(*rect))
        return FALSE;
    const QRect area = toQRect(*rect);
    ContextPainter painter(*context, area);
    if (!painter)
        return TRUE;
    // Every second pixel, so that drawing it twice takes it away.
    const QPolygon outline = corners(area);
    for (qsizetype i = 1; i < outline.size(); ++i)
        walkLine(outline[i - 1], outline[i], [&](QPoint pixel) {
            if ((pixel.x() + pixel.y()) % 2 == 0)
                invert(*painter, QRect(pixel, QSize(1, 1)));
        });
    return TRUE;
}
