#include "table/TableRows.h"

#include "base/ClockTime.h"

#include <algorithm>
#include <bit>
#include <ranges>

namespace TARN {

/// Collects keys in any order and gives them back once each, ascending. Marks them in a bit map
/// over the recording's time span; where single samples lie so far off that the map would be
/// larger than the samples, they are sorted instead.
class TableRows::KeySet
{
public:
    KeySet(std::uint32_t lowest, std::uint32_t highest, std::size_t samples) : mLowest(lowest)
    {
        const std::size_t words = (std::size_t(highest) - lowest) / 64 + 1;
        if (words <= std::max<std::size_t>(1024, samples)) {
            mBits.resize(words);
        }
    }

    void add(std::uint32_t key)
    {
        if (mBits.empty()) {
            mSparse.push_back(key);
        } else if ((key - mLowest) / 64 < mBits.size()) {
            mBits[(key - mLowest) / 64] |= std::uint64_t(1) << (key - mLowest) % 64;
        }
    }

    std::vector<std::uint32_t> take()
    {
        if (mBits.empty()) {
            std::ranges::sort(mSparse);
            mSparse.erase(std::ranges::unique(mSparse).begin(), mSparse.end());
            return std::move(mSparse);
        }
        std::vector<std::uint32_t> keys;
        for (std::size_t word = 0; word < mBits.size(); ++word) {
            for (std::uint64_t bits = mBits[word]; bits != 0; bits &= bits - 1) {
                const auto bit = static_cast<std::uint32_t>(std::countr_zero(bits));
                keys.push_back(mLowest + static_cast<std::uint32_t>(word) * 64 + bit);
            }
        }
        return keys;
    }

private:
    std::uint32_t mLowest;
    std::vector<std::uint64_t> mBits;
    std::vector<std::uint32_t> mSparse;
};

TableRows::TableRows(std::shared_ptr<const Profile> profile, const Selection& selection)
    : mProfile(std::move(profile)), mParameters(selection.parameters(*mProfile))
{}

TableRows::TableRows(std::shared_ptr<const Flight> flight, const Selection& selection,
                     double offset, Progress& progress)
    : mProfile(flight->profile()), mFlight(std::move(flight)),
      mParameters(selection.parameters(*mProfile))
{
    // The lists of all samples of a channel have no offset, whatever their samples have.
    const TimeRange range = mFlight->range(offset);
    const RecordInfo& info = mFlight->info();
    KeySet keys(timeKeyOf(std::min(range.start, info.startTime)),
                timeKeyOf(std::max(range.stop, info.stopTime)), mFlight->samples().count());
    for (const ProfileParameter* parameter : mParameters) {
        progress.report(mSeries.size(), mParameters.size());
        mSeries.push_back(mFlight->series(*parameter, offset));
        if (!progress.stopRequested()) {
            scan(mSeries.back(), keys);
        }
    }
    mKeys = keys.take();
}

void TableRows::scan(const Series& series, KeySet& keys)
{
    if (series.empty()) {
        return;
    }
    series.isInOrder(); // found now, not when the first cell is looked at
    std::uint32_t last = timeKeyOf(series.timeOf(series.entries().front()));
    keys.add(last);
    for (const RecordEntry& entry : series.entries()) {
        const std::uint32_t key = timeKeyOf(series.timeOf(entry));
        if (key != last) {
            keys.add(key);
            last = key;
        }
    }
}

std::size_t TableRows::rowAt(double time) const
{
    const auto after = std::ranges::upper_bound(mKeys, timeKeyOf(time));
    return after == mKeys.begin() ? 0 : static_cast<std::size_t>(after - mKeys.begin() - 1);
}

const RecordEntry* TableRows::sample(std::size_t row, std::size_t column) const
{
    const Series& series = mSeries[column];
    const auto places = std::views::iota(std::size_t(0), series.size());
    const auto keyAt = [&](std::size_t k) { return timeKeyOf(series.time(k)); };
    const auto end = std::ranges::upper_bound(places, mKeys[row], {}, keyAt);
    std::size_t begin = static_cast<std::size_t>(end - places.begin());
    const std::size_t after = begin;
    while (begin > 0 && keyAt(begin - 1) == mKeys[row] && (begin == after || !series.isInOrder())) {
        --begin;
    }
    return begin < after ? &series.lastInList(begin, after) : nullptr;
}

} // namespace TARN
