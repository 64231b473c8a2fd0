#pragma once

#include <cstdint>
#include <optional>

namespace TARN {

/// Bytes that the system can give without harm to others: MemAvailable of /proc/meminfo. Nothing
/// where it does not say.
std::optional<std::uint64_t> availableMemory();

} // namespace TARN
