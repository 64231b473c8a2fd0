#pragma once

#include "export/Exporter.h"

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
