#include "cli/LogbookOptions.h"

#include "cli/SharedOptions.h"
#include "logbook/Logbook.h"

namespace TARN {

namespace {

CLI::App* addPart(CLI::App& logbook, const char* name, const char* help,
                  LogbookArguments& arguments)
{
    CLI::App* part = logbook.add_subcommand(name, help);
    part->add_option("--database", arguments.database,
                     "sqlite:PATH or postgresql://user@host:port/database; without it the logbook "
                     "in the user's data folder");
    return part;
}

void addAircraft(CLI::App& part, LogbookArguments& arguments)
{
    part.add_option("--aircraft", arguments.aircraft, "serial number of its engine; else all");
}

void addJson(CLI::App& part, LogbookArguments& arguments)
{
    part.add_flag("--json", arguments.json, "one JSON object a line");
}

void addFlight(CLI::App& part, LogbookArguments& arguments)
{
    part.add_option("FLIGHT", arguments.flight, "its key, or what that begins with")->required();
}

void addAdd(CLI::App& logbook, LogbookArguments& arguments, std::ostream& out, std::ostream& error)
{
    constexpr unsigned MostJobs = 256;
    CLI::App* part =
        addPart(logbook, "add", "Every flight in folders that is not there yet", arguments);
    addProfile(*part, arguments.profile);
    part->add_option("--jobs", arguments.jobs, "flights read at once; else one a processor")
        ->check(CLI::Range(1U, MostJobs));
    part->add_option("FOLDER", arguments.folders, "card folders, with all in them")->required();
    part->final_callback([&] { runLogbookAdd(arguments, out, error); });
}

void addTrend(CLI::App& logbook, LogbookArguments& arguments, std::ostream& out)
{
    std::vector<std::string> figures;
    for (const QString& name : figureNames()) {
        figures.push_back(name.toStdString());
    }
    CLI::App* part = addPart(
        logbook, "trend", "A figure of a parameter from flight to flight, with marks", arguments);
    part->add_option("--parameter", arguments.parameter, "as \"Device/Name\"")->required();
    part->add_option("--figure", arguments.figure,
                     "time mean when steady, maximum, seconds in warning, times out of range")
        ->check(CLI::IsMember(figures));
    addAircraft(*part, arguments);
    addJson(*part, arguments);
    part->final_callback([&] { runLogbookTrend(arguments, out); });
}

void addMark(CLI::App& logbook, LogbookArguments& arguments)
{
    const CLI::Validator isDate([](const std::string& text) { return markDateFault(text); },
                                "DATE");
    CLI::App* part =
        addPart(logbook, "mark", "Note that something was done to an aircraft: trends begin anew",
                arguments);
    part->add_option("AIRCRAFT", arguments.aircraft, "serial number of its engine")->required();
    part->add_option("DATE", arguments.date, "in UTC")->required()->check(isDate);
    part->add_option("TEXT", arguments.text, "what was done")->required();
    part->final_callback([&] { runLogbookMark(arguments); });
}

} // namespace

void addLogbook(CLI::App& app, LogbookArguments& arguments, std::ostream& out, std::ostream& error)
{
    CLI::App* logbook = app.add_subcommand("logbook", "What is kept of every flight, and trends");
    logbook->require_subcommand(1);
    addAdd(*logbook, arguments, out, error);
    CLI::App* list = addPart(*logbook, "list", "The flights, by aircraft and start", arguments);
    addAircraft(*list, arguments);
    addJson(*list, arguments);
    list->final_callback([&] { runLogbookList(arguments, out); });
    CLI::App* show = addPart(*logbook, "show", "All that is kept of a flight", arguments);
    addJson(*show, arguments);
    addFlight(*show, arguments);
    show->final_callback([&] { runLogbookShow(arguments, out); });
    addTrend(*logbook, arguments, out);
    CLI::App* remove = addPart(*logbook, "remove", "Forget a flight", arguments);
    addFlight(*remove, arguments);
    remove->final_callback([&] { runLogbookRemove(arguments); });
    addMark(*logbook, arguments);
}

} // namespace TARN
