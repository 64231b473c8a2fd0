#include "graph/CurveSet.h"

#include "graph/GraphPalette.h"

#include <algorithm>

namespace TARN {

CurveSet::CurveSet(unsigned n) : mCurves(std::clamp(n, 1U, MaxCurves))
{
    for (unsigned k = 0; k < count(); ++k) {
        mCurves[k].color = curveColor(k);
    }
    setOrder({});
}

std::vector<unsigned> CurveSet::shown() const
{
    std::vector<unsigned> indexes;
    std::ranges::copy_if(mOrder, std::back_inserter(indexes),
                         [this](unsigned k) { return mCurves[k].isShown(); });
    return indexes;
}

void CurveSet::setOrder(std::vector<unsigned> order)
{
    std::erase_if(order, [this](unsigned k) { return k >= count(); });
    for (unsigned k = 0; k < count(); ++k) {
        if (std::ranges::find(order, k) == order.end()) {
            order.push_back(k);
        }
    }
    mOrder = std::move(order);
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
        curve.facts = nullptr;
        curve.frames.clear();
        curve.reference.clear();
        curve.difference.clear();
        curve.valueSet = false;
    }
}

bool CurveSet::hasDifferences() const
{
    return std::ranges::any_of(mCurves, [](const ParStruct& curve) {
        return curve.isShown() && curve.difference.samples != nullptr;
    });
}

void CurveSet::moveTo(unsigned curve, unsigned place)
{
    const auto from = std::ranges::find(mOrder, curve);
    const auto to = std::ranges::find(mOrder, place);
    if (from < to) {
        std::rotate(from, from + 1, to + 1);
    } else if (from != mOrder.end() && to != mOrder.end()) {
        std::rotate(to, from, from + 1);
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
    const std::vector<unsigned> all = shown();
    const auto found = std::ranges::find_if(all, [&](unsigned k) {
        const GraphStrip& strip = mCurves[k].strip;
        const double below = mCurves[k].differenceStrip.height;
        return y >= strip.y0 - below && y < strip.y0 + strip.height;
    });
    return all.empty() ? nullptr : &mCurves[found != all.end() ? *found : all.front()];
}

} // namespace TARN
