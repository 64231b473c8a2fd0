#pragma once

#include "cli/ReferenceInput.h"

#include <iosfwd>

namespace TARN {

struct CompareArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range; ///< on the clock of the flight
    std::vector<std::string> files;
    ReferenceArguments reference;
};

/// The statistics of every selected parameter of two flights over the time that they have in
/// common, and those of the first minus the second: one JSON object a line, in profile order.
/// Fails where they have no time in common.
void runCompare(const CompareArguments& arguments, std::ostream& out);

} // namespace TARN
