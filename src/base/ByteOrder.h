#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

/// Byte order of values on the bus (big-endian) and in memory.
namespace TARN {

static_assert(std::endian::native == std::endian::little,
              "samples are kept and decoded in little-endian host order");

constexpr std::uint16_t byteSwapped(std::uint16_t value)
{
    return __builtin_bswap16(value);
}

constexpr std::uint32_t byteSwapped(std::uint32_t value)
{
    return __builtin_bswap32(value);
}

constexpr std::uint64_t byteSwapped(std::uint64_t value)
{
    return __builtin_bswap64(value);
}

/// Unaligned read of a little-endian value.
template <typename T>
T loadLittle(const void* from)
{
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

/// Unaligned read of a big-endian value.
template <typename T>
T loadBig(const void* from)
{
    return byteSwapped(loadLittle<T>(from));
}

} // namespace TARN
