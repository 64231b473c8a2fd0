#pragma once

#include "graph/GraphCanvas.h"

#include <vector>

namespace TARN {

/// Draws with fixed-function OpenGL that every driver has. Only between begin and end, with a
/// context current.
class GlCanvas : public GraphCanvas
{
public:
    /// Takes the context over from whoever drew before and fills it; \p ratio device pixels make
    /// a pixel.
    void begin(QSize size, double ratio, const GraphColor& background);
    void end();

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
    void draw(unsigned mode, const float* points, int count, const GraphColor& color,
              float alpha = 1.0F) const;

    struct Line
    {
        float x0;
        float y0;
        float x1;
        float y1;
    };

    struct Run;
    template <typename Add>
    void eachLine(const float* points, int count, Add add) const;
    void addDashes(Line line);
    Line column(const Run& run) const;
    void drawLines(const std::vector<Line>& lines, const GraphColor& color) const;

    double mRatio = 1.0;
    float mWidth = 0.0F;      ///< pixels
    int mHanded = 0;          ///< points of strips since the driver was told to begin
    std::vector<Line> mLines; ///< kept to spare allocations
    std::vector<Line> mGaps;
};

} // namespace TARN
