#pragma once

#include <optional>
#include <vector>

namespace TARN {

class Profile;
class Record;

/// The moments of a recording at which something went wrong or right again: limit and
/// warning-lamp events, and errors that came or went. For going from one to the next.
class EventTimes
{
public:
    EventTimes() = default;

    /// Takes the events that the recording holds and the faults that the profile describes.
    EventTimes(const Record& record, const Profile& profile);

    bool empty() const { return mTimes.empty(); }

    /// First event after \p time (seconds). What is less than a millisecond away is where one is.
    std::optional<double> next(double time) const;

    /// Last event before \p time (seconds).
    std::optional<double> previous(double time) const;

private:
    std::vector<double> mTimes; ///< ascending
};

} // namespace TARN
