#include "profile/Series.h"

#include "profile/Profile.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <ranges>

namespace TARN {

Series::Series(const RecordData& data, const Profile& profile, const ProfileParameter& parameter,
               double offset)
    : mParameter(&parameter), mDecoder(profile.data(), parameter)
{
    const RecordIdList* list =
        data.find(static_cast<unsigned>(parameter.channel), static_cast<unsigned>(parameter.id));
    if (list != nullptr) {
        mEntries = list->entries;
        mShift = list->shift(offset);
    }
}

void Series::timesOf(std::span<const RecordEntry> entries, double* times) const
{
    std::ranges::transform(entries, times,
                           [this](const RecordEntry& entry) { return timeOf(entry); });
}

void Series::sortByTime() const
{
    const auto time = [this](const RecordEntry& entry) { return timeOf(entry); };
    if (!std::ranges::is_sorted(mEntries, {}, time)) {
        mOrder.resize(mEntries.size());
        std::iota(mOrder.begin(), mOrder.end(), 0U);
        std::ranges::stable_sort(mOrder, {}, [&](std::uint32_t k) { return time(mEntries[k]); });
    }
    mIsOrdered = true;
}

std::size_t Series::firstNotBefore(double time) const
{
    const auto numbers = std::views::iota(std::size_t(0), size());
    return static_cast<std::size_t>(
        std::ranges::partition_point(numbers, [&](std::size_t k) { return this->time(k) < time; }) -
        numbers.begin());
}

std::size_t Series::firstAfter(double time) const
{
    const auto numbers = std::views::iota(std::size_t(0), size());
    return static_cast<std::size_t>(
        std::ranges::partition_point(numbers,
                                     [&](std::size_t k) { return this->time(k) <= time; }) -
        numbers.begin());
}

const RecordEntry& Series::lastInList(std::size_t begin, std::size_t end) const
{
    std::size_t last = place(end - 1);
    for (std::size_t k = begin; k + 1 < end && !isInOrder(); ++k) {
        last = std::max(last, place(k));
    }
    return mEntries[last];
}

GapRule Series::gapRule(const SilencesSource& silences) const
{
    QuickRhythm rhythm;
    std::array<double, 512> times;
    for (auto rest = mEntries; isInOrder() && !rest.empty();) {
        const auto entries = rest.first(std::min(times.size(), rest.size()));
        timesOf(entries, times.data());
        rhythm.add(std::span(times).first(entries.size()));
        rest = rest.subspan(entries.size());
    }
    if (rhythm.isProven()) {
        return QuickRhythm::rule();
    }
    return measuredGapRule(silences);
}

GapRule Series::measuredGapRule(const SilencesSource& silences) const
{
    std::vector<double> steps;
    steps.reserve(size());
    for (std::size_t k = 1; k < size(); ++k) {
        const double step = time(k) - time(k - 1);
        if (step > 0.0) {
            steps.push_back(step);
        }
    }
    return {std::move(steps), silences};
}

} // namespace TARN
