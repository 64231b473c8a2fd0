#pragma once

#include <cstddef>
#include <limits>
#include <vector>

namespace TARN {

/// Smallest and largest of some values. NaN is no value: it widens nothing.
struct ValueRange
{
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    bool empty() const { return !(low <= high); }

    void widen(double value)
    {
        low = value < low ? value : low;
        high = value > high ? value : high;
    }
    void widen(const ValueRange& other)
    {
        low = other.low < low ? other.low : low;
        high = other.high > high ? other.high : high;
    }
};

/// Answers the range of any stretch of an array without looking at each of its values: keeps the
/// ranges of blocks of 16 values, of 4 such blocks, of 16 of those and so on: steps that keep what
/// an answer reads from memory small. The array belongs to the caller, who grows and cuts it at
/// its end only and passes it on each call. One and a third bytes a value.
class MinMaxPyramid
{
public:
    /// The array has grown to \p count values.
    void grow(const double* values, std::size_t count);

    /// The array was cut to \p count values.
    void shrink(std::size_t count);

    void clear() { mLevels.clear(); }

    /// Range of values \p begin to \p end - 1, within the count last told; empty when begin is
    /// not below end or every value is NaN.
    ValueRange range(const double* values, std::size_t begin, std::size_t end) const;

    /// Tells the processor that a range near value \p k is about to be asked for; the array
    /// goes on for 8 values at least.
    void prefetch(const double* values, std::size_t k) const;

private:
    void growAbove(std::size_t level);

    std::vector<std::vector<ValueRange>> mLevels; ///< of whole blocks only
};

} // namespace TARN
