#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace TARN {

struct FaultsArguments
{
    std::string profile;
    std::optional<double> time; ///< seconds on the recording's clock; its start when absent
    std::vector<std::string> files;
};

/// Each error matrix with its timeline and its active bits at a time, one JSON object a line.
void runFaults(const FaultsArguments& arguments, std::ostream& out);

} // namespace TARN
