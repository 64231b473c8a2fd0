#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace TARN {

/// What the parts of `logbook` were given; each takes what it needs.
struct LogbookArguments
{
    std::string database; ///< its URL; empty: that in the user's data folder
    std::string profile;
    unsigned jobs = 0; ///< flights read at once; 0: one for each processor
    std::vector<std::string> folders;
    std::optional<std::string> aircraft; ///< serial number of an engine; absent: all
    bool json = false;
    std::string flight; ///< beginning of its key
    std::string parameter;
    std::string figure = "steady"; ///< of figureNames
    std::string date;              ///< see markDateFault
    std::string text;
};

/// What is wrong with the date of a mark, "2026-11-21" or "2026-11-21T12:30", in UTC; empty where
/// it is one.
std::string markDateFault(const std::string& text);

/// One line for each flight to \p out as soon as it is done, progress to \p error. Fails at the end
/// when one could not be added.
void runLogbookAdd(const LogbookArguments& arguments, std::ostream& out, std::ostream& error);
void runLogbookList(const LogbookArguments& arguments, std::ostream& out);
/// All that is kept of a flight.
void runLogbookShow(const LogbookArguments& arguments, std::ostream& out);
void runLogbookRemove(const LogbookArguments& arguments);
/// A figure of a parameter over the flights of each aircraft.
void runLogbookTrend(const LogbookArguments& arguments, std::ostream& out);
/// A maintenance mark.
void runLogbookMark(const LogbookArguments& arguments);

} // namespace TARN
