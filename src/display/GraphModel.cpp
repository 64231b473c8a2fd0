#include "display/GraphModel.h"

#include "base/Diagnostics.h"
#include "base/Property.h"

#include <QtGui/QColor>

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

GraphColor colorOf(unsigned k)
{
    constexpr GraphColor Colors[] = {{1, 0, 0}, {0, 1, 0}, {0.5F, 0.5F, 1},
                                     {1, 1, 0}, {0, 1, 1}, {1, 0, 1}};
    const std::string key = "GraphColor" + std::to_string(k);
    const auto name = QString::fromStdString(Property::instance()->getString(key, ""));
    if (QColor::isValidColor(name)) {
        const QColor color(name);
        return {color.redF(), color.greenF(), color.blueF()};
    }
    return k < std::size(Colors) ? Colors[k] : GraphColor();
}

void reportRefused(const QString& name, double time)
{
    diagnose("wrong time stamp %s %f skipping...\n", qUtf8Printable(name), time);
}

} // namespace

GraphModel::GraphModel()
{
    setMaxParameters(6);
}

void GraphModel::setMaxParameters(unsigned n)
{
    mCurves.clear();
    mCurves.resize(std::clamp(n, 1U, MaxCurves));
    for (unsigned k = 0; k < count(); ++k) {
        mCurves[k].color = colorOf(k);
    }
}

bool GraphModel::hasSamples() const
{
    return std::ranges::any_of(
        mCurves, [](const ParStruct& curve) { return curve.active && !curve.buffer.empty(); });
}

void GraphModel::setActive(unsigned i, bool active)
{
    if (ParStruct* found = curve(i); found != nullptr && found->active != active) {
        found->active = active;
        mStale = true; // frames are kept for active curves only
    }
}

void GraphModel::setTime(double time)
{
    if (!std::isfinite(time)) {
        return;
    }
    if (mGraphMode == GraphAutomatic) {
        mView.xmin = time - (mView.xmax - mView.xmin);
        mView.xmax = time;
    }
    mTime = time;
    mTimeChanged = true;
    mTimeValid = true;
    for (ParStruct& curve : mCurves) {
        curve.valueSet = false;
    }
    if (mRecalcPending) {
        mRecalcPending = false;
        mStale = true;
    }
}

void GraphModel::putValue(unsigned i, double value)
{
    ParStruct* found = curve(i);
    if (found == nullptr || !mTimeValid) {
        return;
    }
    if (!found->buffer.put(mTime, value)) {
        reportRefused(found->name, mTime);
        return;
    }
    if (found->active && !mStale) {
        found->buffer.addToFrames(mTime, value, window());
    }
    found->lastValue = value;
    found->valueSet = true;
}

void GraphModel::putSeries(unsigned i, std::span<const double> times,
                           std::span<const double> values)
{
    ParStruct* found = curve(i);
    if (found == nullptr || times.empty()) {
        return;
    }
    const bool stored = found->buffer.putSeries(
        times, values, [&](double time) { reportRefused(found->name, time); });
    setTime(times.back());
    mStale = true;
    if (!found->buffer.empty()) {
        found->lastValue = found->buffer.value(found->buffer.size() - 1);
    }
    found->valueSet = stored;
}

bool GraphModel::getValue(unsigned i, double time, double& value) const
{
    value = 0.0;
    const ParStruct* found = curve(i);
    return found != nullptr && found->buffer.valueAt(time, value);
}

void GraphModel::getParameterRangeX(unsigned i, double& first, double& last) const
{
    const ParStruct* found = curve(i);
    if (found != nullptr) {
        first = found->buffer.empty() ? 0.0 : found->buffer.firstTime();
        last = found->buffer.empty() ? 0.0 : found->buffer.lastTime();
    }
}

void GraphModel::getParameterRangeY(unsigned i, double& min, double& max) const
{
    const ParStruct* found = curve(i);
    if (found != nullptr) {
        min = found->buffer.dataMin();
        max = found->buffer.dataMax();
    }
}

void GraphModel::clear()
{
    for (ParStruct& curve : mCurves) {
        curve.buffer.clear();
        curve.valueSet = false;
    }
    mView.ymin = GraphView().ymin;
    mView.ymax = GraphView().ymax;
    setMarker(0.0, 0.0);
    mTimeChanged = true;
    mStale = true;
}

} // namespace TARN
