#include "graph/CurveSet.h"

#include "graph/GraphPalette.h"

#include <algorithm>

namespace TARN {

CurveSet::CurveSet(unsigned n) : mCurves(std::clamp(n, 1U, MaxCurves))
{
    for (unsigned k = 0; k < count(); ++k) {
        mCurves[k].color = curveColor(k);
    }
}

std::size_t CurveSet::activeCount() const
{
    return static_cast<std::size_t>(std::ranges::count_if(mCurves, &ParStruct::active));
}

bool CurveSet::hasSamples() const
{
    return std::ranges::any_of(
        mCurves, [](const ParStruct& curve) { return curve.active && !curve.samples().empty(); });
}

bool CurveSet::put(unsigned i, double time, double value)
{
    ParStruct& curve = mCurves[i];
    curve.series = nullptr;
    if (!curve.live.put(time, value)) {
        return false;
    }
    curve.lastValue = value;
    curve.valueSet = true;
    return true;
}

void CurveSet::setSeries(unsigned i, std::shared_ptr<const CurveSamples> samples)
{
    if (ParStruct* found = curve(i)) {
        found->live.clear();
        found->series = std::move(samples);
    }
}

void CurveSet::clear()
{
    for (ParStruct& curve : mCurves) {
        curve.live.clear();
        curve.series = nullptr;
        curve.frames.clear();
        curve.valueSet = false;
    }
}

ValueRange CurveSet::timeRange() const
{
    ValueRange times;
    for (const ParStruct& curve : mCurves) {
        if (!curve.samples().empty()) {
            times.widen({curve.samples().firstTime(), curve.samples().lastTime()});
        }
    }
    return times;
}

ParStruct* CurveSet::at(double y)
{
    ParStruct* first = nullptr;
    for (ParStruct& curve : mCurves) {
        if (!curve.active) {
            continue;
        }
        if (y >= curve.strip.y0 && y < curve.strip.y0 + curve.strip.height) {
            return &curve;
        }
        first = first != nullptr ? first : &curve;
    }
    return first;
}

} // namespace TARN
