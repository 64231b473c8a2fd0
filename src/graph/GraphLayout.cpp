#include "graph/GraphLayout.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr double Bottom = 40.0; ///< pixels below the plot
constexpr double Top = 10.0;
constexpr double Right = 10.0;
constexpr double DifferencePart = 0.35; ///< of a strip's height
constexpr double LabelGap = 20.0;       ///< pixels that stand free left of the widest value label

/// A tenth more on each side; something where there is no extent.
ValueRange widened(const ValueRange& range)
{
    const double margin = std::max(range.high - range.low, 0.001) * 0.1;
    return {range.low - margin, range.high + margin};
}

ValueRange visibleRange(std::span<const FrameType> frames)
{
    ValueRange range;
    for (const FrameType& frame : frames) {
        const ValueRange part = frame.range();
        if (std::isfinite(part.low)) {
            range.widen(part.low);
        }
        if (std::isfinite(part.high)) {
            range.widen(part.high);
        }
    }
    return range;
}

/// What a curve shows in its strip, its reference included.
ValueRange visibleRange(const ParStruct& curve)
{
    ValueRange range = curve.visible;
    range.widen(visibleRange(curve.reference.frames.frames()));
    return range;
}

/// Zero is always in sight.
ValueRange differenceRange(const ParStruct& curve)
{
    ValueRange range = visibleRange(curve.difference.frames.frames());
    range.widen(0.0);
    return range;
}

/// The difference has the lower part.
void divideStrip(ParStruct& curve)
{
    const double below = DifferencePart * curve.strip.height;
    const ValueRange range = widened(differenceRange(curve));
    curve.differenceStrip = {curve.strip.y0, below, range.low, range.high};
    curve.strip.y0 += below;
    curve.strip.height -= below;
}

double widestLabel(const std::vector<ValueAxis>& axes, const GraphLayout::Measure& measure)
{
    double widest = 0.0;
    for (const ValueAxis& axis : axes) {
        for (const ValueAxis::Label& label : axis.labels) {
            widest = std::max(widest, std::ceil(measure(label.text)));
        }
    }
    return widest;
}

} // namespace

void GraphLayout::setSize(double width, double height)
{
    mWidth = width;
    mHeight = height;
    placeLanes(mLanes.height);
    placePlot(mView.x0 > 0.0 ? mView.x0 : Bottom + LabelGap);
}

void GraphLayout::setTimes(double min, double max)
{
    mView.xmin = min;
    mView.xmax = max;
}

void GraphLayout::setReference(double shift, bool isShown)
{
    mReferenceShift = shift;
    mIsReferenceShown = isShown;
    mStale = true;
}

GraphView GraphLayout::referenceView() const
{
    GraphView view = mView;
    view.xmin -= mReferenceShift;
    view.xmax -= mReferenceShift;
    return view;
}

void GraphLayout::setValues(double min, double max)
{
    mView.ymin = std::isfinite(min) ? min : mView.ymin;
    mView.ymax = std::isfinite(max) ? max : mView.ymax;
    mFixed = {mView.ymin, mView.ymax};
    mZoomed.reset();
}

void GraphLayout::setAutoScaleY(bool on)
{
    mAutoScaleY = on;
    mFixed = {mView.ymin, mView.ymax};
}

void GraphLayout::zoomY(double y, double factor)
{
    const bool isSplit = mDisplayMode == DisplaySplit;
    ParStruct* curve = isSplit ? mCurves.at(y) : nullptr;
    if (isSplit && (curve == nullptr || curve->isDifferenceAt(y))) {
        return; // a difference shows what is in sight
    }
    const GraphStrip strip = curve != nullptr ? curve->strip : mView.whole();
    const double centre = strip.toValue(std::clamp(y, strip.y0, strip.y0 + strip.height));
    const ValueRange range = {centre + (strip.min - centre) * factor,
                              centre + (strip.max - centre) * factor};
    if (std::isfinite(range.low) && std::isfinite(range.high) && range.low < range.high) {
        (curve != nullptr ? curve->zoomed : mZoomed) = range;
    }
}

void GraphLayout::resetZoomY()
{
    mZoomed.reset();
    for (ParStruct& curve : mCurves.all()) {
        curve.zoomed.reset();
    }
}

void GraphLayout::add(ParStruct& curve, double time, double value)
{
    if (curve.active && !mStale) {
        curve.frames.add(time, value, frameWindow());
    }
}

void GraphLayout::placePlot(double left)
{
    mView.x0 = std::min(left, mWidth / 2.0);
    mView.width = std::max(mWidth - mView.x0 - Right, 1.0);
}

void GraphLayout::placeLanes(double lineHeight)
{
    constexpr double LeastPlot = 60.0; ///< pixels
    const double room = mHeight - Bottom - Top;
    const double strips = mDisplayMode == DisplaySplit
                              ? static_cast<double>(mCurves.shown().size()) * lineHeight
                              : LeastPlot;
    mLanes = {mWantedLanes, lineHeight};
    while (mLanes.count > 0 && mLanes.count * lineHeight + std::max(strips, LeastPlot) > room) {
        --mLanes.count;
    }
    // One strip of all differences below it all where the curves share one, too.
    const bool isBelow = mDisplayMode == DisplaySingle && mCurves.hasDifferences();
    const double below = isBelow ? DifferencePart * (room - mLanes.count * lineHeight) : 0.0;
    mView.base = Bottom;
    mView.y0 = Bottom + below + mLanes.count * lineHeight;
    mView.height = std::max(mHeight - mView.y0 - Top, 1.0);
}

