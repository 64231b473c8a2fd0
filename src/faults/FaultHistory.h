#pragma once

#include "profile/ProfileTypes.h"
#include "record/RecordData.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace TARN {

/// Colour of an active error of a type, of its cell and of its band in the timeline; invalid for
/// a type that does not exist.
QColor errorColor(int type);

/// A change of one kind of error, on the recording's clock in seconds (single precision, as the
/// timeline is drawn).
struct FaultPoint
{
    float time;
    bool state;
};

/// A message with which errors came or went.
struct FaultChange
{
    double time;        ///< seconds
    std::uint32_t came; ///< bits
    std::uint32_t went;
};

/// Active errors from one message with others to the next; seconds.
struct FaultRun
{
    double start;
    double stop;
    std::uint32_t bits;
};

/// What an error matrix reported over a recording: its status messages stand on channel 0 under
/// the matrix's identifier, bit b of the word in bytes 4 to 7 is error b. Refers to the recording
/// and to the matrix.
class FaultHistory
{
public:
    FaultHistory(const RecordData& record, const FaultMatrix& matrix);

    const FaultMatrix& matrix() const { return *mMatrix; }

    std::size_t messages() const { return mEntries.size(); }
    /// Whether the recording holds a status message.
    bool isKnown() const { return !mEntries.empty(); }

    /// Active bits at \p time (seconds): those of the last message not after it (within 0.01 s);
    /// before the first message those of the first. None after the last message.
    std::uint32_t bitsAt(double time) const;

    /// Times at which any error of a type (ErrorInfo, ErrorWarning, ErrorFault) came or went:
    /// first message, changes, last message. Empty without messages.
    const std::vector<FaultPoint>& points(int type) const
    {
        return mPoints[static_cast<std::size_t>(type - ErrorInfo)];
    }

    /// The same errors were active from the start of each to its stop; the last one ends with the
    /// last message. Times of messages that fall are taken for the latest time before them.
    const std::vector<FaultRun>& runs() const { return mRuns; }

    /// Seconds to add to every time, given the recording's offset.
    double shift(double offset) const { return mIsShifted ? offset : 0.0; }

    /// Bits whose errors are of a type.
    std::uint32_t bitsOfType(int type) const;

    /// The worst type among errors; ErrorNone without one.
    int worstOf(std::uint32_t bits) const;
    /// Names of errors, the worst first.
    QString namesOf(std::uint32_t bits) const;

    /// The messages with which one of these bits changed, in message order.
    std::vector<FaultChange> changes(std::uint32_t bits) const;

    /// Time of the change of an info, warning or fault that is nearest to pixel \p x of a timeline,
    /// at most three pixels away; nothing where there is none.
    std::optional<double> changeNear(int x, double start, double stop, int width) const;

    /// Horizontal pixel of a time in a timeline of \p width pixels that spans \p start to
    /// \p stop (seconds); 0 where the two are one.
    static int timelineX(float time, double start, double stop, int width);

private:
    static constexpr std::size_t Types = 3;

    const FaultMatrix* mMatrix;
    std::span<const RecordEntry> mEntries;
    /// Latest time up to each message; empty where the messages ascend in time anyway.
    std::vector<double> mLatest;
    std::array<std::vector<FaultPoint>, Types> mPoints; ///< by type
    std::vector<FaultRun> mRuns;
    bool mIsShifted = false; ///< the time offset applies to the messages
};

} // namespace TARN
