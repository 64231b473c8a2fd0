#pragma once

#include "Signals.h"

#include <array>
#include <cstdint>
#include <span>

namespace TARN::Demo {

/// How a message's four data bytes (six for Counter48) are made. The number that goes into the
/// second payload byte follows from it.
enum class Encoding
{
    Float,        ///< single precision, rounded to the resolution
    FloatAngle,   ///< the same, brought into 0 to 360
    FloatMinutes, ///< degrees and minutes as a satellite receiver writes them: ddmm.mmm
    Signed8,
    Unsigned8,
    Unsigned8x3,
    Signed16,
    Signed16x2,
    Unsigned16,
    Unsigned16x2,
    Unsigned32,
    Bits16,
    Bits32,
    Counter48,
    TimeOfDay,
    Date
};

/// One message of the bus.
struct MessageRow
{
    std::uint32_t id;
    std::uint8_t node;
    std::uint16_t channel;
    Encoding encoding;
    double hertz;      ///< at scale 1
    double resolution; ///< of the sensor; one step of an integer
    double noise;      ///< deviation of the sensor's own noise, in units of the signal
    std::array<Signal, 3> signals;
};

std::span<const MessageRow> messageTable();

/// CANaerospace data type code of an encoding.
std::uint8_t typeCode(Encoding encoding);

/// Whether the value between two moments is the one before, not one in between.
bool isHeld(Encoding encoding);

} // namespace TARN::Demo
