#pragma once

#include "profile/Decoder.h"
#include "record/GapRule.h"
#include "record/RecordData.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace TARN {

class Profile;

/// A parameter of a recording at a time offset: its samples, their times and how they are
/// decoded. The one place that joins a parameter with its samples.
///
/// Samples stand in two orders: that of the list, which is the files', and that of time, in which
/// equal times keep the order of the list. Mostly the two are the same. Times are seconds on the
/// recording's clock with the offset, where it applies. Refers to the recording and the profile.
/// The order of time is found when it is first asked for: one thread at a time.
class Series
{
public:
    Series(const RecordData& data, const Profile& profile, const ProfileParameter& parameter,
           double offset);

    const ProfileParameter& parameter() const { return *mParameter; }
    const Decoder& decoder() const { return mDecoder; }

    double shift() const { return mShift; } ///< of the offset in these times, seconds
    bool empty() const { return mEntries.empty(); }
    std::size_t size() const { return mEntries.size(); }

    // In the order of the list.

    std::span<const RecordEntry> entries() const { return mEntries; }
    double timeOf(const RecordEntry& entry) const { return entry.time() + mShift; }
    /// timeOf of entries; \p times has room for as many.
    void timesOf(std::span<const RecordEntry> entries, double* times) const;

    // In the order of time; k is below size().

    /// Whether the two orders are the same.
    bool isInOrder() const
    {
        findOrder();
        return mOrder.empty();
    }
    /// Spares looking for it: who has walked the list has seen that they are.
    void setInOrder() { mIsOrdered = true; }
    /// Place of a sample in the list.
    std::size_t place(std::size_t k) const { return isInOrder() ? k : mOrder[k]; }
    const RecordEntry& entry(std::size_t k) const { return mEntries[place(k)]; }
    double time(std::size_t k) const { return timeOf(entry(k)); }
    double value(std::size_t k) const { return mDecoder.toDouble(entry(k), true); }

    /// First sample that is not before a time; size() when there is none.
    std::size_t firstNotBefore(double time) const;
    /// First sample after a time; size() when there is none.
    std::size_t firstAfter(double time) const;

    /// Of the samples from \p begin to before \p end, which are some, the last one in the list.
    const RecordEntry& lastInList(std::size_t begin, std::size_t end) const;

    /// Where the parameter has no value; \p silences of the recording at the same offset.
    GapRule gapRule(const SilencesSource& silences) const;
    /// The same for who knows that QuickRhythm proves nothing.
    GapRule measuredGapRule(const SilencesSource& silences) const;

private:
    void findOrder() const
    {
        if (!mIsOrdered) {
            sortByTime();
        }
    }
    void sortByTime() const;

    const ProfileParameter* mParameter;
    Decoder mDecoder;
    std::span<const RecordEntry> mEntries;
    double mShift = 0.0;
    mutable bool mIsOrdered = false; ///< mOrder is known
    /// Places by time; empty where the list is in that order.
    mutable std::vector<std::uint32_t> mOrder;
};

} // namespace TARN
