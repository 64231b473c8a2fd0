#include "graph/GraphDrawing.h"

#include "base/ClockTime.h"
#include "graph/CurveText.h"
#include "graph/GraphPalette.h"

#include <algorithm>
#include <array>
#include <utility>

namespace TARN {

namespace {

constexpr double MajorTick = 10.0; // pixels
constexpr double MinorTick = 5.0;
constexpr double Gap = 5.0; // between a line and its text
constexpr float MarkSize = 3.0F;

void addLine(std::vector<float>& points, double x0, double y0, double x1, double y1)
{
    const double line[] = {x0, y0, x1, y1};
    std::ranges::transform(line, std::back_inserter(points),
                           [](double pixel) { return static_cast<float>(pixel); });
}

} // namespace

GraphDrawing::GraphDrawing(const GraphModel& model, const GraphStyle& style,
                           const KeyCursor& keyCursor, GraphCanvas& canvas, TextLayout& texts)
    : mModel(model), mStyle(style), mKeyCursor(keyCursor), mSize(model.layout().size()),
      mCanvas(canvas), mTexts(texts), mView(model.layout().view()),
      mNotes(model, style, canvas, texts), mCompanions(model, style, canvas, texts),
      mLegend(model, style, mCompanions, texts)
{}

void GraphDrawing::draw()
{
    const bool split = mModel.layout().displayMode() == DisplaySplit;
    drawBackground();
    if (!split) {
        drawAxis(nullptr);
    }
    drawTicksX();
    if (const auto pointed = mModel.hints().pointed; !split && pointed) {
        const ParStruct* curve = mModel.curves().curve(*pointed);
        if (curve != nullptr && curve->isShown()) {
            mNotes.drawThresholds(*curve);
        }
    }
    drawCurves();
    drawDifferences();
    drawMarker();
    // Texts are painted on top of it all; the cursor's keep clear of the legend.
    if (mStyle.legendOn) {
        mLegend.draw();
    }
    mNotes.drawLanes();
    mNotes.drawEvents();
    for (const unsigned k : mModel.curves().shown()) {
        mNotes.drawWords(*mModel.curves().curve(k));
    }
    drawMarkerEnds();
    if (mStyle.cursorOn) {
        drawCursor();
    }
    drawOutline();
}

/// What belongs to the reference lies behind all curves of the same place.
void GraphDrawing::drawCurves()
{
    const bool split = mModel.layout().displayMode() == DisplaySplit;
    const std::vector<unsigned> shown = mModel.curves().shown();
    for (const unsigned k : split ? std::vector<unsigned>() : shown) {
        mCompanions.drawReference(*mModel.curves().curve(k),
                                  mStyle.inkOf(mModel.curves().curve(k)->color));
    }
    for (const unsigned k : shown) {
        const ParStruct& curve = *mModel.curves().curve(k);
        if (split) {
            drawAxis(&curve);
            mNotes.drawThresholds(curve);
            mCompanions.drawReference(curve, mStyle.inkOf(curve.color));
        }
        drawParameter(curve);
        mNotes.drawEpisodes(curve);
    }
}

void GraphDrawing::drawDifferences()
{
    bool isFirst = true;
    for (const unsigned k : mModel.curves().shown()) {
        const ParStruct& curve = *mModel.curves().curve(k);
        if (curve.differenceStrip.height <= 0.0) {
            continue;
        }
        const bool split = mModel.layout().displayMode() == DisplaySplit;
        if (!split && isFirst) {
            mCanvas.fill(mView.x0, mView.base, mView.x0 + mView.width,
                         mView.base + curve.differenceStrip.height, mStyle.back);
            mCompanions.drawTitle(curve.differenceStrip);
        }
        if (std::exchange(isFirst, false) || split) { // in single mode they share the axis
            drawTicksY(mModel.layout().differenceAxes()[k], curve.differenceStrip,
                       split ? curve.color : mStyle.label);
        }
        mCompanions.drawDifference(curve, mStyle.inkOf(curve.color));
    }
}

void GraphDrawing::drawBackground()
{
    mCanvas.fill(mView.x0, mView.y0, mView.x0 + mView.width, mView.y0 + mView.height, mStyle.back);
}

void GraphDrawing::drawTicksX()
{
    constexpr double Spacing = 70.0;
    constexpr double LabelGap = 8.0;
    constexpr double LabelTop = 15.0; // below the plot
    const QString widest = timeLabel(mView.xmax, (mView.xmax - mView.xmin) / 10.0);
    const double spacing = std::max(Spacing, mTexts.widthOf(widest) + LabelGap);
    const GraphTicks axis = GraphTicks::ofTimes(mView.xmin, mView.xmax, mView.width, spacing);
    const QRectF area(QPointF(), mSize);
    std::vector<float> marks;
    std::vector<float> grid;
    for (const GraphTick& tick : axis.ticks) {
        const double x = mCanvas.sharp(mView.xToViewport(tick.value));
        addLine(marks, x, mView.base - (tick.major ? MajorTick : MinorTick), x, mView.base);
        if (tick.major) {
            addLine(grid, x, mView.y0, x, mView.y0 + mView.height);
            const QString text = timeLabel(tick.value, axis.step);
            const double left = mView.xToViewport(tick.value) - mTexts.widthOf(text) / 2.0;
            mTexts.add(text, {left, mSize.height() - mView.base + LabelTop},
                       legibleOn(mStyle.labelBack, mStyle.label), area);
        }
    }
    mCanvas.lines(marks, mStyle.label);
    if (mStyle.gridOn) {
        mCanvas.dotted(grid, mStyle.grid);
    }
}

/// Of a curve's strip, or of the plot that all curves share.
void GraphDrawing::drawAxis(const ParStruct* curve)
{
    const unsigned i = curve != nullptr ? mModel.curves().indexOf(*curve) : 0;
    drawTicksY(mModel.layout().axis(i), curve != nullptr ? curve->strip : mView.whole(),
               curve != nullptr ? curve->color : mStyle.label);
}

void GraphDrawing::drawTicksY(const ValueAxis& axis, const GraphStrip& strip, const GraphColor& ink)
{
    constexpr double LabelToTick = 3.0;
    const GraphColor color = legibleOn(mStyle.labelBack, ink);
    std::vector<float> marks;
    std::vector<float> grid;
    for (const GraphTick& tick : axis.ticks.ticks) {
        const double y = mCanvas.sharp(strip.toPixel(tick.value));
        addLine(marks, mView.x0 - (tick.major ? MajorTick : MinorTick), y, mView.x0, y);
        if (tick.major) {
            addLine(grid, mView.x0, y, mView.x0 + mView.width, y);
        }
    }
    mCanvas.lines(marks, color);
    if (mStyle.gridOn) {
        mCanvas.dotted(grid, mStyle.grid);
    }
    for (const ValueAxis::Label& label : axis.labels) {
        const QSizeF size = mTexts.sizeOf(label.text);
        const QPointF place(mView.x0 - MajorTick - LabelToTick - size.width(),
                            mSize.height() - label.y - size.height() / 2.0);
        mTexts.add(label.text, place, color, QRectF(QPointF(), mSize));
    }
}

void GraphDrawing::drawParameter(const ParStruct& curve)
{
    const GraphColor color = mStyle.inkOf(curve.color);
    mCanvas.clip(mView.x0, curve.strip.y0, mView.width, curve.strip.height);
    mLine.buildLine(curve, mView);
    for (const GraphLine::Strip& strip : mLine.strips()) {
        const float* points = mLine.points().data() + std::ptrdiff_t(strip.first) * 2;
        if (strip.count > 1) {
            mCanvas.strip(points, strip.count, color);
        } else {
            mCanvas.dots(points, 1, color, MarkSize); // a line needs two
        }
    }
    mCanvas.lines(mLine.fillings(), color);
    if (curve.showSamples) {
        drawSamples(curve);
    }
    mCanvas.clipNone();
}

void GraphDrawing::drawSamples(const ParStruct& curve)
{
    mLine.buildSamples(curve, mView);
    mCanvas.dots(mLine.points().data(), static_cast<int>(mLine.points().size() / 2), mStyle.fore,
                 MarkSize);
}

void GraphDrawing::drawMarker()
{
    constexpr float Alpha = 0.3F;
    const TimeRange& marks = mModel.markers();
    if (marks.start == 0.0 && marks.stop == 0.0) {
        return; // nothing is marked
    }
    const double left = mView.x0;
    const double right = mView.x0 + mView.width;
    const double start = mView.xToViewport(std::min(marks.start, marks.stop));
    double stop = mView.xToViewport(std::max(marks.start, marks.stop));
    stop = std::max(stop, start + 1.0); // a click shows too
    if (stop > left && start < right) {
        mCanvas.fill(std::max(start, left), mView.y0, std::min(stop, right),
                     mView.y0 + mView.height, mStyle.marks, Alpha);
    }
}

/// The two handles of the marked range with their times.
void GraphDrawing::drawMarkerEnds()
{
    const TimeRange& marks = mModel.markers();
    if (!marks.hasExtent()) {
        return;
    }
    const QRectF plot = plotBox();
    const double top = plot.bottom() - Gap - mTexts.lineHeight();
    std::vector<float> points;
    for (const auto& [name, time] : {std::pair("A ", marks.start), std::pair("B ", marks.stop)}) {
        const double x = mView.xToViewport(time);
        if (x < mView.x0 || x > mView.x0 + mView.width) {
            continue;
        }
        const double sharp = mCanvas.sharp(x);
        addLine(points, sharp, mView.y0, sharp, mView.y0 + mView.height);
        const QString text = name + clockTextWithMilliseconds(time);
        const double width = mTexts.widthOf(text);
        // Outside of the range, where both have room.
        const bool isLeft = (name[0] == 'A') == (x - Gap - width >= plot.left());
        mTexts.addNear(text, {isLeft ? x - Gap - width : x + Gap, top},
                       legibleOn(mStyle.back, mStyle.marks), plot);
    }
    mCanvas.lines(points, mStyle.marks);
}

void GraphDrawing::drawOutline()
{
    const double left = mCanvas.sharp(mView.x0);
    const double right = mCanvas.sharp(mView.x0 + mView.width - 1.0);
    const double bottom = mCanvas.sharp(mView.base);
    const double top = mCanvas.sharp(mView.y0 + mView.height - 1.0);
    std::vector<float> points;
    addLine(points, left, bottom, right, bottom);
    addLine(points, right, bottom, right, top);
    addLine(points, right, top, left, top);
    addLine(points, left, top, left, bottom);
    mCanvas.lines(points, mStyle.fore);
}

/// The plot area in pixels from the upper left corner, as text is painted.
QRectF GraphDrawing::plotBox() const
{
    return {mView.x0, mSize.height() - mView.y0 - mView.height, mView.width, mView.height};
}

/// Pixel row of the cursor's value.
double GraphDrawing::keyCursorY() const
{
    const ParStruct* curve = mModel.curves().curve(mKeyCursor.curve);
    const bool isOfStrip =
        mModel.layout().displayMode() == DisplaySplit && curve != nullptr && curve->active;
    return isOfStrip
               ? mView.yToViewport(curve->stripOf(mKeyCursor.isOfDifference), mKeyCursor.value)
               : mView.yToViewport(mKeyCursor.value);
}

void GraphDrawing::drawCursor()
{
    constexpr double Overhang = 10.0;
    const double right = mView.x0 + mView.width;
    const double top = mView.y0 + mView.height;
    const double x = mView.xToViewport(mModel.cursor());
    const double y = keyCursorY();
    const bool inside = x >= mView.x0 && x <= right;
    std::vector<float> points;
    if (inside) {
        const double sharp = mCanvas.sharp(x);
        addLine(points, sharp, mView.base - Overhang, sharp, top);
    }
    if (mKeyCursor.isShown && y >= mView.y0 && y <= top) {
        const double sharp = mCanvas.sharp(y);
        addLine(points, mView.x0 - Overhang, sharp, right, sharp);
    }
    mCanvas.lines(points, mStyle.fore);
    if (mKeyCursor.isShown && inside) {
        drawCursorValues(x, y);
    }
}

void GraphDrawing::drawCursorValues(double x, double y)
{
    const QRectF plot = plotBox();
    const auto add = [&](const QString& text, double top, const GraphColor& color) {
        const double width = mTexts.widthOf(text);
        const bool fits = x + Gap + width <= plot.right();
        mTexts.addNear(text, {fits ? x + Gap : x - Gap - width, top}, color, plot);
    };
    const double lineHeight = mTexts.lineHeight();
    const bool isReported =
        static_cast<float>(mModel.cursor()) == static_cast<float>(mKeyCursor.reportedTime);
    const QTime time =
        clockTime(millisecondsOf(isReported ? mKeyCursor.reportedTime : mModel.cursor()));
    add(time.toString("hh:mm:ss.zzz") + QString::asprintf("/%.2f", mKeyCursor.value),
        mSize.height() - y - Gap - lineHeight, legibleOn(mStyle.back, mStyle.fore));
    for (const ParStruct& curve : mModel.curves().all()) {
        double value = 0.0;
        if (curve.isShown() && curve.samples().valueAt(mModel.cursor(), value)) {
            const double row = mSize.height() - mView.yToViewport(curve.strip, value);
            add(shownText(curve, mModel.cursor(), mStyle, "%.2f"), row - lineHeight / 2.0,
                mStyle.inkOf(curve.color));
        }
    }
}

} // namespace TARN
