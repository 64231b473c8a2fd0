#pragma once

#include <QtCore/QString>

#include <set>
#include <string>

namespace TARN {

/// The user's selection of parameters, by name, as a project file keeps it.
class Project
{
public:
    static Project* instance();

    /// Selects nothing.
    void clear();

    /// Marks exactly those parameters of the profile as selected whose names the project holds.
    void setProfileData();

    /// Takes the profile's marks into the project, so that setProfileData() brings them back after
    /// another profile has been loaded. Names that the profile does not hold stay as they are.
    void takeProfileData();

    /// Takes the file's names and marks the profile. False, with an empty project and the
    /// profile's marks as they were, when the file can't be read.
    bool readProject(const std::string& file);

    /// Whether a file may be replaced by a project without losing anything else: there is none, or
    /// it is a project.
    static bool mayReplace(const std::string& file);

    /// Writes the names of the parameters now selected, in profile order. False when the file
    /// could not be written; the old one is then still there.
    bool saveProject(const std::string& file);

private:
    std::set<std::string> mParameters;
};

} // namespace TARN
