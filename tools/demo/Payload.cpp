#include "Payload.h"

#include "PortableMath.h"

#include <bit>
#include <cmath>

namespace TARN::Demo {

namespace {

using Payload = std::array<std::uint8_t, 8>;

void put(Payload& payload, std::size_t at, std::size_t width, std::uint64_t value)
{
    for (std::size_t i = 0; i < width; ++i)
        payload[at + i] = static_cast<std::uint8_t>(value >> (8 * (width - 1 - i)));
}

double steps(double value, double resolution)
{
    return std::floor(value / resolution + 0.5);
}

// Two's complement of the number of steps, kept inside the range of the type.
std::uint64_t whole(double value, double resolution, double low, double high)
{
    double count = clampTo(steps(value, resolution), low, high);
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(count));
}

double toMinutes(double degrees)
{
    double full = std::floor(degrees);
    return full * 100.0 + (degrees - full) * 60.0;
}

// Resolutions below one are divided by their reciprocal: 0.1 has no exact double, ten has.
std::uint64_t floatBits(double value, double resolution)
{
    double count = steps(value, resolution);
    double parts = std::floor(1.0 / resolution + 0.5);
    double rounded = resolution < 1.0 ? count / parts : count * resolution;
    if (rounded == 0.0)
        rounded = 0.0; // no negative zero
    return std::bit_cast<std::uint32_t>(static_cast<float>(rounded));
}

double fullCircle(double degrees, double resolution)
{
    double angle = degrees - 360.0 * std::floor(degrees / 360.0);
    return angle >= 360.0 - 0.5 * resolution ? 0.0 : angle;
}

void putTime(Payload& payload, const FlightDay& day, int secondOfDay)
{
    int seconds = secondOfDay - day.hoursAheadOfUtc * 3600;
    put(payload, 4, 1, static_cast<std::uint64_t>(seconds / 3600 % 24));
    put(payload, 5, 1, static_cast<std::uint64_t>(seconds / 60 % 60));
    put(payload, 6, 1, static_cast<std::uint64_t>(seconds % 60));
}

void putDate(Payload& payload, const FlightDay& day)
{
    put(payload, 4, 1, static_cast<std::uint64_t>(day.day));
    put(payload, 5, 1, static_cast<std::uint64_t>(day.month));
    put(payload, 6, 2, static_cast<std::uint64_t>(day.year));
}

void putValues(Payload& payload, const MessageRow& row, const std::array<double, 3>& values)
{
    double step = row.resolution;
    switch (row.encoding) {
    case Encoding::Float:
        return put(payload, 4, 4, floatBits(values[0], step));
    case Encoding::FloatAngle:
        return put(payload, 4, 4, floatBits(fullCircle(values[0], step), step));
    case Encoding::FloatMinutes:
        return put(payload, 4, 4, floatBits(toMinutes(values[0]), step));
    case Encoding::Signed8:
        return put(payload, 4, 1, whole(values[0], step, -128.0, 127.0));
    case Encoding::Unsigned8:
        return put(payload, 4, 1, whole(values[0], step, 0.0, 255.0));
    case Encoding::Unsigned8x3:
        for (std::size_t i = 0; i < 3; ++i)
            put(payload, 4 + i, 1, whole(values[i], step, 0.0, 255.0));
        return;
    case Encoding::Signed16x2:
        put(payload, 6, 2, whole(values[1], step, -32768.0, 32767.0));
        [[fallthrough]];
    case Encoding::Signed16:
        return put(payload, 4, 2, whole(values[0], step, -32768.0, 32767.0));
    case Encoding::Unsigned16x2:
        put(payload, 6, 2, whole(values[1], step, 0.0, 65535.0));
        [[fallthrough]];
    case Encoding::Unsigned16:
    case Encoding::Bits16:
        return put(payload, 4, 2, whole(values[0], step, 0.0, 65535.0));
    case Encoding::Unsigned32:
    case Encoding::Bits32:
        return put(payload, 4, 4, whole(values[0], step, 0.0, 4294967295.0));
    case Encoding::Counter48:
        // Six bytes leave no room for the counter of messages.
        return put(payload, 2, 6, whole(values[0], step, 0.0, 281474976710655.0));
    case Encoding::TimeOfDay:
    case Encoding::Date:
        return;
    }
}

} // namespace

Payload makePayload(const MessageRow& row, std::uint8_t counter,
                    const std::array<double, 3>& values, const FlightDay& day, int secondOfDay)
{
    Payload payload{row.node, typeCode(row.encoding), 0, counter, 0, 0, 0, 0};
    if (row.encoding == Encoding::TimeOfDay)
        putTime(payload, day, secondOfDay);
    else if (row.encoding == Encoding::Date)
        putDate(payload, day);
    else
        putValues(payload, row, values);
    return payload;
}

} // namespace TARN::Demo
