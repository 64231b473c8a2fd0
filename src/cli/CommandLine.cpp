#include "cli/CommandLine.h"

#include "base/Revision.h"
#include "cli/CompareCommand.h"
#include "cli/DecodeCommand.h"
#include "cli/EventsCommand.h"
#include "cli/ExportCommands.h"
#include "cli/FaultsCommand.h"
#include "cli/GraphCommand.h"
#include "cli/InfoCommand.h"
#include "cli/LogbookOptions.h"
#include "cli/ReportCommand.h"
#include "cli/SharedOptions.h"
#include "cli/StatsCommand.h"

#include <new>
#include <ostream>

namespace TARN {

namespace {

constexpr int ExitFailure = 1;
constexpr int ExitUsage = 2;

void addInfo(CLI::App& app, InfoArguments& arguments, std::ostream& out)
{
    CLI::App* command = app.add_subcommand("info", "Header of each recording");
    command->add_flag("--json", arguments.json, "one JSON object a line");
    auto* check = command->add_flag("--check", arguments.check,
                                    "read every sample and tell what is missing or can't be right");
    command->add_option("--profile", arguments.profile, "tell what this profile does not describe")
        ->needs(check);
    command->add_option("PATH", arguments.paths, "recording files or card folders")->required();
    command->final_callback([&] { runInfo(arguments, out); });
}

void addDecode(CLI::App& app, DecodeArguments& arguments, std::ostream& out)
{
    CLI::App* command =
        app.add_subcommand("decode", "Every sample of every selected parameter, one a line");
    addProfile(*command, arguments.profile);
    addSelection(*command, arguments.selection);
    const std::map<std::string, LineFormat> formats = {
        {"jsonl", LineFormat::JsonLines}, {"csv", LineFormat::Csv}, {"tsv", LineFormat::Tsv}};
    command->add_option("--format", arguments.format, "of the lines: jsonl, csv or tsv")
        ->transform(CLI::Transformer(formats))
        ->option_text("FORMAT");
    addFiles(*command, arguments.files);
    command->final_callback([&] { runDecode(arguments, out); });
}

void addEvents(CLI::App& app, EventsArguments& arguments, std::ostream& out)
{
    CLI::App* command = app.add_subcommand("events", "What was exceeded and which lamps came on");
    addProfile(*command, arguments.profile);
    command->add_flag("--episodes", arguments.episodes,
                      "also every time during which a parameter was out of range");
    addFiles(*command, arguments.files);
    command->final_callback([&] { runEvents(arguments, out); });
}

void addStats(CLI::App& app, StatsArguments& arguments, std::ostream& out)
{
    CLI::App* command =
        app.add_subcommand("stats", "Statistics of every selected parameter, as JSON lines");
    addProfile(*command, arguments.profile);
    addSelection(*command, arguments.selection);
    addRange(*command, arguments.range);
    addFiles(*command, arguments.files);
    command->final_callback([&] { runStats(arguments, out); });
}

void addCompare(CLI::App& app, CompareArguments& arguments, std::ostream& out)
{
    CLI::App* command = app.add_subcommand(
        "compare", "Statistics of two flights and of their difference, as JSON lines");
    addProfile(*command, arguments.profile);
    addSelection(*command, arguments.selection);
    addRange(*command, arguments.range);
    addFiles(*command, arguments.files);
    addReference(*command, "--with", arguments.reference)->required();
    command->final_callback([&] { runCompare(arguments, out); });
}

void addGraph(CLI::App& app, GraphArguments& arguments)
{
    constexpr int Least = 100; // pixels
    constexpr int Most = 8000;
    CLI::App* command = app.add_subcommand("graph", "The selected parameters as a picture");
    addProfile(*command, arguments.profile);
    addSelection(*command, arguments.selection);
    addRange(*command, arguments.range);
    command->add_option("--width", arguments.width, "pixels")->check(CLI::Range(Least, Most));
    command->add_option("--height", arguments.height, "pixels")->check(CLI::Range(Least, Most));
    command->add_option("--scale", arguments.scale, "device pixels that make a pixel")
        ->check(CLI::Range(1.0, 4.0));
    command->add_option("--cursor", arguments.cursor, "second of which values are shown");
    command->add_flag("--single", arguments.single, "one scale for all curves");
    command->add_flag("--light", arguments.light, "dark on light, for print");
    const auto addSwitch = [&](const char* name, bool& on, const char* help) {
        command->add_flag_callback(
            name, [&on] { on = false; }, help);
    };
    addSwitch("--no-thresholds", arguments.thresholds, "no lines where a range begins");
    addSwitch("--no-events", arguments.events, "no ticks and bars where something went wrong");
    addSwitch("--no-lanes", arguments.lanes, "no error matrices");
    addSwitch("--no-words", arguments.words, "states as numbers only");
    addSwitch("--no-caption", arguments.caption, "no line that says what is shown");
    addOut(*command, arguments.out);
    addFiles(*command, arguments.files);
    command->final_callback([&] { runGraph(arguments); });
}

void addReport(CLI::App& app, ReportArguments& arguments)
{
    CLI::App* command = app.add_subcommand("report", "What happened, on pages to hand on");
    addProfile(*command, arguments.profile);
    addSelection(*command, arguments.selection);
    addRange(*command, arguments.range);
    command->add_option("--language", arguments.language, "of the texts")
        ->check(CLI::IsMember({"en", "de", "es", "fr", "pt", "cs"}));
    command->add_flag("--letter", arguments.letter, "paper of that size instead of A4");
    addReference(*command, "--reference", arguments.reference);
    addOut(*command, arguments.out);
    addFiles(*command, arguments.files);
    command->final_callback([&] { runReport(arguments); });
}

void addFaults(CLI::App& app, FaultsArguments& arguments, std::ostream& out)
{
    CLI::App* command = app.add_subcommand("faults", "Error matrices: timeline and active bits");
    addProfile(*command, arguments.profile);
    command->add_option("--time", arguments.time, "second for the active bits");
    addFiles(*command, arguments.files);
    command->final_callback([&] { runFaults(arguments, out); });
}

void addCsv(CLI::App& app, CsvArguments& arguments)
{
    CLI::App* command = app.add_subcommand("csv", "Decoded values as a text table");
    addProfile(*command, arguments.profile);
    addSelection(*command, arguments.selection);
    addRange(*command, arguments.range);
    command->add_option("--resolution", arguments.resolution, "grid step in milliseconds")
        ->check(CLI::IsMember({100, 10, 1}));
    command->add_option("--separator", arguments.separator, "\";\", \",\" or \"tab\"")
        ->check(CLI::IsMember({";", ",", "tab"}));
    addOut(*command, arguments.out);
    addFiles(*command, arguments.files);
    command->final_callback([&] { runCsv(arguments); });
}

void addTimestamp(CLI::App& command, int& timeStamp)
{
    command.add_option("--timestamp", timeStamp, "width of a position slot in ms")
        ->check(CLI::PositiveNumber);
}

void addKmlOptions(CLI::App& command, KmlExportOptions& options)
{
    const CLI::Validator isColor(
        [](std::string& text) {
            const bool valid =
                text.size() == 6 && text.find_first_not_of("0123456789abcdefABCDEF") == text.npos;
            return valid ? std::string() : "\"" + text + "\" is no colour of six digits";
        },
        "RRGGBB");
    const auto addSwitch = [&](const char* name, bool& on, const char* help) {
        command.add_flag_callback(
            name, [&on] { on = false; }, help);
    };
    addTimestamp(command, options.timeStamp);
    command.add_flag("--timed", options.isTimed, "with times and values, to be played");
    command.add_option("--line-width", options.lineWidth, "width of the path");
    command.add_option("--line-color", options.lineColor, "colour of the path")->check(isColor);
    command.add_option("--line-alpha", options.lineAlpha, "its opacity")->check(CLI::Range(0, 255));
    addSwitch("--no-polygon", options.polygonOn, "don't extrude the path to the ground");
    command.add_option("--polygon-color", options.polygonColor, "colour below it")->check(isColor);
    command.add_option("--polygon-alpha", options.polygonAlpha, "its opacity")
        ->check(CLI::Range(0, 255));
    addSwitch("--no-placemarks", options.placeMarkOn, "no marks along the path");
    command.add_option("--placemark-interval", options.placeMarkInterval, "slots between marks")
        ->check(CLI::PositiveNumber);
    command.add_option("--placemark-color", options.placeMarkColor, "their colour")->check(isColor);
    addSwitch("--no-errors", options.errorMarkOn, "no marks where something went wrong");
    addSwitch("--no-limits", options.showLimit, "none for exceeded limits");
    addSwitch("--no-warnings", options.showWarning, "none for warning lamps");
    command.add_option("--error-color", options.errorMarkColor, "their colour")->check(isColor);
}

void addKml(CLI::App& app, KmlArguments& arguments)
{
    CLI::App* command = app.add_subcommand("kml", "The flight path for an earth viewer");
    addProfile(*command, arguments.profile);
    addSelection(*command, arguments.selection);
    addRange(*command, arguments.range);
    addKmlOptions(*command, arguments.options);
    addOut(*command, arguments.out);
    addFiles(*command, arguments.files);
    command->final_callback([&] { runKml(arguments); });
}

void addGpx(CLI::App& app, GpxArguments& arguments)
{
    CLI::App* command = app.add_subcommand("gpx", "The track with times and heights for all else");
    addProfile(*command, arguments.profile);
    addRange(*command, arguments.range);
    addTimestamp(*command, arguments.options.timeStamp);
    command->add_flag_callback(
        "--no-waypoints", [&arguments] { arguments.options.waypoints = false; },
        "none where something went wrong");
    addOut(*command, arguments.out);
    addFiles(*command, arguments.files);
    command->final_callback([&] { runGpx(arguments); });
}

void addCan(CLI::App& app, CanArguments& arguments)
{
    CLI::App* command = app.add_subcommand("can", "A part of the recording as a recording");
    addRange(*command, arguments.range);
    addOut(*command, arguments.out);
    addFiles(*command, arguments.files);
    command->final_callback([&] { runCan(arguments); });
}

/// What each command was given; lives as long as the parser refers to it.
struct Arguments
{
    InfoArguments info;
    DecodeArguments decode;
    EventsArguments events;
    StatsArguments stats;
    CompareArguments compare;
    FaultsArguments faults;
    GraphArguments graph;
    ReportArguments report;
    CsvArguments csv;
    KmlArguments kml;
    GpxArguments gpx;
    CanArguments can;
    LogbookArguments logbook;
};

} // namespace

int runCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& error)
{
    Arguments arguments;
    CLI::App app("Reads recordings of an engine monitoring unit without a window.", "orna-cli");
    app.set_version_flag("--version", Revision::getRevisionString());
    app.require_subcommand(1);
    addInfo(app, arguments.info, out);
    addDecode(app, arguments.decode, out);
    addEvents(app, arguments.events, out);
    addStats(app, arguments.stats, out);
    addCompare(app, arguments.compare, out);
    addFaults(app, arguments.faults, out);
    addGraph(app, arguments.graph);
    addReport(app, arguments.report);
    addCsv(app, arguments.csv);
    addKml(app, arguments.kml);
    addGpx(app, arguments.gpx);
    addCan(app, arguments.can);
    addLogbook(app, arguments.logbook, out, error);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        return app.exit(e, out, error) == 0 ? 0 : ExitUsage;
    } catch (const std::bad_alloc&) {
        error << "orna-cli: not enough memory; work on fewer recordings at once\n";
        return ExitFailure;
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
