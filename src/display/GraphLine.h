#pragma once

#include "display/GraphTypes.h"

#include <vector>

namespace TARN {

/// The frames of a curve as points on the screen, x and y by turns, pixels from the lower left
/// corner of the widget.
class GraphLine
{
public:
    /// Points that belong together: a curve is interrupted where it has no numbers.
    struct Strip
    {
        int first;
        int count;
    };

    /// The line through a curve's frames. Where columns stand side by side, the ends of a column
    /// do for all of its values: what lies between them is covered.
    void buildLine(const ParStruct& curve, const GraphView& view);

    /// A point for each value that the frames hold.
    void buildSamples(const ParStruct& curve, const GraphView& view);

    const std::vector<float>& points() const { return mPoints; }
    const std::vector<Strip>& strips() const { return mStrips; }

private:
    class Scale;

    void addFrame(const FrameType& frame, float x, const Scale& scale);
    void addColumn(const FrameType& frame, float x, const Scale& scale);
    void add(float x, float y);
    void endStrip();

    std::vector<float> mPoints;
    std::vector<Strip> mStrips;
    int mStripBegin = 0;
};

} // namespace TARN
