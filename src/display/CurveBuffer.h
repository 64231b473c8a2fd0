#pragma once

#include "display/MinMaxPyramid.h"

#include <cstdint>
#include <functional>
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
};

/// The part of the time axis that is shown, and how wide one of its pixel columns is; seconds.
struct FrameWindow
{
    double xmin = 0.0;
    double xmax = 0.0;
    double columnWidth = 0.0;
};

/// The samples of one curve, oldest first, and its pixel columns for one window. Frames come out
/// as if every sample were added to them one by one, in time that follows the number of columns.
///
/// Times never fall, but that the second sample held may lie before the first.
class CurveBuffer
{
public:
    /// Samples held at most; the oldest go first.
    static constexpr std::size_t MaxSamples = 1'000'000;

    std::size_t size() const { return mTimes.size() - mBegin; }
    bool empty() const { return size() == 0; }

    // Sample k, below size().
    double time(std::size_t k) const { return mTimes[mBegin + k]; }
    double value(std::size_t k) const { return mValues[mBegin + k]; }

    // Of a buffer that is not empty.
    double firstTime() const { return mTimes[mBegin]; }
    double lastTime() const { return mTimes.back(); }

    // Smallest and largest value put since the buffer was last empty, those dropped included;
    // clearing keeps them.
    double dataMin() const { return mDataMin; }
    double dataMax() const { return mDataMax; }

    /// Adds a sample. A time before that of the last of several samples is refused: neither
    /// sample can be trusted, so the last one goes too, and the result is false.
    bool put(double time, double value);

    /// As put for each sample in turn; \p refused is told the times that were refused. Returns
    /// what the last put would. Times and values are equally many.
    bool putSeries(std::span<const double> times, std::span<const double> values,
                   const std::function<void(double time)>& refused);

    void clear();

    /// The value at a time, interpolated between samples. False and 0 outside of their span.
    bool valueAt(double time, double& value) const;

    std::span<const FrameType> frames() const { return std::span(mFrames).subspan(mFirstFrame); }

    /// The columns of a window, from the sample before it (where there are two) to the first
    /// not before its end.
    void rebuildFrames(const FrameWindow& window);

    /// Adds a sample that was just put to the columns.
    void addToFrames(double time, double value, const FrameWindow& window);

    /// Drops columns that the window has left behind; one before it stays, for the line that
    /// enters from the left.
    void trimFrames(double xmin);

    void clearFrames();

private:
    void append(double time, double value);
    void removeLast();
    void dropOldest();
    void widenData(double value);
    std::size_t firstNotBefore(double time, std::size_t begin) const;
    std::size_t columnEnd(std::size_t begin, std::size_t end, std::size_t guess,
                          double columnWidth) const;
    void prefetch(std::size_t k) const;
    FrameType frameOf(std::size_t begin, std::size_t end) const;

    // Parallel arrays: searching reads times only, drawing mostly values. Dropped samples stay
    // in front until enough of them are worth the move.
    std::vector<double> mTimes;
    std::vector<double> mValues;
    std::size_t mBegin = 0;
    MinMaxPyramid mPyramid; ///< over all of mValues
    std::vector<FrameType> mFrames;
    std::size_t mFirstFrame = 0;
    double mDataMin = 0.0;
    double mDataMax = 0.0;
};

} // namespace TARN
