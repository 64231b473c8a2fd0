#pragma once

#include "MessageTable.h"

#include <array>
#include <cstdint>

namespace TARN::Demo {

/// Day and clock of the flight: local time runs two hours ahead of UTC.
struct FlightDay
{
    int year = 2026;
    int month = 5;
    int day = 16;
    int hour = 9;
    int minute = 12;
    int hoursAheadOfUtc = 2;
};

/// The eight bytes of a message: node, type code, service code 0, counter, and the values of the
/// row's signals as big-endian data, rounded to the row's resolution and clamped to what the type
/// holds. secondOfDay is local time and only used by the time and date messages.
std::array<std::uint8_t, 8> makePayload(const MessageRow& row, std::uint8_t counter,
                                        const std::array<double, 3>& values, int secondOfDay);

} // namespace TARN::Demo
