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

    void addDashes(const float* start, const float* stop);

    double mRatio = 1.0;
    float mWidth = 0.0F;           ///< pixels
    std::vector<float> mPoints;    ///< of what is dashed; kept to spare allocations
    std::vector<unsigned> mDashes; ///< numbers of the points at both ends of segments
    std::vector<unsigned> mGaps;
};

} // namespace TARN
