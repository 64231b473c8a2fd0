#pragma once

#include "profile/CurveLooks.h"
#include "profile/Selection.h"

#include <string>
#include <vector>

namespace TARN {

/// A user's selection of parameters, by name, as a project file keeps it. Names that the profile
/// does not know are kept for the profile that does. How curves shall look stands beside them in
/// elements of its own; where there is nothing to say, they are not written.
class Project
{
public:
    /// Selects nothing.
    void clear()
    {
        mNames.clear();
        mLooks = {};
    }

    /// Takes the file's names. False, with an empty project, when the file can't be read. Any
    /// root will do, see isProject().
    bool readProject(const std::string& file);

    /// Whether a file is a project: its root says so, or it holds a list of parameters.
    static bool isProject(const std::string& file);

    /// Whether a file may be replaced by a project without losing anything else: there is none, or
    /// its root says that it is a project.
    static bool mayReplace(const std::string& file);

    /// Writes the names of the selected parameters in profile order, then those that the profile
    /// does not know in their old order. False when the file could not be written; the old one
    /// is then still there.
    bool saveProject(const std::string& file, const Profile& profile,
                     const Selection& selection) const;

    /// Exactly those parameters of a profile whose names the project holds.
    Selection selection(const Profile& profile) const;

    /// Takes the place of the names that a profile knows by those that are selected in it.
    void setSelection(const Profile& profile, const Selection& selection);

    const CurveLooks& looks() const { return mLooks; }
    void setLooks(const CurveLooks& looks) { mLooks = looks; }

    /// Names that a profile does not know, in their old order.
    std::vector<std::string> unknownNames(const Profile& profile) const;

private:
    std::vector<std::string> mNames; ///< in the order of the file, each once
    CurveLooks mLooks;
};

} // namespace TARN
