#pragma once

#include "cli/Inputs.h"
#include "export/KmlExportOptions.h"

#include <iosfwd>
#include <optional>
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

struct DecodeArguments
{
    std::string profile;
    SelectionArguments selection;
    std::vector<std::string> files;
};

struct EventsArguments
{
    std::string profile;
    bool episodes = false; ///< after the events
    std::vector<std::string> files;
};

/// Seconds on the recording's clock; what is absent is the recording's own, with its offset
/// where exported times carry it.
struct Range
{
    std::optional<double> start;
    std::optional<double> stop;
};

struct StatsArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;
    std::vector<std::string> files;
};

struct FaultsArguments
{
    std::string profile;
    std::optional<double> time; ///< seconds on the recording's clock; its start when absent
    std::vector<std::string> files;
};

struct CsvArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;
    int resolution = 100;
    std::string separator = ";"; ///< ";", "," or "tab"
    std::string out;
    std::vector<std::string> files;
};

struct KmlArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;
    KmlExportOptions options;
    std::string out;
    std::vector<std::string> files;
};

struct CanArguments
{
    Range range;
    std::string out;
    std::vector<std::string> files;
};

/// The header of each recording and what could not be read of it, as text or as one JSON object
/// a line. A folder stands for its recordings, sorted by path.
void runInfo(const InfoArguments& arguments, std::ostream& out);

/// Every sample of every selected parameter, one JSON object a line, parameters in profile
/// order, samples in file order.
void runDecode(const DecodeArguments& arguments, std::ostream& out);

/// Limit events, then warning-lamp events, then episodes where they are asked for, one JSON
/// object a line.
void runEvents(const EventsArguments& arguments, std::ostream& out);

/// The statistics of every selected parameter, one JSON object a line, in profile order.
void runStats(const StatsArguments& arguments, std::ostream& out);

/// Each error matrix with its timeline and its active bits at a time, one JSON object a line.
void runFaults(const FaultsArguments& arguments, std::ostream& out);

// The exports write the file and nothing to a stream.
void runCsv(const CsvArguments& arguments);
void runKml(const KmlArguments& arguments);
void runCan(const CanArguments& arguments);

} // namespace TARN
