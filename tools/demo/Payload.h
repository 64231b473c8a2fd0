#pragma once

#include "MessageTable.h"
#include "Week.h"

#include <array>
#include <cstdint>

namespace TARN::Demo {

/// The eight bytes of a message: node, type code, service code 0, counter, and the values of the
/// row's signals as big-endian data, rounded to the row's resolution and clamped to what the type
/// holds. The day and the second, of local time, are only used by the time and date messages.
std::array<std::uint8_t, 8> makePayload(const MessageRow& row, std::uint8_t counter,
                                        const std::array<double, 3>& values, const FlightDay& day,
                                        int secondOfDay);

} // namespace TARN::Demo
