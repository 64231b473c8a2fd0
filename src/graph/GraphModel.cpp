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

void GraphModel::windowChanged()
{
    mLayout.setTimes(mWindow.min(), mWindow.max());
    mLayout.refresh();
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

void GraphModel::setCursorPosition(double time, bool mayFollow)
{
    if (!std::isfinite(time)) {
        return;
    }
    mCursor = time;
    if (mayFollow && mCursorMode == CursorCenter) {
        mWindow.centreOn(time);
        windowChanged();
    } else {
        Q_EMIT changed();
    }
}

} // namespace TARN
