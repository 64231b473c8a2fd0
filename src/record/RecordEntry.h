#pragma once

#include <cstdint>
#include <type_traits>

namespace TARN {

/// One sample: the 28 bytes of the file in host order. Recordings hold a hundred million of
/// them, so what can be computed (the time in its three forms) is computed, not stored.
struct RecordEntry
{
    std::uint8_t data[8];   ///< CAN payload as received: node, type, service, message code, data
    std::uint8_t b8;        ///< kept as stored
    std::uint8_t b9;        ///< kept as stored
    std::uint16_t channel;  ///< bus channel, 0 or 1
    std::uint32_t id;       ///< CAN identifier, bit 31 cleared
    std::uint16_t w16;      ///< kept as stored
    std::uint16_t w18;      ///< kept as stored
    std::uint32_t timeHigh; ///< time stamp in ticks of 31.25 ns, high word
    std::uint32_t timeLow;  ///< time stamp, low word

    /// Seconds on the recording's clock.
    double time() const { return secondsOf(timeHigh, timeLow); }

    /// Seconds of a time stamp: a 32 MHz clock, 134.217728 s to each turn of the low word.
    static double secondsOf(std::uint32_t high, std::uint32_t low)
    {
        return high * 134.217728 + (low * 31.25) * 1e-9;
    }
};

static_assert(sizeof(RecordEntry) == 28 && std::is_trivially_copyable_v<RecordEntry>,
              "an entry mirrors a sample of the file byte for byte");

} // namespace TARN
