#include "display/GraphModel.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr double MinWindow = 1e-6; ///< seconds; times have steps of 31 ns
constexpr double MaxWindow = 1e9;

} // namespace

void GraphModel::changeWindow(double xmin, double xmax)
{
    if (std::isfinite(xmin) && std::isfinite(xmax)) {
        mView.xmin = xmin;
        mView.xmax = xmax;
        mStale = true;
    }
}

void GraphModel::setWindow(double xmin, double xmax)
{
    changeWindow(xmin, xmax);
}

void GraphModel::setXmin(double time)
{
    changeWindow(time, mView.xmax);
}

void GraphModel::setXmax(double time)
{
    changeWindow(mView.xmin, time);
}

void GraphModel::setXrange(double width)
{
    width = std::max(width, MinWindow);
    if (mGraphMode == GraphAutomatic) {
        changeWindow(mView.xmax - width, mView.xmax);
    } else {
        changeWindow(mView.xmin, mView.xmin + width);
    }
}

void GraphModel::setT0(double time)
{
    changeWindow(time, time + (mView.xmax - mView.xmin));
}

void GraphModel::setYmin(double value)
{
    if (std::isfinite(value)) {
        mView.ymin = value; // no frame depends on it
    }
}

void GraphModel::setYmax(double value)
{
    if (std::isfinite(value)) {
        mView.ymax = value;
        mStale = true;
    }
}

void GraphModel::setGraphMode(eGraphMode mode)
{
    mGraphMode = mode;
    mRecalcPending = true;
}

void GraphModel::setMarker(double start, double stop)
{
    if (std::isfinite(start) && std::isfinite(stop)) {
        mMarkers[0] = start;
        mMarkers[1] = stop;
    }
}

void GraphModel::setCursor(double time)
{
    if (std::isfinite(time)) {
        mCursor = time;
    }
}

void GraphModel::setCursorPosition(double time)
{
    setCursor(time);
    if (mCursorMode == CursorCenter) {
        setT0(time - (mView.xmax - mView.xmin) / 2.0);
    }
}

void GraphModel::zoomToMarker()
{
    constexpr double Shortest = 1.0; // seconds
    const double stop = markStop() - markStart() < Shortest ? markStart() + Shortest : markStop();
    mGraphMode = GraphManual;
    changeWindow(markStart(), stop);
}

void GraphModel::zoomAbout(double time, double factor)
{
    const double width = (mView.xmax - mView.xmin) * factor;
    if (width >= MinWindow && width <= MaxWindow && std::isfinite(time)) {
        mView.xmin = time + (mView.xmin - time) * factor;
        mView.xmax = time + (mView.xmax - time) * factor;
    }
}

} // namespace TARN
