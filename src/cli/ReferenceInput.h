#pragma once

#include "cli/Inputs.h"

namespace TARN {

/// A flight to compare with, and what is laid on what.
struct ReferenceArguments
{
    std::vector<std::string> files;
    std::string align; ///< "start" or "T:T"; empty: the clocks stay
};

/// What is wrong with the text of an alignment; empty where it is one.
std::string alignmentFault(const std::string& text);

/// The reference beside a flight at an offset, read by the flight's profile. Throws
/// CommandFailure.
ExportReference referenceOf(const ReferenceArguments& arguments, const Flight& flight,
                            double offset);

/// What a range of the flight has in common with the reference. Throws CommandFailure where that
/// is nothing.
TimeRange commonTimeOf(const TimeRange& range, const ExportReference& reference);

} // namespace TARN
