#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace TARN {

struct InfoArguments
{
    bool json = false;
    bool check = false;  ///< read the samples too
    std::string profile; ///< for the check; may be empty
    std::vector<std::string> paths;
};

/// The header of each recording and what could not be read of it, as text or as one JSON object
/// a line. A folder stands for its recordings, sorted by path.
void runInfo(const InfoArguments& arguments, std::ostream& out);

} // namespace TARN
