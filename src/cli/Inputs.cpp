#include "cli/Inputs.h"

#include "profile/Profile.h"
#include "profile/Project.h"
#include "record/Record.h"

#include <set>

namespace TARN {

namespace {

void selectAll()
{
    Profile::instance()->forEachParameter(
        [](const ProfileDevice&, ProfileParameter& parameter) { parameter.selected = true; });
}

void selectNamed(const std::vector<std::string>& names)
{
    std::set<std::string> missing(names.begin(), names.end());
    const std::set<std::string> wanted = missing;
    Profile::instance()->forEachParameter([&](const ProfileDevice&, ProfileParameter& parameter) {
        const std::string name = parameter.fullName.toStdString();
        parameter.selected = wanted.contains(name);
        missing.erase(name);
    });
    if (!missing.empty()) {
        throw CommandFailure("the profile has no parameter \"" + *missing.begin() + "\"");
    }
}

} // namespace

void loadInputs(const std::string& profile, const std::vector<std::string>& files, Record& record)
{
    if (!profile.empty() && !Profile::instance()->loadProfile(QString::fromStdString(profile))) {
        throw CommandFailure("could not load the profile \"" + profile + "\"");
    }
    std::list<QString> paths;
    for (const std::string& file : files) {
        paths.push_back(QString::fromStdString(file));
    }
    if (!record.readRecordData(paths)) {
        throw CommandFailure(record.errorText().toStdString());
    }
}

void applySelection(const Selection& selection)
{
    if (!selection.project.empty()) {
        if (!Project::instance()->readProject(selection.project)) {
            throw CommandFailure("could not read the project \"" + selection.project + "\"");
        }
    } else if (!selection.parameters.empty() && !selection.all) {
        selectNamed(selection.parameters);
    } else {
        selectAll();
    }
}

} // namespace TARN
