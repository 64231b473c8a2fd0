#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace TARN {

class Profile;
class Record;
struct ProfileDevice;
struct ProfileParameter;

/// A command can't be carried out; what() is the line that the user reads.
struct CommandFailure : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Which parameters a command works on; none named means all.
struct Selection
{
    std::string project;
    std::vector<std::string> parameters; ///< "Device/Name"
    bool all = false;
};

/// Loads the profile and reads the files as one recording; throws CommandFailure.
void loadInputs(const std::string& profile, const std::vector<std::string>& files, Record& record);

/// Marks the chosen parameters of the profile as selected; throws CommandFailure for a project
/// that can't be read and for a name that the profile does not have.
void applySelection(const Selection& selection);

} // namespace TARN
