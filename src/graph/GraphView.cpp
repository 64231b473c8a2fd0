#include "graph/GraphView.h"

#include <algorithm>

namespace TARN {

namespace {

/// \p value, which is between \p from and \p from + \p span, on the axis that starts at \p to.
double map(double value, double from, double span, double extent, double to)
{
    return span == 0.0 ? to : (value - from) * extent / span + to;
}

} // namespace

double GraphStrip::toPixel(double value) const
{
    return map(value, min, max - min, height, y0);
}

double GraphStrip::toValue(double y) const
{
    return map(y, y0, height, max - min, min);
}

double GraphView::xToViewport(double time) const
{
    return map(time, xmin, xmax - xmin, width, x0);
}

double GraphView::viewportToX(double x) const
{
    return map(x, x0, width, xmax - xmin, xmin);
}

double GraphView::viewportToRelX(double x) const
{
    return std::clamp(map(x, x0, width, 1.0, 0.0), 0.0, 1.0);
}

double GraphView::viewportToRelY(double y) const
{
    return std::clamp(map(y, y0, height, 1.0, 0.0), 0.0, 1.0);
}

} // namespace TARN
