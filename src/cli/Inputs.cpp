#include "cli/Inputs.h"

#include "profile/Project.h"

#include <set>

namespace TARN {

namespace {

Selection selectNamed(const std::vector<std::string>& names, const Profile& profile)
{
    std::set<std::string> missing(names.begin(), names.end());
    const std::set<std::string> wanted = missing;
    Selection selection;
    for (const auto& [device, parameter] : profile.parameters()) {
        const std::string name = parameter->fullName.toStdString();
        selection.set(*parameter, wanted.contains(name));
        missing.erase(name);
    }
    if (!missing.empty()) {
        throw CommandFailure("the profile has no parameter \"" + *missing.begin() + "\"");
    }
    return selection;
}

} // namespace

std::shared_ptr<const Profile> loadProfile(const std::string& file)
{
    auto profile = Profile::load(QString::fromStdString(file));
    if (!profile->isLoaded()) {
        throw CommandFailure("could not load the profile \"" + file + "\"");
    }
    return profile;
}

std::shared_ptr<const Record> loadRecord(const std::vector<std::string>& files)
{
    std::list<QString> paths;
    for (const std::string& file : files) {
        paths.push_back(QString::fromStdString(file));
    }
    auto record = std::make_shared<Record>();
    if (!record->readRecordData(paths)) {
        throw CommandFailure(record->errorText().toStdString());
    }
    return record;
}

std::shared_ptr<const Flight> loadFlight(const std::string& profile,
                                         const std::vector<std::string>& files)
{
    auto loaded = loadProfile(profile);
    return Flight::make(loadRecord(files), std::move(loaded));
}

Selection selectionOf(const SelectionArguments& arguments, const Profile& profile)
{
    if (!arguments.project.empty()) {
        Project project;
        if (!project.readProject(arguments.project)) {
            throw CommandFailure("could not read the project \"" + arguments.project + "\"");
        }
        return project.selection(profile);
    }
    if (!arguments.parameters.empty() && !arguments.all) {
        return selectNamed(arguments.parameters, profile);
    }
    return Selection::all(profile);
}

} // namespace TARN
