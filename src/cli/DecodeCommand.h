#pragma once

#include "cli/Inputs.h"
#include "cli/SampleLines.h"

#include <iosfwd>

namespace TARN {

struct DecodeArguments
{
    std::string profile;
    SelectionArguments selection;
    LineFormat format = LineFormat::JsonLines;
    std::vector<std::string> files;
};

/// Every sample of every selected parameter, one a line, parameters in profile order, samples in
/// file order.
void runDecode(const DecodeArguments& arguments, std::ostream& out);

} // namespace TARN
