#include "graph/GraphModel.h"

#include <cmath>

namespace TARN {

GraphModel::GraphModel(QObject* parent) : QObject(parent), mLayout(mCurves) {}

void GraphModel::curvesChanged()
{
    mLayout.refresh();
    Q_EMIT changed();
}

void GraphModel::clear()
{
    mCurves.clear();
    mLayout.setValues(GraphView().ymin, GraphView().ymax);
    mMarkers = {};
    curvesChanged();
}

void GraphModel::setNotes(GraphNotes notes)
{
    mNotes = std::move(notes);
    Q_EMIT changed();
}

void GraphModel::setPointed(std::optional<unsigned> curve)
{
    if (mPointed != curve) {
        mPointed = curve;
        Q_EMIT changed();
    }
}

void GraphModel::pointAt(double time, double y)
{
    if (mLayout.displayMode() == DisplaySplit) {
        if (const ParStruct* curve = mCurves.at(y)) {
            setPointed(mCurves.indexOf(*curve));
        }
        return;
    }
    constexpr double Reach = 12.0; // pixels
    double nearest = Reach;
    std::optional<unsigned> found = mPointed;
    for (const unsigned k : mCurves.shown()) {
        const ParStruct& curve = *mCurves.curve(k);
        double value = 0.0;
        if (curve.samples().valueAt(time, value) &&
            std::fabs(curve.strip.toPixel(value) - y) < nearest) {
            nearest = std::fabs(curve.strip.toPixel(value) - y);
            found = k;
        }
    }
    setPointed(found);
}

void GraphModel::windowChanged()
{
    mLayout.setTimes(mWindow.min(), mWindow.max());
    mLayout.refresh();
    Q_EMIT changed();
}

void GraphModel::setYrange(double min, double max)
{
    mLayout.setValues(min, max);
    Q_EMIT changed();
}

void GraphModel::setAutoScaleY(bool on)
{
    mLayout.setAutoScaleY(on);
    Q_EMIT changed();
}

void GraphModel::setDisplayMode(eDisplayMode mode)
{
    mLayout.setDisplayMode(mode);
    Q_EMIT changed();
    Q_EMIT modeChanged();
}

void GraphModel::setGraphMode(eGraphMode mode)
{
    mGraphMode = mode;
    curvesChanged();
    Q_EMIT modeChanged();
}

void GraphModel::looksChanged()
{
    curvesChanged();
    Q_EMIT looksEdited();
}

void GraphModel::showOnly(unsigned curve)
{
    for (ParStruct& other : mCurves.all()) {
        other.hidden = other.active && mCurves.indexOf(other) != curve;
    }
    looksChanged();
}

void GraphModel::showAllCurves()
{
    for (ParStruct& curve : mCurves.all()) {
        curve.hidden = false;
    }
    looksChanged();
}

void GraphModel::showAll()
{
    mLayout.resetZoomY();
    mWindow.showAll();
    windowChanged();
}

void GraphModel::zoomToMinute(double time)
{
    constexpr double Half = 30.0; // seconds
    mWindow.remember();
    mWindow.set(time - Half, time + Half);
    mGraphMode = GraphManual;
    windowChanged();
    Q_EMIT modeChanged();
}

void GraphModel::setMarker(double start, double stop)
{
    if (std::isfinite(start) && std::isfinite(stop)) {
        mMarkers = {start, stop};
        Q_EMIT changed();
    }
}

void GraphModel::zoomToMarker()
{
    constexpr double Shortest = 1.0; // seconds
    const double stop =
        mMarkers.stop - mMarkers.start < Shortest ? mMarkers.start + Shortest : mMarkers.stop;
    mWindow.remember();
    mWindow.set(mMarkers.start, stop);
    mGraphMode = GraphManual;
    windowChanged();
    Q_EMIT modeChanged();
}

void GraphModel::setCursor(double time)
{
    if (std::isfinite(time)) {
        mCursor = time;
        Q_EMIT changed();
    }
}

void GraphModel::setCursorPosition(double time)
{
    if (mCursorMode != CursorCenter || !std::isfinite(time)) {
        setCursor(time);
        return;
    }
    mCursor = time;
    mWindow.centreOn(time);
    windowChanged();
}

} // namespace TARN
