#pragma once

#include "graph/GraphScale.h"
#include "graph/GraphView.h"

namespace TARN {

/// The value axis of a strip: its ticks, and the labels that fit beside it.
struct ValueAxis
{
    struct Label
    {
        double y; ///< its middle, pixels from the bottom of the widget
        QString text;
    };

    GraphTicks ticks;
    std::vector<Label> labels;

    /// A strip that is one of several has at least the two ends of its range beside it, within
    /// its own height; \p lineHeight of a label in pixels.
    static ValueAxis ofStrip(const GraphStrip& strip, double lineHeight);

    /// The axis that all curves share; its labels may stand out above and below.
    static ValueAxis ofPlot(const GraphStrip& plot);
};

} // namespace TARN
