#include "cli/SharedOptions.h"

namespace TARN {

void addSelection(CLI::App& command, SelectionArguments& selection)
{
    auto* project =
        command.add_option("--project", selection.project, "parameters selected in this project");
    auto* parameter = command.add_option("--parameter", selection.parameters,
                                         "a parameter as \"Device/Name\"; repeatable");
    parameter->allow_extra_args(false); // what follows the one name are files
    auto* all = command.add_flag("--all", selection.all, "every parameter (the default)");
    project->excludes(parameter)->excludes(all);
    parameter->excludes(all);
}

void addRange(CLI::App& command, Range& range)
{
    command.add_option("--start", range.start, "first second, on the recording's clock");
    command.add_option("--stop", range.stop, "last second, on the recording's clock");
}

void addProfile(CLI::App& command, std::string& profile)
{
    command.add_option("--profile", profile, "parameter profile")->required();
}

void addFiles(CLI::App& command, std::vector<std::string>& files)
{
    command.add_option("FILE", files, "recording files, in order, read as one recording")
        ->required();
}

void addOut(CLI::App& command, std::string& out)
{
    command.add_option("-o,--out", out, "file to write")->required();
}

CLI::Option* addReference(CLI::App& command, const char* name, ReferenceArguments& reference)
{
    const CLI::Validator isAlignment([](const std::string& text) { return alignmentFault(text); },
                                     "start|T:T");
    auto* files = command.add_option(name, reference.files, "recordings of the reference flight");
    command
        .add_option("--align", reference.align,
                    "\"start\" lays the starts together, T1:T2 second T1 of the flight on second "
                    "T2 of the reference; without it the clocks stay")
        ->check(isAlignment)
        ->needs(files);
    return files;
}

} // namespace TARN
