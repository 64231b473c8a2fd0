#pragma once

#include "export/Exporter.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace TARN {

/// A command can't be carried out; what() is the line that the user reads.
struct CommandFailure : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Which parameters a command works on; none named means all.
struct SelectionArguments
{
    std::string project;
    std::vector<std::string> parameters; ///< "Device/Name"
    bool all = false;
};

/// Seconds on the recording's clock; what is absent is the recording's own, with its offset
/// where exported times carry it.
struct Range
{
    std::optional<double> start;
    std::optional<double> stop;
};

// Each throws CommandFailure.

std::shared_ptr<const Profile> loadProfile(const std::string& file);

/// Reads the files as one recording.
std::shared_ptr<const Record> loadRecord(const std::vector<std::string>& files);

/// The flight that they make together.
std::shared_ptr<const Flight> loadFlight(const std::string& profile,
                                         const std::vector<std::string>& files);

/// The chosen parameters. Fails for a project that can't be read and for a name that the profile
/// does not have.
Selection selectionOf(const SelectionArguments& arguments, const Profile& profile);

} // namespace TARN
