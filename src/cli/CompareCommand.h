#pragma once

#include "cli/Inputs.h"

#include <iosfwd>

namespace TARN {

struct CompareArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;       ///< on the clock of the flight
    std::string align; ///< "start" or "T:T"; empty: the clocks stay
    std::vector<std::string> files;
    std::vector<std::string> with; ///< files of the reference
};

/// The statistics of every selected parameter of two flights over the time that they have in
/// common, and those of the first minus the second: one JSON object a line, in profile order.
/// Fails where they have no time in common.
void runCompare(const CompareArguments& arguments, std::ostream& out);

/// What is wrong with the text of an alignment; empty where it is one.
std::string alignmentFault(const std::string& text);

} // namespace TARN