void GraphLayout::prepare(const Measure& measure, double lineHeight, double leastMargin)
{
    placeLanes(lineHeight);
    constexpr int Rounds = 3; // labels and the plot that they leave room for chase each other
    for (int round = 0; round < Rounds; ++round) {
        updateFrames();
        updateScales();
        updateAxes(lineHeight);
        const double widest =
            std::max(widestLabel(mAxes, measure), widestLabel(mDifferenceAxes, measure));
        const double before = mView.x0;
        placePlot(std::max(widest + LabelGap, leastMargin));
        if (mView.x0 == before) {
            break;
        }
    }
    updateFrames();
}

void GraphLayout::updateFrames()
{
    const bool isStale = mStale || mFrameWidth != mView.width;
    mStale = false;
    mFrameWidth = mView.width;
    for (ParStruct& curve : mCurves.all()) {
        if (!curve.active) {
            curve.frames.clear();
        } else if (isStale) {
            curve.frames.rebuild(curve.samples(), frameWindow());
        }
        curve.frames.trim(mView.xmin);
        updateCompanions(curve, isStale);
    }
}

void GraphLayout::updateCompanions(ParStruct& curve, bool isStale) const
{
    const std::pair<Companion*, double> all[] = {{&curve.reference, mReferenceShift},
                                                 {&curve.difference, 0.0}};
    for (const auto& [companion, shift] : all) {
        const bool isHidden = companion == &curve.reference && !mIsReferenceShown;
        if (!curve.isShown() || isHidden || companion->samples == nullptr) {
            companion->frames.clear();
        } else if (isStale) {
            companion->frames.rebuild(*companion->samples,
                                      {mView.xmin - shift, mView.xmax - shift, mView.pixelTime()});
        }
    }
}

std::span<const FrameType> GraphLayout::frames(unsigned i)
{
    updateFrames();
    const ParStruct* curve = mCurves.curve(i);
    return curve != nullptr ? curve->frames.frames() : std::span<const FrameType>();
}

/// Takes the scales from what is about to be drawn and gives each curve its strip.
void GraphLayout::updateScales()
{
    ValueRange all;
    for (ParStruct& curve : mCurves.all()) {
        const ValueRange range = visibleRange(curve.frames.frames());
        curve.visible = range.empty() ? curve.visible : range;
        if (curve.isShown()) {
            all.widen(range);
            all.widen(visibleRange(curve.reference.frames.frames()));
        }
    }
    const ValueRange common = mZoomed       ? *mZoomed
                              : mAutoScaleY ? widened(all.empty() ? ValueRange{0.0, 0.0} : all)
                                            : mFixed;
    mView.ymin = common.low;
    mView.ymax = common.high;
    for (ParStruct& curve : mCurves.all()) {
        curve.strip = mView.whole();
        curve.differenceStrip = {};
        curve.differenceStrip.height = 0.0;
    }
    if (mDisplayMode == DisplaySplit) {
        placeStrips();
    } else if (mCurves.hasDifferences()) {
        placeDifferences();
    }
}

/// The strip of all differences, below the lanes.
void GraphLayout::placeDifferences()
{
    ValueRange all;
    for (const unsigned i : mCurves.shown()) {
        all.widen(differenceRange(*mCurves.curve(i)));
    }
    const ValueRange range = widened(all);
    const double height = mView.y0 - mLanes.count * mLanes.height - mView.base;
    for (const unsigned i : mCurves.shown()) {
        mCurves.curve(i)->differenceStrip = {mView.base, height, range.low, range.high};
    }
}

void GraphLayout::placeStrips()
{
    const std::vector<unsigned> shown = mCurves.shown();
    const double height =
        mView.height / static_cast<double>(std::max<std::size_t>(shown.size(), 1));
    int k = 0;
    for (const unsigned i : shown) {
        ParStruct& curve = *mCurves.curve(i);
        const ValueRange range = curve.zoomed     ? *curve.zoomed
                                 : curve.ownRange ? *curve.ownRange
                                 : mAutoScaleY    ? widened(visibleRange(curve))
                                                  : mFixed;
        curve.strip = {mView.y0 + mView.height - ++k * height, height, range.low, range.high};
        if (curve.difference.samples != nullptr) {
            divideStrip(curve);
        }
    }
}

void GraphLayout::updateAxes(double lineHeight)
{
    mAxes.clear();
    mDifferenceAxes.clear();
    for (const ParStruct& curve : mCurves.all()) {
        mDifferenceAxes.push_back(curve.differenceStrip.height > 0.0
                                      ? ValueAxis::ofStrip(curve.differenceStrip, lineHeight)
                                      : ValueAxis());
    }
    if (mDisplayMode == DisplaySingle) {
        mAxes.push_back(ValueAxis::ofPlot(mView.whole()));
        return;
    }
    for (const ParStruct& curve : mCurves.all()) {
        mAxes.push_back(curve.isShown() ? ValueAxis::ofStrip(curve.strip, lineHeight)
                                        : ValueAxis());
    }
}

const ValueAxis& GraphLayout::axis(unsigned i) const
{
    static const ValueAxis None;
    const std::size_t place = mDisplayMode == DisplaySingle ? 0 : i;
    return place < mAxes.size() ? mAxes[place] : None;
}

const ValueAxis& GraphLayout::differenceAxis(unsigned i) const
{
    static const ValueAxis None;
    return i < mDifferenceAxes.size() ? mDifferenceAxes[i] : None;
}

} // namespace TARN
