#include "cli/CommandLine.h"

#include "base/Revision.h"
#include "cli/Commands.h"

#include <CLI/CLI.hpp>
#include <ostream>

namespace TARN {

namespace {

constexpr int ExitFailure = 1;
constexpr int ExitUsage = 2;

void addSelection(CLI::App& command, Selection& selection)
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

void addProfile(CLI::App& command, std::string& profile)
{
    command.add_option("--profile", profile, "parameter profile")->required();
}

void addFiles(CLI::App& command, std::vector<std::string>& files)
{
    command.add_option("FILE", files, "recording files, in order, read as one recording")
        ->required();
}

void addInfo(CLI::App& app, InfoArguments& arguments, std::ostream& out)
{
    CLI::App* command = app.add_subcommand("info", "Header of each recording");
    command->add_flag("--json", arguments.json, "one JSON object a line");
    command->add_option("PATH", arguments.paths, "recording files or card folders")->required();
    command->final_callback([&] { runInfo(arguments, out); });
}

void addDecode(CLI::App& app, DecodeArguments& arguments, std::ostream& out)
{
    CLI::App* command =
        app.add_subcommand("decode", "Every sample of every selected parameter, as JSON lines");
    addProfile(*command, arguments.profile);
    addSelection(*command, arguments.selection);
    addFiles(*command, arguments.files);
    command->final_callback([&] { runDecode(arguments, out); });
}

} // namespace

int runCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& error)
{
    InfoArguments info;
    DecodeArguments decode;
    CLI::App app("Reads recordings of an engine monitoring unit without a window.", "orna-cli");
    app.set_version_flag("--version", Revision::getRevisionString());
    app.require_subcommand(1);
    addInfo(app, info, out);
    addDecode(app, decode, out);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        return app.exit(e, out, error) == 0 ? 0 : ExitUsage;
    } catch (const std::exception& e) {
        error << "orna-cli: " << e.what() << '\n';
        return ExitFailure;
    }
    out.flush();
    if (!out) {
        error << "orna-cli: could not write the result\n";
        return ExitFailure;
    }
    return 0;
}

} // namespace TARN
