#include "display/TableRows.h"

#include "base/ClockTime.h"

#include <algorithm>
#include <bit>
#include <numeric>
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

void TableRows::clear()
{
    mKeys.clear();
    mColumns.clear();
}

void TableRows::build(const Record& record, const std::vector<const ProfileParameter*>& parameters)
{
    clear();
    const RecordData& data = record.recordData();
    const RecordInfo& info = record.recordInfo();
    KeySet keys(timeKeyOf(info.startTime + std::min(0.0, data.offset)),
                timeKeyOf(info.stopTime + std::max(0.0, data.offset)), data.count());
    for (const ProfileParameter* parameter : parameters) {
        Column& column = mColumns.emplace_back();
        const RecordIdList* list = data.find(static_cast<unsigned>(parameter->channel),
                                             static_cast<unsigned>(parameter->id));
        if (list != nullptr) {
            column.entries = list->entries;
            column.shift = list->shift(data.offset);
            scan(column, keys);
        }
    }
    mKeys = keys.take();
}

void TableRows::scan(Column& column, KeySet& keys)
{
    bool ascending = true;
    std::uint32_t last = column.keyOf(0);
    keys.add(last);
    for (std::size_t i = 1; i < column.entries.size(); ++i) {
        const std::uint32_t key = column.keyOf(i);
        if (key != last) {
            keys.add(key);
            ascending = ascending && key > last;
            last = key;
        }
    }
    if (!ascending) {
        column.order.resize(column.entries.size());
        std::iota(column.order.begin(), column.order.end(), 0U);
        std::ranges::stable_sort(column.order, {},
                                 [&](std::uint32_t entry) { return column.keyOf(entry); });
    }
}

std::uint32_t TableRows::Column::keyOf(std::size_t entry) const
{
    return timeKeyOf(entries[entry].time() + shift);
}

std::size_t TableRows::rowAt(double time) const
{
    const auto after = std::ranges::upper_bound(mKeys, timeKeyOf(time));
    return after == mKeys.begin() ? 0 : static_cast<std::size_t>(after - mKeys.begin() - 1);
}

const RecordEntry* TableRows::sample(std::size_t row, std::size_t parameter) const
{
    const Column& column = mColumns[parameter];
    const std::uint32_t key = mKeys[row];
    const auto positions = std::views::iota(std::size_t(0), column.entries.size());
    const auto after = std::ranges::upper_bound(
        positions, key, {}, [&](std::size_t k) { return column.keyOf(column.at(k)); });
    if (after == positions.begin()) {
        return nullptr;
    }
    const std::size_t entry = column.at(*after - 1);
    return column.keyOf(entry) == key ? &column.entries[entry] : nullptr;
}

} // namespace TARN
