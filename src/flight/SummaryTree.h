#pragma once

#include "flight/RangeSummary.h"

#include <array>
#include <vector>

namespace TARN {

/// Summaries of blocks of consecutive samples, and of blocks of those, so that any range is
/// summarised in a few steps. Samples after the last whole block are in none.
class SummaryTree
{
public:
    static constexpr std::size_t Block = 256; ///< samples
    static constexpr std::size_t FanOut = 64; ///< blocks

    /// Room for the summaries of the whole blocks of so many samples.
    void resize(std::size_t samples) { mLevels[0].resize(samples / Block); }
    std::size_t blocks() const { return mLevels[0].size(); }
    void set(std::size_t block, RangeSummary summary) { mLevels[0][block] = std::move(summary); }
    /// To be called when each block has its summary.
    void finish(const SummaryRule& rule);

    /// Of samples from \p begin to before \p end; \p scan(begin, end) summarises those that make no
    /// whole block.
    template <typename Scan>
    RangeSummary of(std::size_t begin, std::size_t end, const SummaryRule& rule, Scan scan) const
    {
        const std::size_t first = (begin + Block - 1) / Block;
        const std::size_t last = std::min(end / Block, blocks());
        if (first >= last) {
            return scan(begin, end);
        }
        RangeSummary all = scan(begin, first * Block);
        append(first, last, rule, all);
        all.append(scan(last * Block, end), rule);
        return all;
    }

private:
    void append(std::size_t first, std::size_t last, const SummaryRule& rule,
                RangeSummary& all) const;

    std::array<std::vector<RangeSummary>, 2> mLevels; ///< of blocks, and of FanOut blocks
};

} // namespace TARN
