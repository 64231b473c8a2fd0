#pragma once

#include "cli/Inputs.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace TARN {

struct InfoArguments
{
    bool json = false;
    std::vector<std::string> paths;
};

struct DecodeArguments
{
    std::string profile;
    Selection selection;
    std::vector<std::string> files;
};

/// The header of each recording, as text or as one JSON object a line. A folder stands for its
/// recordings, sorted by path.
void runInfo(const InfoArguments& arguments, std::ostream& out);

/// Every sample of every selected parameter, one JSON object a line, parameters in profile
/// order, samples in file order.
void runDecode(const DecodeArguments& arguments, std::ostream& out);

} // namespace TARN
