#include "track/ChartCorners.h"

#include "track/Graticule.h"
#include "track/TrackSymbols.h"

#include <algorithm>
#include <optional>

namespace TARN {

namespace {

constexpr double Edge = 8.0;         ///< pixels between what stands in a corner and the edge
constexpr double LongestBar = 130.0; ///< pixels, of the scale
constexpr double BarRow = 20.0;
constexpr double NeedleSize = 15.0;
constexpr double ScaleWidth = 170.0; ///< of the legend's colours
constexpr double ScaleHeight = 9.0;

} // namespace

/// The first of the corners in which neither the path nor anything else is, or the first of all.
QRectF ChartCorners::corner(const QSizeF& size, std::initializer_list<Qt::Corner> corners)
{
    constexpr double Labels = 20.0; // of the meridians, at the lower edge
    const QRectF area = mView.area.adjusted(Edge, Edge, -Edge, -Edge - Labels);
    std::optional<QRectF> first;
    for (const Qt::Corner corner : corners) {
        QRectF box(area.topLeft(), size);
        if (corner == Qt::TopRightCorner || corner == Qt::BottomRightCorner) {
            box.moveRight(area.right());
        }
        if (corner == Qt::BottomLeftCorner || corner == Qt::BottomRightCorner) {
            box.moveBottom(area.bottom());
        }
        first = first.value_or(box);
        if (mLabels.isFree(box) && !mLabels.isOnPath(box)) {
            mLabels.take(box);
            return box;
        }
    }
    mLabels.take(*first);
    return *first;
}

ChartCorners::ChartCorners(const TrackScene& scene, const TrackStyle& style, const TrackView& view,
                           ChartLabels& labels, TrackCanvas& canvas)
    : mScene(scene), mStyle(style), mView(view), mLabels(labels), mCanvas(canvas)
{
    mNorth = corner({2.0 * NeedleSize + 6.0, 3.6 * NeedleSize},
                    {Qt::TopRightCorner, Qt::TopLeftCorner, Qt::BottomLeftCorner});
    mScale = corner({LongestBar + 12.0, 2.0 * BarRow + 4.0},
                    {Qt::BottomRightCorner, Qt::BottomLeftCorner, Qt::TopLeftCorner});
    if (mScene.colors == nullptr || mScene.colors->legend().empty()) {
        return;
    }
    const TrackColors::Legend& legend = mScene.colors->legend();
    const double row = mCanvas.sizeOf("0").height();
    const double below =
        legend.isScale() ? ScaleHeight + row + 6.0 : row * double(legend.entries.size()) + 2.0;
    mLegend = corner(
        {std::max(ScaleWidth, mCanvas.sizeOf(legend.title).width()) + 8.0, row + below + 4.0},
        {Qt::TopLeftCorner, Qt::BottomLeftCorner, Qt::BottomRightCorner, Qt::TopRightCorner});
}

void ChartCorners::draw()
{
    drawScale();
    drawNorth();
    if (!mLegend.isEmpty()) {
        drawLegend();
    }
}

void ChartCorners::drawScale()
{
    constexpr double Mile = 1852.0; // metres
    constexpr double LeastMiles = 0.01;
    const double metres = roundLength(LongestBar * mView.scale);
    const double miles = roundLength(LongestBar * mView.scale / Mile);
    double bottom = mScale.bottom() - 3.0;
    const double right = mScale.right() - 4.0;
    mLabels.plate(mScale);
    const auto bar = [&](double length, const QString& text) {
        const double left = right - length / mView.scale;
        mCanvas.line({{left, bottom - 4.0}, {left, bottom}, {right, bottom}, {right, bottom - 4.0}},
                     mStyle.text, 1.0);
        const QSizeF size = mCanvas.sizeOf(text);
        mCanvas.text({right - size.width() - 3.0, bottom - size.height() - 1.0}, text, mStyle.text);
        bottom -= BarRow;
    };
    const bool isFar = metres >= 1000.0;
    bar(metres, QString("%1 %2").arg(isFar ? metres / 1000.0 : metres).arg(isFar ? "km" : "m"));
    if (miles >= LeastMiles) {
        bar(miles * Mile, QString("%1 NM").arg(miles));
    }
}

void ChartCorners::drawNorth()
{
    static const QPolygonF Needle = {{0.0, -NeedleSize},
                                     {5.0, NeedleSize * 0.6},
                                     {0.0, NeedleSize * 0.25},
                                     {-5.0, NeedleSize * 0.6}};
    mLabels.plate(mNorth);
    const double middle = mNorth.center().x();
    mCanvas.text({middle - mCanvas.sizeOf("N").width() / 2.0, mNorth.top()}, "N", mStyle.text);
    mCanvas.shape(turned(Needle, mScene.ground->projection.northAt(mView.middle),
                         {middle, mNorth.bottom() - 1.2 * NeedleSize}),
                  mStyle.text, mStyle.text);
}

void ChartCorners::drawLegend()
{
    constexpr int Steps = 30;
    const TrackColors& colors = *mScene.colors;
    const TrackColors::Legend& legend = colors.legend();
    const double row = mCanvas.sizeOf("0").height();
    const QPointF at = mLegend.topLeft() + QPointF(4.0, 2.0);
    mLabels.plate(mLegend);
    mCanvas.text(at, legend.title, mStyle.text);
    double y = at.y() + row + 2.0;
    for (const auto& [words, shade] : legend.entries) {
        mCanvas.line({{at.x(), y + row / 2.0}, {at.x() + 18.0, y + row / 2.0}},
                     colors.color(shade, mStyle.light), 4.0);
        mCanvas.text({at.x() + 26.0, y}, words, mStyle.text);
        y += row;
    }
    if (!legend.isScale()) {
        return;
    }
    for (int step = 0; step < Steps; ++step) {
        const int shade = legend.lowest + (legend.highest - legend.lowest) * step / (Steps - 1);
        mCanvas.fill({at.x() + ScaleWidth * step / Steps, y, ScaleWidth / Steps + 0.5, ScaleHeight},
                     colors.color(static_cast<std::uint8_t>(shade), mStyle.light));
    }
    y += ScaleHeight + 2.0;
    mCanvas.text({at.x(), y}, legend.low, mStyle.text);
    mCanvas.text({at.x() + ScaleWidth - mCanvas.sizeOf(legend.high).width(), y}, legend.high,
                 mStyle.text);
}

} // namespace TARN
