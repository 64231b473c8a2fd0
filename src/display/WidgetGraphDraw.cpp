#include "display/GraphScale.h"
#include "display/WidgetGraph.h"

#include <algorithm>
#include <array>

using namespace TARN;

namespace {

constexpr double MajorTick = 10.0; // pixels
constexpr double MinorTick = 5.0;
constexpr GraphColor White{1.0F, 1.0F, 1.0F};
constexpr GraphColor Yellow{1.0F, 1.0F, 0.0F};

void addLine(std::vector<float>& points, double x0, double y0, double x1, double y1)
{
    const double line[] = {x0, y0, x1, y1};
    std::ranges::transform(line, std::back_inserter(points),
                           [](double pixel) { return static_cast<float>(pixel); });
}

} // namespace

void WidgetGraph::drawGraph()
{
    const bool split = mModel.displayMode() == DisplaySplit;
    drawBackground();
    if (!split) {
        drawTicksY(nullptr);
    }
    drawTicksX();
    for (ParStruct& curve : mModel.curves()) {
        if (curve.active) {
            if (split) {
                drawTicksY(&curve);
            }
            drawParameter(curve);
        }
    }
    drawMarker();
    // Texts are painted on top of it all; the cursor's keep clear of the legend.
    if (mLegendOn && mModel.hasSamples()) {
        drawLabels();
    }
    if (mCursorOn) {
        drawCursor();
    }
    drawOutline();
}

void WidgetGraph::drawBackground()
{
    const GraphView& view = mModel.view();
    mCanvas.fill(view.x0, view.y0, view.x0 + view.width, view.y0 + view.height, mBackColor);
}

void WidgetGraph::drawTicksX()
{
    constexpr double Spacing = 70.0;
    constexpr double LabelGap = 8.0;
    constexpr double LabelTop = 15.0; // below the plot
    const GraphView& view = mModel.view();
    const GraphTicks axis(view.xmin, view.xmax, view.width, Spacing);
    std::vector<float> marks;
    std::vector<float> grid;
    double widest = 0.0;
    for (const GraphTick& tick : axis.ticks) {
        const double x = mCanvas.sharp(view.xToViewport(tick.value));
        addLine(marks, x, view.y0 - (tick.major ? MajorTick : MinorTick), x, view.y0);
        if (tick.major) {
            addLine(grid, x, view.y0, x, view.y0 + view.height);
            widest = std::max(widest, mTexts.sizeOf(timeLabel(tick.value, axis.step)).width());
        }
    }
    mCanvas.lines(marks, mLabelColor);
    if (mGridOn) {
        mCanvas.lines(grid, mGridColor, true);
    }
    const double pixels = axis.step / view.pixelTime();
    const int stride = GraphTicks::labelStride(widest + LabelGap, pixels);
    const double top = height() - view.y0 + LabelTop;
    for (const GraphTick& tick : axis.ticks) {
        if (tick.major && tick.index % stride == 0) {
            const QString text = timeLabel(tick.value, axis.step);
            const double x = view.xToViewport(tick.value) - mTexts.sizeOf(text).width() / 2.0;
            mTexts.add(text, {x, top}, mLabelColor, rect());
        }
    }
}

void WidgetGraph::drawTicksY(const ParStruct* curve)
{
    constexpr double Spacing = 25.0;
    const GraphView& view = mModel.view();
    const double bottom = curve != nullptr ? curve->viewportY : view.y0;
    const double extent = curve != nullptr ? curve->viewportHeight : view.height;
    const double min = curve != nullptr ? curve->rangeMin : view.ymin;
    const double max = curve != nullptr ? curve->rangeMax : view.ymax;
    const GraphColor& color = curve != nullptr ? curve->color : mLabelColor;
    // A strip's labels stay beside it; the common axis has room above and below.
    const QRectF beside(0.0, height() - bottom - extent, view.x0, extent);
    const QRectF area = curve != nullptr ? beside : QRectF(rect());
    const GraphTicks axis(min, max, extent, Spacing);
    std::vector<float> marks;
    std::vector<float> grid;
    for (const GraphTick& tick : axis.ticks) {
        const double place = bottom + (tick.value - min) * extent / (max - min);
        const double y = mCanvas.sharp(place);
        addLine(marks, view.x0 - (tick.major ? MajorTick : MinorTick), y, view.x0, y);
        if (tick.major) {
            addLine(grid, view.x0, y, view.x0 + view.width, y);
            labelTickY(place, valueLabel(tick.value, axis.step), color, area);
        }
    }
    mCanvas.lines(marks, color);
    if (mGridOn) {
        mCanvas.lines(grid, mGridColor, true);
    }
}

void WidgetGraph::labelTickY(double y, const QString& text, const GraphColor& color,
                             const QRectF& area)
{
    constexpr double Gap = 3.0; // to the tick
    const QSizeF size = mTexts.sizeOf(text);
    mWidestLabel = std::max(mWidestLabel, size.width());
    const double right = mModel.view().x0 - MajorTick - Gap;
    mTexts.add(text, {right - size.width(), height() - y - size.height() / 2.0}, color, area);
}

void WidgetGraph::drawParameter(ParStruct& curve)
{
    constexpr float MarkSize = 3.0F;
    const GraphView& view = mModel.view();
    mModel.updateVisible(curve);
    mCanvas.clip(view.x0, curve.viewportY, view.width, curve.viewportHeight);
    mLine.buildLine(curve, view);
    for (const GraphLine::Strip& strip : mLine.strips()) {
        const float* points = mLine.points().data() + std::ptrdiff_t(strip.first) * 2;
        if (strip.count > 1) {
            mCanvas.strip(points, strip.count, curve.color);
        } else {
            mCanvas.dots(points, 1, curve.color, MarkSize); // a line needs two
        }
    }
    if (curve.showSamples) {
        mLine.buildSamples(curve, view);
        mCanvas.dots(mLine.points().data(), static_cast<int>(mLine.points().size() / 2), White,
                     MarkSize);
    }
    mCanvas.clipNone();
}

void WidgetGraph::drawMarker()
{
    constexpr float Alpha = 0.3F;
    const GraphView& view = mModel.view();
    if (mModel.markStart() == 0.0 && mModel.markStop() == 0.0) {
        return; // nothing is marked
    }
    const double left = view.x0;
    const double right = view.x0 + view.width;
    const double start = view.xToViewport(std::min(mModel.markStart(), mModel.markStop()));
    double stop = view.xToViewport(std::max(mModel.markStart(), mModel.markStop()));
    stop = std::max(stop, start + 1.0); // a click shows too
    if (stop > left && start < right) {
        mCanvas.fill(std::max(start, left), view.y0, std::min(stop, right), view.y0 + view.height,
                     Yellow, Alpha);
    }
}

void WidgetGraph::drawOutline()
{
    const GraphView& view = mModel.view();
    const double left = mCanvas.sharp(view.x0);
    const double right = mCanvas.sharp(view.x0 + view.width - 1.0);
    const double bottom = mCanvas.sharp(view.y0);
    const double top = mCanvas.sharp(view.y0 + view.height - 1.0);
    std::vector<float> points;
    addLine(points, left, bottom, right, bottom);
    addLine(points, right, bottom, right, top);
    addLine(points, right, top, left, top);
    addLine(points, left, top, left, bottom);
    mCanvas.lines(points, White);
}
