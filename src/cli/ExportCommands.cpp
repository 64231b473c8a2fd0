#include "cli/ExportCommands.h"

#include "base/Diagnostics.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"

namespace TARN {

namespace {

/// Sets what all exports share: where to, and from when to when.
void complete(ExportOptions& options, const std::string& out, const Range& range,
              const TimeRange& whole)
{
    const auto slash = out.rfind('/');
    options.directory = slash == std::string::npos ? "." : out.substr(0, slash);
    options.fileName = slash == std::string::npos ? out : out.substr(slash + 1);
    options.startTime = range.start.value_or(whole.start);
    options.stopTime = range.stop.value_or(whole.stop);
}

void run(Exporter&& exporter, const ExportInput& input)
{
    Progress none;
    const ExportResult result = exporter.run(input, none);
    if (!result) {
        throw CommandFailure(result.message.toStdString());
    }
    if (!result.message.isEmpty()) {
        diagnose("%s\n", qUtf8Printable(result.message));
    }
}

ExportInput inputOf(const std::string& profile, const std::vector<std::string>& files,
                    const SelectionArguments& selection)
{
    ExportInput input;
    input.flight = loadFlight(profile, files);
    input.selection = selectionOf(selection, *input.flight->profile());
    input.offset = input.flight->record()->offset();
    return input;
}

} // namespace

void runCsv(const CsvArguments& arguments)
{
    const ExportInput input = inputOf(arguments.profile, arguments.files, arguments.selection);
    CsvExportOptions options;
    complete(options, arguments.out, arguments.range, input.flight->range(input.offset));
    options.resolution = arguments.resolution;
    options.separator = arguments.separator == "tab" ? '\t' : arguments.separator[0];
    run(ExportCsv(options), input);
}

void runKml(const KmlArguments& arguments)
{
    const ExportInput input = inputOf(arguments.profile, arguments.files, arguments.selection);
    KmlExportOptions options = arguments.options;
    complete(options, arguments.out, arguments.range, input.flight->range(input.offset));
    run(ExportKml(options), input);
}

void runCan(const CanArguments& arguments)
{
    ExportInput input;
    input.flight = Flight::make(loadRecord(arguments.files), std::make_shared<Profile>());
    CsvExportOptions options;
    // Its times carry no offset.
    complete(options, arguments.out, arguments.range, input.flight->range(0.0));
    run(ExportCan(options), input);
}

} // namespace TARN
