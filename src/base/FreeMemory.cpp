#include "base/FreeMemory.h"

#include <fstream>
#include <string>

namespace TARN {

std::optional<std::uint64_t> availableMemory()
{
    std::ifstream file("/proc/meminfo");
    std::string name;
    std::uint64_t kilobytes = 0;
    std::string unit;
    while (file >> name >> kilobytes >> unit) {
        if (name == "MemAvailable:") {
            return kilobytes * 1024;
        }
    }
    return std::nullopt;
}

} // namespace TARN
