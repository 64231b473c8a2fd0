#pragma once

#include "graph/CurveFrames.h"

#include <algorithm>
#include <cmath>
#include <vector>

/// A curve worked out sample by sample, to hold the quick ways against.
struct PlainCurve
{
    std::vector<double> times = {};
    std::vector<double> values = {};

    std::size_t size() const { return times.size(); }

    void add(double time, double value)
    {
        times.push_back(time);
        values.push_back(value);
    }

    /// Adds a sample, but a time before that of the last of several takes that one along.
    void put(double time, double value)
    {
        if (size() > 1 && times.back() > time) {
            times.pop_back();
            values.pop_back();
        } else {
            add(time, value);
        }
    }

    /// Samples \p begin to \p end - 1 as one column.
    TARN::FrameType frame(std::size_t begin, std::size_t end, const TARN::GapRule& gaps) const
    {
        TARN::FrameType frame;
        frame.time = times[begin];
        frame.afterGap = begin > 0 && gaps.isGap(times[begin - 1], times[begin]);
        frame.state = static_cast<std::int32_t>(std::min<std::size_t>(end - begin, 4));
        frame.first = values[begin];
        frame.low = frame.high = frame.state > 1 ? values[begin + 1] : 0.0;
        frame.high = frame.state == 3 ? values[begin + 2] : frame.high;
        for (std::size_t k = begin + 2; frame.state == 4 && k < end; ++k) {
            frame.low = std::fmin(frame.low, values[k]);
            frame.high = std::fmax(frame.high, values[k]);
            frame.last = values[k];
        }
        return frame;
    }

    /// The columns of a window, each from a sample to before another.
    std::vector<std::pair<std::size_t, std::size_t>> columns(const TARN::FrameWindow& window) const
    {
        const auto firstNotBefore = [this](double time, std::size_t k) {
            while (k < size() && !(times[k] >= time)) {
                ++k;
            }
            return k;
        };
        const std::size_t inside = firstNotBefore(window.xmin, 0);
        std::size_t k = inside > 1 ? inside - 1 : inside;
        const std::size_t end = std::min(firstNotBefore(window.xmax, k) + 1, size());
        std::vector<std::pair<std::size_t, std::size_t>> columns;
        while (k < end) {
            const std::size_t begin = k;
            while (k < end && (k == begin || times[k] - times[begin] <= window.columnWidth)) {
                ++k;
            }
            columns.emplace_back(begin, k);
        }
        return columns;
    }

    std::vector<TARN::FrameType> frames(const TARN::FrameWindow& window,
                                        const TARN::GapRule& gaps = {}) const
    {
        std::vector<TARN::FrameType> frames;
        for (const auto& [begin, end] : columns(window)) {
            frames.push_back(frame(begin, end, gaps));
        }
        return frames;
    }

    static bool isSame(const TARN::FrameType& a, const TARN::FrameType& b)
    {
        const auto same = [](double x, double y) { return x == y || (x != x && y != y); };
        return a.state == b.state && a.time == b.time && a.afterGap == b.afterGap &&
               same(a.first, b.first) && (a.state < 2 || same(a.low, b.low)) &&
               (a.state < 3 || same(a.high, b.high)) && (a.state < 4 || same(a.last, b.last));
    }
};
