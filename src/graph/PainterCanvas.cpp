#include "graph/PainterCanvas.h"

#include <QtGui/QPainter>

#include <cmath>

namespace TARN {

PainterCanvas::PainterCanvas(QPainter& painter, double height) : mPainter(painter), mHeight(height)
{
    mPainter.setRenderHint(QPainter::Antialiasing, true);
}

void PainterCanvas::clip(double x, double y, double width, double height)
{
    mPainter.setClipRect(QRectF(x, mHeight - y - height, width, height));
}

void PainterCanvas::clipNone()
{
    mPainter.setClipping(false);
}

void PainterCanvas::fill(double left, double bottom, double right, double top,
                         const GraphColor& color, float alpha)
{
    QColor shade = color.toColor();
    shade.setAlphaF(alpha);
    mPainter.fillRect(QRectF(left, mHeight - top, right - left, top - bottom), shade);
}

void PainterCanvas::strip(const float* points, int count, const GraphColor& color)
{
    mPainter.setPen(QPen(color.toColor(), 1.0));
    polyline(points, count);
}

void PainterCanvas::dashed(const float* points, int count, const GraphColor& color,
                           const GraphColor& between)
{
    strip(points, count, between);
    QPen pen(color.toColor(), 1.0);
    pen.setDashPattern({4.0, 4.0});
    mPainter.setPen(pen);
    polyline(points, count);
}

void PainterCanvas::polyline(const float* points, int count)
{
    QPolygonF polygon;
    polygon.reserve(count);
    for (int i = 0; i < count; ++i) {
        polygon.append({points[2 * i], mHeight - points[2 * i + 1]});
    }
    mPainter.drawPolyline(polygon);
}

QList<QLineF> PainterCanvas::linesOf(const std::vector<float>& points) const
{
    QList<QLineF> list;
    for (std::size_t i = 0; i + 3 < points.size(); i += 4) {
        list.append({points[i], mHeight - points[i + 1], points[i + 2], mHeight - points[i + 3]});
    }
    return list;
}

void PainterCanvas::lines(const std::vector<float>& points, const GraphColor& color)
{
    mPainter.setPen(QPen(color.toColor(), 1.0));
    mPainter.drawLines(linesOf(points));
}

void PainterCanvas::dotted(const std::vector<float>& points, const GraphColor& color)
{
    QPen pen(color.toColor(), 1.0);
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({1.0, 1.0});
    mPainter.setPen(pen);
    mPainter.drawLines(linesOf(points));
}

void PainterCanvas::dots(const float* points, int count, const GraphColor& color, float size)
{
    const QColor paint = color.toColor();
    for (int i = 0; i < count; ++i) {
        mPainter.fillRect(QRectF(points[2 * i] - size / 2.0,
                                 mHeight - points[2 * i + 1] - size / 2.0, size, size),
                          paint);
    }
}

double PainterCanvas::sharp(double pixel) const
{
    return std::floor(pixel) + 0.5;
}

} // namespace TARN
