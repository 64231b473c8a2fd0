#pragma once

#include "graph/GraphTypes.h"

#include <QtCore/QSize>

#include <vector>

namespace TARN {

/// The few shapes that a graph is made of. Coordinates are pixels from the lower left corner;
/// points are x and y by turns.
class GraphCanvas
{
public:
    virtual ~GraphCanvas() = default;

    /// Draws inside this rectangle only, until clipNone.
    virtual void clip(double x, double y, double width, double height) = 0;
    virtual void clipNone() = 0;

    virtual void fill(double left, double bottom, double right, double top, const GraphColor& color,
                      float alpha = 1.0F) = 0;

    // One pixel wide.
    virtual void strip(const float* points, int count, const GraphColor& color) = 0;
    /// The same in dashes, with another colour between them.
    virtual void dashed(const float* points, int count, const GraphColor& color,
                        const GraphColor& between) = 0;
    virtual void lines(const std::vector<float>& points, const GraphColor& color) = 0;
    /// Level and upright lines of which every other pixel is drawn.
    virtual void dotted(const std::vector<float>& points, const GraphColor& color) = 0;
    virtual void dots(const float* points, int count, const GraphColor& color, float size) = 0;

    /// Where a level or upright line through \p pixel is drawn sharp.
    virtual double sharp(double pixel) const = 0;
};

} // namespace TARN
