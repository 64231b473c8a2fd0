#pragma once

namespace TARN {

/// Seconds; times are made of ticks of 31.25 ns, so nearer ones are the same, however computed.
constexpr double HalfTick = 31.25e-9 / 2.0;

/// From one time to another, both included; seconds on the recording's clock.
struct TimeRange
{
    double start = 0.0;
    double stop = 0.0;

    bool contains(double time) const { return start <= time && time <= stop; }
    /// Whether it holds more than a moment: what is no range means none was chosen.
    bool hasExtent() const { return stop > start; }

    friend bool operator==(const TimeRange&, const TimeRange&) = default;
};

} // namespace TARN
