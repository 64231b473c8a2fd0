#pragma once

#include "cli/Inputs.h"

#include <iosfwd>

namespace TARN {

struct StatsArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;
    std::vector<std::string> files;
};

/// The statistics of every selected parameter, one JSON object a line, in profile order.
void runStats(const StatsArguments& arguments, std::ostream& out);

} // namespace TARN
