#include "cli/ExportRun.h"

#include "base/Diagnostics.h"

namespace TARN {

void complete(ExportOptions& options, const std::string& out, const Range& range,
              const TimeRange& whole)
{
    const auto slash = out.rfind('/');
    options.directory = slash == std::string::npos ? "." : out.substr(0, slash);
    options.fileName = slash == std::string::npos ? out : out.substr(slash + 1);
    options.startTime = range.start.value_or(whole.start);
    options.stopTime = range.stop.value_or(whole.stop);
}

void runExport(Exporter&& exporter, const ExportInput& input)
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

} // namespace TARN
