#pragma once

#include "graph/CurveSamples.h"

#include <cstdint>
#include <span>
#include <vector>

namespace TARN {

/// The samples of one curve that fall into one pixel column. \p state of the values count, in
/// the order first, low, high, last: of two samples the second stands in low, of three the third
/// in high; from four on low and high are the range of all but the first.
struct FrameType
{
    std::int32_t state = 1; ///< 1 to 4
    double time = 0.0;      ///< of the first sample, seconds
    double first = 0.0;
    double low = 0.0;
    double high = 0.0;
    double last = 0.0;
    bool afterGap = false; ///< there is no value between the frame before and this one

    /// The value of the last sample.
    double latest() const
    {
        const double values[] = {first, low, high, last};
        return values[state - 1];
    }

    /// Range of the values that count, of those that are numbers.
    ValueRange range() const;
};

/// The part of the time axis that is shown, and how wide one of its pixel columns is; seconds.
struct FrameWindow
{
    double xmin = 0.0;
    double xmax = 0.0;
    double columnWidth = 0.0;
};

/// The pixel columns of a curve for one window. Frames come out as if every sample were added to
/// them one by one, in time that follows the number of columns.
class CurveFrames
{
public:
    std::span<const FrameType> frames() const { return std::span(mFrames).subspan(mFirst); }

    /// The columns of a window, from the sample before it (where there are two) to the first
    /// not before its end.
    void rebuild(const CurveSamples& samples, const FrameWindow& window);

    /// Finds what range() will say of these columns, in less time than the columns, which are not
    /// there until then.
    void foresee(const CurveSamples& samples, const FrameWindow& window);

    /// Range of the values that are finite.
    ValueRange range() const;

    /// Adds a sample that was just put to the columns.
    void add(double time, double value, const FrameWindow& window);

    /// Drops columns that the window has left behind; one before it stays, for the line that
    /// enters from the left.
    void trim(double xmin);

    void clear();

private:
    std::vector<FrameType> mFrames;
    std::size_t mFirst = 0; ///< of those that count
    ValueRange mForeseen;   ///< empty while there are frames
};

} // namespace TARN
