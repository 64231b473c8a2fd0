#include "record/Silences.h"

#include "base/Numbers.h"
#include "record/RecordData.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>

namespace TARN {

namespace {

/// Half of the shortest silence: each holds a whole slot of the clock in which nothing stands.
constexpr double SlotWidth = Silences::Shortest / 2.0;

struct Slot
{
    double first;
    double last;
};

/// Lists are walked one by one, as they lie in memory; neighbours mostly share a slot.
void collect(const RecordIdList& list, double offset, std::map<std::int64_t, Slot>& slots)
{
    const double shift = list.shift(offset);
    std::int64_t number = 0;
    Slot* slot = nullptr;
    for (const RecordEntry& entry : list.entries) {
        const double time = entry.time() + shift;
        const auto now = truncatedTo<std::int64_t>(std::floor(time / SlotWidth));
        if (slot == nullptr || now != number) {
            number = now;
            slot = &slots.try_emplace(number, Slot{time, time}).first->second;
        }
        slot->first = std::min(slot->first, time);
        slot->last = std::max(slot->last, time);
    }
}

} // namespace

Silences::Silences(const RecordData& data, double offset)
{
    std::map<std::int64_t, Slot> slots;
    for (const RecordIdList& list : data.lists()) {
        collect(list, offset, slots);
    }
    const Slot* before = nullptr;
    for (const auto& [number, slot] : slots) {
        if (before != nullptr && slot.first - before->last > Shortest) {
            mStretches.push_back({before->last, slot.first});
        }
        before = &slot;
    }
}

bool Silences::isWithin(double from, double to) const
{
    const auto first = std::ranges::lower_bound(mStretches, from, {}, &Stretch::from);
    return first != mStretches.end() && first->to <= to;
}

} // namespace TARN
