#pragma once

#include "graph/GraphCanvas.h"
#include "graph/GraphStyle.h"
#include "graph/TextLayout.h"

#include <string>

namespace TARN {

/// Draws as the elements of an SVG picture, the same bytes on every machine: places are rounded to
/// tenths of a pixel, and texts are in whatever font of equal widths the reader has.
class SvgCanvas : public GraphCanvas
{
public:
    // Of the texts, which stand where a font of these measures has room.
    static constexpr double Character = 7.83; ///< pixels, 0.602 of the size
    static constexpr double Line = 16.0;

    /// A picture of this size in pixels, whose drawing is as high as \p height and stands at its
    /// upper edge; \p label says what it shows. Pictures of one page have a \p number each.
    SvgCanvas(const QSizeF& whole, double height, const QString& label, const GraphColor& ground,
              int number);

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

    /// Puts placed texts on top of it all, on their plates.
    void addTexts(const TextLayout& texts, const GraphStyle& style);

    /// The picture; nothing can be drawn any more.
    std::string end();

private:
    void number(double value);
    void point(double x, double y);
    void rectangle(const QRectF& box, const GraphColor& color, float alpha);
    void polyline(const float* points, int count, const GraphColor& color, const char* more);
    void segments(const std::vector<float>& points, const GraphColor& color, const char* more);

    double mHeight;
    std::string mName; ///< of what it clips by
    std::string mOut;
    int mClips = 0;
    bool mIsClipped = false;
};

} // namespace TARN
