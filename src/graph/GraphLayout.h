#pragma once

#include "graph/CurveSet.h"
#include "graph/GraphData.h"
#include "graph/ValueAxis.h"

#include <QtCore/QSizeF>

#include <functional>
#include <span>
#include <vector>

namespace TARN {

/// How the curves of the reference flight lie beside the others.
struct ReferencePlace
{
    double shift = 0.0; ///< seconds that bring them to the clock of the others
    bool isShown = true;

    /// What the view is to them: on their own clock.
    GraphView viewOf(GraphView view) const
    {
        view.xmin -= shift;
        view.xmax -= shift;
        return view;
    }
};

/// Lines under the strips, for what is no curve.
struct GraphLanes
{
    unsigned count = 0;
    double height = 0.0; ///< of each, pixels
};

/// Where what a graph shows lies in its widget: the plot area, the columns of the curves, their
/// strips and scales, the axes. Brought up to date when it is next asked for, so that any number
/// of changes between two paints costs one pass over the samples in sight.
class GraphLayout
{
public:
    /// Of these curves, which live as long.
    explicit GraphLayout(CurveSet& curves) : mCurves(curves) {}

    /// Places the plot area in a widget of this size.
    void setSize(double width, double height);
    QSizeF size() const { return {mWidth, mHeight}; }

    /// Lines under the strips, for what is no curve; as many as leave the strips room to be read.
    void setLanes(unsigned count) { mWantedLanes = count; }
    const GraphLanes& lanes() const { return mLanes; }
    /// The visible time, seconds. Frames that hold what is in sight already stay.
    void setTimes(double min, double max);
    /// How the reference curves lie.
    void setReference(const ReferencePlace& place);
    const ReferencePlace& reference() const { return mReference; }
    /// The Y range, for as long as it is not taken from the curves; what is no number is ignored.
    void setValues(double min, double max);
    /// Takes the Y range, and in split mode that of each curve, from what is in sight.
    void setAutoScaleY(bool on);
    bool isAutoScaleY() const { return mAutoScaleY; }
    /// Scales the Y range of a strip about its value in a pixel row, in single mode the common
    /// one; a factor below 1 makes things larger. It holds until resetZoomY.
    void zoomY(double y, double factor);
    void resetZoomY();
    void setDisplayMode(eDisplayMode mode) { mDisplayMode = mode; }
    eDisplayMode displayMode() const { return mDisplayMode; }

    /// Curves, or the time in sight, are others: their columns are found anew.
    void refresh() { mStale = true; }
    /// Adds a sample that a curve has got behind all others.
    void add(ParStruct& curve, double time, double value);

    /// Width of a text in pixels.
    using Measure = std::function<double(const QString&)>;
    /// Brings frames, scales and axes up to date: what is drawn then is what the curves are now.
    /// The plot has at least so many pixels on its left.
    void prepare(const Measure& measure, double lineHeight, double leastMargin = 0.0);

    const GraphView& view() const { return mView; }
    /// Axis of a curve's strip in split mode, by index; the common axis in single mode.
    const ValueAxis& axis(unsigned i) const;
    /// Axes of the curves' differences, by index; in single mode they are all the same.
    const std::vector<ValueAxis>& differenceAxes() const { return mDifferenceAxes; }
    /// The frames of a curve, up to date.
    std::span<const FrameType> frames(unsigned i);

private:
    bool isStale() const { return mStale || mFrameWidth != mView.width; }
    void updateFrames();
    void findFrames(void (CurveFrames::*find)(const CurveSamples&, const FrameWindow&));
    void placeByLabels(const Measure& measure, double lineHeight, double leastMargin);
    void updateScales();
    void placeLanes(double lineHeight);

    CurveSet& mCurves;
    GraphView mView;
    ReferencePlace mReference;
    double mWidth = 0.0; ///< of the widget, pixels
    double mHeight = 0.0;
    unsigned mWantedLanes = 0;
    GraphLanes mLanes;
    eDisplayMode mDisplayMode = DisplaySingle;
    bool mAutoScaleY = true;
    ValueRange mFixed{-0.5, 1.5};      ///< Y range where it is not taken from the curves
    std::optional<ValueRange> mZoomed; ///< common Y range by zoomY
    bool mStale = true;                ///< frames are rebuilt when they are next needed
    double mFrameWidth = 0.0;          ///< plot width that the frames were built for
    std::vector<ValueAxis> mAxes;
    std::vector<ValueAxis> mDifferenceAxes;
};

} // namespace TARN
