#include "graph/TimeWindow.h"

#include <algorithm>
#include <cmath>

namespace TARN {

void TimeWindow::set(double min, double max)
{
    if (std::isfinite(min) && std::isfinite(max)) {
        mMin = min;
        mMax = max;
    }
}

void TimeWindow::setWidth(double width, bool toEnd)
{
    width = std::max(width, Narrowest);
    if (toEnd) {
        set(mMax - width, mMax);
    } else {
        set(mMin, mMin + width);
    }
}

void TimeWindow::zoomAbout(double time, double factor)
{
    const double scaled = width() * factor;
    if (scaled >= Narrowest && scaled <= Widest && std::isfinite(time)) {
        set(time + (mMin - time) * factor, time + (mMax - time) * factor);
    }
}

void TimeWindow::follow(double time)
{
    const double margin = 0.1 * width();
    if (time < mMin + margin) {
        shiftTo(time - margin);
    }
    if (time > mMax - margin) {
        shiftTo(time + margin - width());
    }
}

void TimeWindow::keepInside(double time)
{
    if (time < mMin || time > mMax) {
        follow(time);
    }
}

void TimeWindow::showAll()
{
    const auto margin = 0.1F * static_cast<float>(mWhole.max - mWhole.min);
    remember();
    set(static_cast<float>(mWhole.min - margin), static_cast<float>(mWhole.max + margin));
}

void TimeWindow::remember()
{
    constexpr std::size_t Most = 100;
    mAfter.clear();
    mBefore.push_back({mMin, mMax});
    if (mBefore.size() > Most) {
        mBefore.erase(mBefore.begin());
    }
}

bool TimeWindow::back()
{
    return goTo(mBefore, mAfter);
}

bool TimeWindow::forth()
{
    return goTo(mAfter, mBefore);
}

bool TimeWindow::goTo(std::vector<Extent>& from, std::vector<Extent>& to)
{
    if (from.empty()) {
        return false;
    }
    to.push_back({mMin, mMax});
    set(from.back().min, from.back().max);
    from.pop_back();
    return true;
}

} // namespace TARN
