#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace TARN::Demo {

struct CardOptions
{
    std::string folder;
    int minutes = 60;
    int scale = 1;
    std::uint64_t seed = 1;
    std::optional<int> wear = {}; ///< weeks that cylinder 6 has been wearing out; those of the seed
    int files = 3;
    bool littleEndian = false;
};

/// Flies the demo flight and writes it as consecutive recording files LOG_0001.CAN, LOG_0002.CAN
/// ... into the folder, which is made if it is missing. All files are written before the first
/// replaces an older one. Returns an empty text, or one line that says what failed.
std::string writeCard(const CardOptions& options);

} // namespace TARN::Demo
