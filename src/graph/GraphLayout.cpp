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

/// What a curve shows in its strip, its reference included.
ValueRange visibleRange(const ParStruct& curve)
{
    ValueRange range = curve.visible;
    range.widen(curve.reference.frames.range());
    return range;
}

/// Zero is always in sight.
ValueRange differenceRange(const ParStruct& curve)
{
    ValueRange range = curve.difference.frames.range();
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

FrameWindow windowOf(const GraphView& view)
{
    return {view.xmin, view.xmax, view.pixelTime()};
}

/// How columns are found.
using Find = void (CurveFrames::*)(const CurveSamples& samples, const FrameWindow& window);

/// Finds the columns of companions that are shown; with no \p find they are still right.
void updateCompanions(ParStruct& curve, const GraphView& view, const ReferencePlace& reference,
                      Find find)
{
    const std::pair<Companion*, GraphView> all[] = {{&curve.reference, reference.viewOf(view)},
                                                    {&curve.difference, view}};
    for (const auto& [companion, of] : all) {
        const bool isHidden = companion == &curve.reference && !reference.isShown;
        if (!curve.isShown() || isHidden || companion->samples == nullptr) {
            companion->frames.clear();
        } else if (find != nullptr) {
            (companion->frames.*find)(*companion->samples, windowOf(of));
        }
    }
}

/// The strip that all differences share: of this height, from the bottom of the plot's lanes.
void placeDifferences(CurveSet& curves, double bottom, double height)
{
    ValueRange all;
    for (const unsigned i : curves.shown()) {
        all.widen(differenceRange(*curves.curve(i)));
    }
    const ValueRange range = widened(all);
    for (const unsigned i : curves.shown()) {
        curves.curve(i)->differenceStrip = {bottom, height, range.low, range.high};
    }
}

/// A strip for each curve, from the top; \p rangeOf gives what it shows.
template <typename RangeOf>
void placeStrips(CurveSet& curves, const GraphView& view, RangeOf rangeOf)
{
    const std::vector<unsigned> shown = curves.shown();
    const double height = view.height / static_cast<double>(std::max<std::size_t>(shown.size(), 1));
    int k = 0;
    for (const unsigned i : shown) {
        ParStruct& curve = *curves.curve(i);
        const ValueRange range = rangeOf(curve);
        curve.strip = {view.y0 + view.height - ++k * height, height, range.low, range.high};
        if (curve.difference.samples != nullptr) {
            divideStrip(curve);
        }
    }
}

std::vector<ValueAxis> axesOf(const CurveSet& curves, const GraphView& view, eDisplayMode mode,
                              double lineHeight)
{
    if (mode == DisplaySingle) {
        return {ValueAxis::ofPlot(view.whole())};
    }
    std::vector<ValueAxis> axes;
    for (const ParStruct& curve : curves.all()) {
        axes.push_back(curve.isShown() ? ValueAxis::ofStrip(curve.strip, lineHeight) : ValueAxis());
    }
    return axes;
}

std::vector<ValueAxis> differenceAxesOf(const CurveSet& curves, double lineHeight)
{
    std::vector<ValueAxis> axes;
    for (const ParStruct& curve : curves.all()) {
        axes.push_back(curve.differenceStrip.height > 0.0
                           ? ValueAxis::ofStrip(curve.differenceStrip, lineHeight)
                           : ValueAxis());
    }
    return axes;
}

/// In a widget of this width.
void placePlot(GraphView& view, double left, double width)
{
    view.x0 = std::min(left, width / 2.0);
    view.width = std::max(width - view.x0 - Right, 1.0);
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
    placePlot(mView, mView.x0 > 0.0 ? mView.x0 : Bottom + LabelGap, mWidth);
}

void GraphLayout::setTimes(double min, double max)
{
    mView.xmin = min;
    mView.xmax = max;
}

void GraphLayout::setReference(const ReferencePlace& place)
{
    mReference = place;
    mStale = true;
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
        curve.frames.add(time, value, windowOf(mView));
    }
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
    if (isStale()) {
        // Mostly this is the place then, and the columns are found once.
        findFrames(&CurveFrames::foresee);
        placeByLabels(measure, lineHeight, leastMargin);
    }
    constexpr int Rounds = 3; // labels and the plot that they leave room for chase each other
    for (int round = 0; round < Rounds; ++round) {
        updateFrames();
        const double before = mView.x0;
        placeByLabels(measure, lineHeight, leastMargin);
        if (mView.x0 == before) {
            break;
        }
    }
    updateFrames();
}

/// Scales, axes, and the plot beside their labels.
void GraphLayout::placeByLabels(const Measure& measure, double lineHeight, double leastMargin)
{
    updateScales();
    mAxes = axesOf(mCurves, mView, mDisplayMode, lineHeight);
    mDifferenceAxes = differenceAxesOf(mCurves, lineHeight);
    const double widest =
        std::max(widestLabel(mAxes, measure), widestLabel(mDifferenceAxes, measure));
    placePlot(mView, std::max(widest + LabelGap, leastMargin), mWidth);
}

void GraphLayout::updateFrames()
{
    findFrames(isStale() ? &CurveFrames::rebuild : nullptr);
    mStale = false;
    mFrameWidth = mView.width;
}

void GraphLayout::findFrames(Find find)
{
    for (ParStruct& curve : mCurves.all()) {
        if (!curve.active) {
            curve.frames.clear();
        } else if (find != nullptr) {
            (curve.frames.*find)(curve.samples(), windowOf(mView));
        }
        curve.frames.trim(mView.xmin);
        updateCompanions(curve, mView, mReference, find);
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
        const ValueRange range = curve.frames.range();
        curve.visible = range.empty() ? curve.visible : range;
        if (curve.isShown()) {
            all.widen(range);
            all.widen(curve.reference.frames.range());
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
        placeStrips(mCurves, mView, [this](const ParStruct& curve) {
            return curve.zoomed     ? *curve.zoomed
                   : curve.ownRange ? *curve.ownRange
                   : mAutoScaleY    ? widened(visibleRange(curve))
                                    : mFixed;
        });
    } else if (mCurves.hasDifferences()) {
        placeDifferences(mCurves, mView.base, mView.y0 - mLanes.count * mLanes.height - mView.base);
    }
}

const ValueAxis& GraphLayout::axis(unsigned i) const
{
    static const ValueAxis None;
    const std::size_t place = mDisplayMode == DisplaySingle ? 0 : i;
    return place < mAxes.size() ? mAxes[place] : None;
}

} // namespace TARN
