#include "flight/SummaryTree.h"

namespace TARN {

void SummaryTree::finish(const SummaryRule& rule)
{
    mLevels[1].assign(blocks() / FanOut, {});
    for (std::size_t block = 0; block < blocks() / FanOut * FanOut; ++block) {
        mLevels[1][block / FanOut].append(mLevels[0][block], rule);
    }
}

void SummaryTree::append(std::size_t first, std::size_t last, const SummaryRule& rule,
                         RangeSummary& all) const
{
    for (std::size_t k = first; k < last;) {
        const bool isWhole = k % FanOut == 0 && k + FanOut <= last;
        all.append(isWhole ? mLevels[1][k / FanOut] : mLevels[0][k], rule);
        k += isWhole ? FanOut : 1;
    }
}

} // namespace TARN
