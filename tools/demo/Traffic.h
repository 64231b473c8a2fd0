#pragma once

#include "CanWriter.h"
#include "Flight.h"
#include "MessageTable.h"
#include "Random.h"
#include "Week.h"

#include <array>
#include <cstdint>
#include <vector>

namespace TARN::Demo {

constexpr std::uint64_t kTicksPerSecond = 32000000;

/// The messages that the aircraft's units put on the two buses while the flight goes on. Each unit
/// sends at its own pace with a little jitter; a bus carries one message at a time, so what is due
/// at the same moment comes one after the other.
class Traffic
{
public:
    /// Clock at power-up in ticks since midnight; scale multiplies all rates.
    Traffic(std::uint64_t startTicks, int scale, std::uint64_t seed);

    /// Messages of the flight's last step in time order. Valid until the next call.
    const std::vector<CanSample>& messages(Flight& flight);

private:
    struct Sender
    {
        const MessageRow* row;
        double period;      // s
        double phase;       // s
        std::int64_t count; // messages scheduled so far
        double due;         // s since power-up, of the next one
        std::uint8_t sent;  // counter that goes into the message
    };
    struct Turn
    {
        double time;
        std::size_t sender;
    };

    void schedule(Sender& sender);
    void send(Sender& sender, double time, Flight& flight);
    std::array<double, 3> measure(const MessageRow& row, double time, Flight& flight);

    FlightDay mDay;
    std::uint64_t mStartTicks;
    std::uint64_t mFrameTicks; // time a message occupies its bus
    Random mRandom;
    std::vector<Sender> mSenders;
    std::vector<Turn> mTurns;
    std::vector<CanSample> mMessages;
    std::uint64_t mLastTicks[2] = {0, 0};
};

} // namespace TARN::Demo
