#include "graph/MinMaxPyramid.h"

#include <algorithm>
#include <experimental/simd>

namespace TARN {

namespace {

/// How many values, or blocks of the level below, make a block. Four ranges fill a cache line.
constexpr std::size_t fanOut(std::size_t level)
{
    return level == 1 ? 4 : 16;
}

/// Several running ranges side by side: one alone would wait for each comparison to end.
ValueRange scan(const double* begin, const double* end)
{
    using Lanes = std::experimental::fixed_size_simd<double, 4>;
    constexpr auto Width = static_cast<std::ptrdiff_t>(Lanes::size());
    ValueRange result;
    if (end - begin >= Width) {
        Lanes low(result.low);
        Lanes high(result.high);
        for (; end - begin >= Width; begin += Width) {
            const Lanes values(begin, std::experimental::element_aligned);
            where(values < low, low) = values;
            where(values > high, high) = values;
        }
        result = {hmin(low), hmax(high)};
    }
    for (; begin < end; ++begin) {
        result.widen(*begin);
    }
    return result;
}

ValueRange scan(const ValueRange* begin, const ValueRange* end)
{
    ValueRange result;
    ValueRange other; // two are quicker than one, as above, and here than four
    for (; end - begin >= 2; begin += 2) {
        result.widen(begin[0]);
        other.widen(begin[1]);
    }
    if (begin < end) {
        result.widen(*begin);
    }
    result.widen(other);
    return result;
}

} // namespace

void MinMaxPyramid::grow(const double* values, std::size_t count)
{
    if (mLevels.empty()) {
        mLevels.emplace_back();
    }
    constexpr std::size_t Block = fanOut(0);
    while ((mLevels[0].size() + 1) * Block <= count) {
        const double* block = values + mLevels[0].size() * Block;
        mLevels[0].push_back(scan(block, block + Block));
        growAbove(0);
    }
}

/// Adds the blocks that the last one of \p level completes.
void MinMaxPyramid::growAbove(std::size_t level)
{
    while (mLevels[level].size() % fanOut(level + 1) == 0) {
        if (level + 1 == mLevels.size()) {
            mLevels.emplace_back();
        }
        const ValueRange* end = mLevels[level].data() + mLevels[level].size();
        ++level;
        mLevels[level].push_back(scan(end - fanOut(level), end));
    }
}

void MinMaxPyramid::shrink(std::size_t count)
{
    for (std::size_t level = 0; level < mLevels.size(); ++level) {
        count /= fanOut(level);
        if (mLevels[level].size() > count) {
            mLevels[level].resize(count);
        }
    }
}

void MinMaxPyramid::prefetch(const double* values, std::size_t k) const
{
    constexpr std::size_t Around = 8; // the place is a guess
    __builtin_prefetch(values + k - std::min(k, Around));
    __builtin_prefetch(values + k);
    __builtin_prefetch(values + k + Around);
    for (std::size_t level = 0; level < std::min<std::size_t>(mLevels.size(), 2); ++level) {
        k /= fanOut(level);
        if (k < mLevels[level].size()) {
            __builtin_prefetch(mLevels[level].data() + k);
        }
    }
}

ValueRange MinMaxPyramid::range(const double* values, std::size_t begin, std::size_t end) const
{
    ValueRange result;
    // Scans what lies before the first and after the last whole block; the blocks remain.
    const auto scanEdges = [&](const auto* items, std::size_t block) {
        const std::size_t first = (begin + block - 1) / block;
        const std::size_t last = end / block;
        if (first >= last) {
            result.widen(scan(items + begin, items + end));
            return false;
        }
        result.widen(scan(items + begin, items + first * block));
        result.widen(scan(items + last * block, items + end));
        begin = first;
        end = last;
        return true;
    };
    if (scanEdges(values, fanOut(0))) {
        std::size_t level = 0;
        while (scanEdges(mLevels[level].data(), fanOut(level + 1))) {
            ++level;
        }
    }
    return result;
}

} // namespace TARN
