#pragma once

#include "graph/CurveSet.h"
#include "graph/GraphView.h"

#include <vector>

namespace TARN {

/// The frames of a curve as points on the screen, x and y by turns, pixels from the lower left
/// corner of the widget.
class GraphLine
{
public:
    /// Points that belong together: a curve is interrupted where it has no numbers and in gaps.
    struct Strip
    {
        int first;
        int count;
    };

    /// The line through a curve's frames: in each column upright through first, low, high and
    /// last value, so that a peak is as wide as its column and the line to the next column starts
    /// where this one ended.
    void buildLine(const ParStruct& curve, const GraphView& view)
    {
        buildLine(curve.frames.frames(), curve.strip, view);
    }
    void buildLine(std::span<const FrameType> frames, const GraphStrip& strip,
                   const GraphView& view, bool withFillings = true);

    /// A point for each value that the frames hold.
    void buildSamples(const ParStruct& curve, const GraphView& view);

    const std::vector<float>& points() const { return mPoints; }
    const std::vector<Strip>& strips() const { return mStrips; }

    /// Upright lines, two points each, in pixel columns that lie skipped between two columns side
    /// by side: what both of them cover is covered there too, or solid bands would have slits.
    const std::vector<float>& fillings() const { return mFillings; }

private:
    class Scale;

    void addFrame(const FrameType& frame, const Scale& scale);
    void addFilling(const FrameType& left, const FrameType& right, const Scale& scale);
    void add(float x, float y);
    void endStrip();

    std::vector<float> mPoints;
    std::vector<Strip> mStrips;
    std::vector<float> mFillings;
    int mStripBegin = 0;
};

} // namespace TARN
