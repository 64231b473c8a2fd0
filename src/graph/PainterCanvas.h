#pragma once

#include "graph/GraphCanvas.h"

#include <QtCore/QLineF>
#include <QtCore/QList>

class QPainter;

namespace TARN {

/// Draws with a painter, on an image, a page or a picture of vectors: where there is no OpenGL.
class PainterCanvas : public GraphCanvas
{
public:
    /// The painter, whose origin is the upper left corner of an area of this height, outlives the
    /// canvas.
    PainterCanvas(QPainter& painter, double height);

    void clip(double x, double y, double width, double height) override;
    void clipNone() override;
    void fill(double left, double bottom, double right, double top, const GraphColor& color,
              float alpha = 1.0F) override;
    void strip(const float* points, int count, const GraphColor& color) override;
    void dashed(const float* points, int count, const GraphColor& color,
                const GraphColor& between) override;
    void lines(const std::vector<float>& points, const GraphColor& color) override;
    void dotted(const std::vector<float>& points, const GraphColor& color) override;
    void dots(const float* points, int count, const GraphColor& color, float size) override;
    double sharp(double pixel) const override;

private:
    void polyline(const float* points, int count);
    QList<QLineF> linesOf(const std::vector<float>& points) const;

    QPainter& mPainter;
    double mHeight;
};

} // namespace TARN
