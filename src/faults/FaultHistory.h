#pragma once

#include "profile/ProfileTypes.h"
#include "record/RecordData.h"

#include <cstdint>
#include <vector>

namespace TARN {

/// A change of one kind of error, on the recording's clock in seconds (single precision, as the
/// timeline is drawn).
struct FaultPoint
{
    float time;
    bool state;
};

/// What an error matrix reported over a recording: its status messages stand on channel 0 under
/// the matrix's identifier, bit b of the word in bytes 4 to 7 is error b. Refers to the
/// recording until it is loaded again.
class FaultHistory
{
public:
    FaultHistory(const RecordData& record, const FaultMatrix& matrix);

    /// Active bits at \p time (seconds): those of the last message not after it (within 0.01 s);
    /// before the first message those of the first. None after the last message.
    std::uint32_t bitsAt(double time) const;

    // Times at which any error of a type came or went: first message, changes, last message.
    // Empty without messages.
    const std::vector<FaultPoint>& info() const { return mInfo; }
    const std::vector<FaultPoint>& warning() const { return mWarning; }
    const std::vector<FaultPoint>& fault() const { return mFault; }

    /// Appends the exact times (seconds) of the messages with which an error of any type came or
    /// went, in message order.
    void appendChangeTimes(std::vector<double>& times) const;

    /// Horizontal pixel of a time in a timeline of \p width pixels that spans \p start to
    /// \p stop (seconds); 0 where the two are one.
    static int timelineX(float time, double start, double stop, int width);

private:
    std::span<const RecordEntry> mEntries;
    /// Latest time up to each message; empty where the messages ascend in time anyway.
    std::vector<double> mLatest;
    std::uint32_t mTyped = 0; ///< bits that have an error type
    std::vector<FaultPoint> mInfo;
    std::vector<FaultPoint> mWarning;
    std::vector<FaultPoint> mFault;
};

} // namespace TARN
