#pragma once

#include "display/GraphTypes.h"

#include <QtCore/QSize>

#include <vector>

namespace TARN {

/// The few shapes that a graph is made of, drawn with fixed-function OpenGL that every driver
/// has. Coordinates are the widget's pixels from its lower left corner; points are x and y by
/// turns. Only between begin and end, with the widget's context current.
class GraphCanvas
{
public:
    /// Takes the context over from whoever drew before and fills the widget; \p ratio device
    /// pixels make a pixel.
    void begin(QSize size, double ratio, const GraphColor& background);
    void end();

    /// Draws inside this rectangle only until clipNone.
    void clip(double x, double y, double width, double height);
    void clipNone();

    void fill(double left, double bottom, double right, double top, const GraphColor& color,
              float alpha = 1.0F);

    // One pixel wide.
    void strip(const float* points, int count, const GraphColor& color);
    void lines(const std::vector<float>& points, const GraphColor& color, bool dotted = false);
    void dots(const float* points, int count, const GraphColor& color, float size);

    /// Where a level or upright line through \p pixel is drawn sharp.
    double sharp(double pixel) const;

private:
    void draw(unsigned mode, const float* points, int count, const GraphColor& color,
              float alpha = 1.0F) const;

    double mRatio = 1.0;
};

} // namespace TARN
