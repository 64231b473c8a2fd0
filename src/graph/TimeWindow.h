#pragma once

#include "record/TimeRange.h"

#include <vector>

namespace TARN {

/// The time that a graph shows, from one moment to another; seconds. What is no number is
/// ignored. Windows that a zoom leaves can be gone back to.
class TimeWindow
{
public:
    static constexpr double Narrowest = 1e-6; ///< seconds; times have steps of 31 ns
    static constexpr double Widest = 1e9;

    double min() const { return mMin; }
    double max() const { return mMax; }
    double width() const { return mMax - mMin; }

    void set(double min, double max);
    /// Another width, at least the narrowest, from its begin or to its end.
    void setWidth(double width, bool toEnd);
    /// Moves it to start there.
    void shiftTo(double min) { set(min, min + width()); }
    void centreOn(double time) { shiftTo(time - width() / 2.0); }

    /// Scales it about a time; not beyond the narrowest and the widest.
    void zoomAbout(double time, double factor);

    /// Moves it so that a time keeps a tenth of the width from both ends.
    void follow(double time);

    /// Moves it as little as needed, and as follow does, where a time is not in it.
    void keepInside(double time);

    /// All there is to be seen, for showAll().
    void setWhole(double start, double stop) { mWhole = {start, stop}; }
    TimeRange whole() const { return {mWhole.min, mWhole.max}; }
    /// Shows all of it with a tenth more at both ends.
    void showAll();

    /// Remembers the window, which is about to change, for back().
    void remember();
    // Return to the window that was last remembered, and to the one left by that; false when
    // there is none.
    bool back();
    bool forth();

private:
    struct Extent
    {
        double min;
        double max;
    };

    bool goTo(std::vector<Extent>& from, std::vector<Extent>& to);

    double mMin = 0.0;
    double mMax = 60.0;
    Extent mWhole = {0.0, 0.0};
    std::vector<Extent> mBefore;
    std::vector<Extent> mAfter;
};

} // namespace TARN
