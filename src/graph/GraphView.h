#pragma once

namespace TARN {

/// A level part of the plot in which curves are drawn, and the Y range that it shows. Pixels are
/// counted from the bottom of the widget.
struct GraphStrip
{
    double y0 = 0.0;
    double height = 0.0;
    double min = -0.5;
    double max = 1.5;

    // Values to pixels and back. A strip or a range without extent has one place only.
    double toPixel(double value) const;
    double toValue(double y) const;
};

/// The plot area in pixels from the lower left corner of the widget, and what it shows.
struct GraphView
{
    double x0 = 0.0;
    double y0 = 0.0;
    double width = 0.0;
    double height = 0.0;
    double xmin = 0.0; ///< seconds
    double xmax = 60.0;
    double ymin = -0.5; ///< of the Y range that curves share
    double ymax = 1.5;
    double base = 0.0; ///< lower edge of the lanes under the plot; its own where there are none

    /// Seconds that one pixel stands for.
    double pixelTime() const { return (xmax - xmin) / width; }

    /// All of the plot, in the Y range that curves share.
    GraphStrip whole() const { return {y0, height, ymin, ymax}; }

    // Times and values to pixels and back. A plot or a range without extent has one place only.
    double xToViewport(double time) const;
    double yToViewport(double value) const { return whole().toPixel(value); }
    double yToViewport(const GraphStrip& strip, double value) const { return strip.toPixel(value); }
    double viewportToX(double x) const;
    double viewportToY(double y) const { return whole().toValue(y); }
    double viewportToY(const GraphStrip& strip, double y) const { return strip.toValue(y); }

    // Pixels as parts of the plot's extent, 0 to 1.
    double viewportToRelX(double x) const;
    double viewportToRelY(double y) const;
};

} // namespace TARN
