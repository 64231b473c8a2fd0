#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace TARN {

struct EventsArguments
{
    std::string profile;
    bool episodes = false; ///< after the events
    std::vector<std::string> files;
};

/// Limit events, then warning-lamp events, then episodes where they are asked for, one JSON
/// object a line.
void runEvents(const EventsArguments& arguments, std::ostream& out);

} // namespace TARN
